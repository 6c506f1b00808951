#include "printing/courbe.h"

#include <algorithm>

std::vector<QPointF> PointsDeLaCourbe(const std::vector<JourDeSaison> &jours, const QRectF &cadre)
{
    std::vector<QPointF> points;
    if (jours.empty())
        return points;
    const int plus = std::max(1, std::ranges::max(jours, {}, &JourDeSaison::equipes).equipes);
    const QDate premier = jours.front().jour;
    const double duree = double(premier.daysTo(jours.back().jour));
    for (const JourDeSaison &jour : jours) {
        const double part = duree > 0 ? double(premier.daysTo(jour.jour)) / duree : 0.5;
        points.emplace_back(cadre.left() + part * cadre.width(),
                            cadre.bottom() - double(jour.equipes) / plus * cadre.height());
    }
    return points;
}
