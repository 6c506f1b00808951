#pragma once

#include "partage/partage.h"

/// A result as it was typed: the texts of the fields.
struct ScoreSaisi
{
    QString concours;
    QString equipe1;
    QString equipe2;
    QString score1;
    QString score2;
    bool ScoreReel = true; ///< The points were typed; a plain win has none.
};

/// Stores both scores in the match of these teams in bracket 1 of the current round, with `ScoreReel`; false when there
/// is no such match. Throws store::Erreur, nothing being stored then.
[[nodiscard]] bool EnregistreScore(Partage &partage, const ScoreSaisi &saisi);

/// Takes the matches of the current round away, and goes back one round. The store ends one round lower than the
/// program's own count.
void AnnuleTour(Partage &partage);

/// Takes all matches of the current competition away: it stands before round 1 again.
void AnnuleTirage(Partage &partage);
