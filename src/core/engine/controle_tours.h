#pragma once

#include "engine/tirage_suivant.h"

#include <span>
#include <vector>

namespace moteur {

/// Attempts at the draw of a round; the last one is written with its warning.
inline constexpr int essaisTirageMax = 10;

/// Whether a round is left to draw after \p tourCourant once all its results are in: the number of teams is at least
/// 2 to the power of that round, plus 1 without \p repeche. \p nbteam counts the rows of players; with \p nbJoueurs
/// players a team (an unknown number, 0 or below, takes each row for a team: a competition is not declared over for
/// want of its type).
[[nodiscard]] bool resteUnTour(int nbteam, int nbJoueurs, int tourCourant, bool repeche);

/// Rounds that a competition will have, \p tourCourant being drawn: resteUnTour() asked round after round.
int toursPrevus(int nbteam, int nbJoueurs, int tourCourant, bool repeche);

/// Whether the draw of the round after \p tourCourant is to be tried again after \p essais attempts.
[[nodiscard]] bool tirageARefaire(StatutTirage statut, int tourCourant, int essais);

/// Matches of round \p tour (from 2) to write for a draw, in its order. \p classement is the ranking that the draw has
/// worked on: it tells which side was pulled up. A bye is a finished match, 13 to 7.
[[nodiscard]] std::vector<Partie> partiesDuTour(const TabTirage &table, std::span<const LigneClassement> classement,
                                                int tour);

} // namespace moteur
