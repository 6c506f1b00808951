#pragma once

#include <QFont>
#include <QFontMetricsF>

/// A font as it stands on paper, measured in twips and without regard to any screen.
class PolicePapier
{
public:
    PolicePapier(const QString &famille, double points, bool gras, bool italique);

    /// The font in a size whose pixel is a twip.
    const QFont &police() const { return m_police; }
    int largeur(const QString &texte) const;
    /// From one line to the next.
    int hauteur() const;
    /// From the top of a line to its baseline.
    int montee() const;

private:
    QFont m_police;
    QFontMetricsF m_mesures;
};
