#pragma once

#include "engine/saison.h"

#include <QRectF>

/// Places in \p cadre of the points of a line through \p jours: from the left to the right as time goes by, the
/// greatest number of teams at its top and 0 at its bottom. One day alone stands in the middle.
std::vector<QPointF> PointsDeLaCourbe(const std::vector<JourDeSaison> &jours, const QRectF &cadre);
