#pragma once

#include "engine/partie.h"

#include <optional>
#include <span>
#include <vector>

class SourceAleatoire;

namespace moteur {

/// One row of `tbclass`: what a team has done so far, and its place in the next draw.
struct LigneClassement
{
    int equipe = 0;
    int gagnées = 0;
    int perdues = 0;
    std::optional<int> pp = std::nullopt; ///< Points scored; absent as long as no score of the team is known.
    std::optional<int> pc = std::nullopt; ///< Points conceded.
    std::optional<int> ga = std::nullopt; ///< `pp` - `pc`, absent with either of them.
    int pt = 0; ///< Level: the matches won, plus 1 for a team that the draw has pulled up.
    std::optional<int> repechage = std::nullopt; ///< 1 for the team pulled up.
    int alea = 0; ///< Random order of the draw, from 10000 to 100000.

    bool operator==(const LigneClassement &) const = default;
};

/// Ranking after \p parties, which come ordered by round, then by first team. One row a team that occurs in them,
/// in ascending order of team number.
///
/// A bye (no second team) counts as 13 to 7 whatever its scores; a match without a 13 is neither won nor lost, and
/// its scores count all the same. `alea` is drawn when a team first occurs and anew at each match that the team
/// plays as second team.
[[nodiscard]] std::vector<LigneClassement> etablitClassement(std::span<const Partie> parties, SourceAleatoire &alea);

/// Order of the index `rankkey`: `pt`, then `ga`, both from the highest and an absent `ga` last, then the team.
bool avantAuRang(const LigneClassement &gauche, const LigneClassement &droite);

/// Order of the index `aleakey`: `pt`, then `alea`, both from the highest, then the team.
bool avantAuTirage(const LigneClassement &gauche, const LigneClassement &droite);

} // namespace moteur
