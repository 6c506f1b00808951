#include "printing/courbe.h"

#include <algorithm>

std::vector<QPointF> PointsDeLaCourbe(const std::vector<int> &nombres, const QRectF &cadre)
{
    std::vector<QPointF> points;
    const int plus = nombres.empty() ? 0 : std::max(1, std::ranges::max(nombres));
    for (std::size_t i = 0; i < nombres.size(); ++i) {
        const double part = nombres.size() == 1 ? 0.5 : double(i) / double(nombres.size() - 1);
        points.emplace_back(cadre.left() + part * cadre.width(),
                            cadre.bottom() - double(nombres[i]) / plus * cadre.height());
    }
    return points;
}
