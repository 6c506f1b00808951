#pragma once

class FlexGrid;
struct Partage;

/// Adds the matches of round \p tour of the current competition to the honours list \p grille, a row a match: who beat
/// whom, or who plays whom, and the score; after the last round of two teams, the loser and the winner of the final.
/// With \p avecNoms, teams bear the surname and the first initial of their first member.
///
/// The current row must be the last one, and already hold the name of the round; behind the call the last row is an
/// empty one. The first row makes the grid visible. Throws where a team of a match has no player at all.
void RemplitTour(Partage &partage, FlexGrid &grille, int tour, bool avecNoms);
