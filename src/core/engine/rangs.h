#pragma once

#include "engine/classement.h"

namespace moteur {

/// Positions of the rows of a ranking, which come in the order of avantAuRang(): counted from 1 over all levels, absent
/// on a row that stands level with the one before it. A row without points stands level with the others of its level,
/// unless these are ahead by a positive difference.
std::vector<std::optional<int>> positionsParNiveau(std::span<const LigneClassement> lignes);

/// A row of the overall ranking.
struct PlaceGenerale
{
    std::size_t ligne = 0; ///< Place of the row in the ranking that was given.
    std::optional<int> position = std::nullopt; ///< Absent on a row that stands level with the one before it.
};

/// The overall ranking: by matches won, then by difference, an absent one counting as 0. Rows that stand level keep the
/// order in which they came.
std::vector<PlaceGenerale> classementGeneral(std::span<const LigneClassement> lignes);

} // namespace moteur
