#pragma once

#include <QRectF>

#include <vector>

/// Places in \p cadre of the points of a line through \p nombres, none below 0: from the left to the right, the
/// greatest at its top and 0 at its bottom. One point alone stands in the middle.
std::vector<QPointF> PointsDeLaCourbe(const std::vector<int> &nombres, const QRectF &cadre);
