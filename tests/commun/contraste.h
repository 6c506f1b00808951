#pragma once

#include <QColor>

#include <algorithm>
#include <cmath>

/// Relative luminance as the accessibility guidelines define it, from 0 to 1.
inline double clarte(const QColor &couleur)
{
    const auto lineaire = [](double c) { return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * lineaire(couleur.redF()) + 0.7152 * lineaire(couleur.greenF()) + 0.0722 * lineaire(couleur.blueF());
}

/// Ratio of contrast of the guidelines, from 1 to 21.
inline double contraste(const QColor &a, const QColor &b)
{
    const auto [sombre, clair] = std::minmax({clarte(a), clarte(b)});
    return (clair + 0.05) / (sombre + 0.05);
}
