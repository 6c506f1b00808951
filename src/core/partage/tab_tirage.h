#pragma once

#include <QString>

#include <vector>

namespace moteur {

/// What a draw could not avoid.
enum class StatutTirage {
    RienASignaler = 0,
    MemeClub = 1, ///< A pair of one club remains.
    DejaRencontrees = 2, ///< A pair that has already met remains.
};

/// One pair of the next round.
struct LigneTirage
{
    int pt1 = 0; ///< Level of the first team.
    int equipe1 = 0;
    QString club1 = {};
    int equipe2 = 0; ///< 0 for a bye.
    QString club2 = {}; ///< Empty for a bye.
    int pt2 = 0; ///< Level of the second side; a club exchange moves the team and leaves this in place.

    bool operator==(const LigneTirage &) const = default;
};

/// The pairs of the next round in drawing order, and what there is to report about them.
struct TabTirage
{
    StatutTirage statut = StatutTirage::RienASignaler;
    std::vector<LigneTirage> lignes;

    bool operator==(const TabTirage &) const = default;
};

} // namespace moteur
