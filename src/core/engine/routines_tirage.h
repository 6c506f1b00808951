#pragma once

#include "engine/classement.h"
#include "partage/partage.h"

#include <vector>

class Interlocuteur;

/// Rebuilds `tbclass` from all matches of the competition whose number is \p concours.
void CalculClassement(Partage &partage, const QString &concours);

/// Rows of `tbclass`, best team first (the order of `rankkey`).
std::vector<moteur::LigneClassement> LitClassement(Partage &partage);

/// Draws round 1 of the current competition, once the operator has agreed to lose a draw without results; refuses when
/// there are results. Gives false when no copy of the old draw could be made and the operator keeps it for that.
bool ConfirmeTirage(Partage &partage, Interlocuteur &interlocuteur);

/// Draws round 1 of the current competition into bracket \p tableau, which is 1; \p reserve is not used. A round that
/// is already drawn is left alone and told. Whatever comes of it, the competition then stands at round 1.
void TirageTour1(Partage &partage, Interlocuteur &interlocuteur, qint16 tableau, int reserve = 0);

/// Works out the pairs of the round after the current one into TabTirage, from `tbclass` as CalculClassement left it,
/// and marks there the teams that were pulled up.
void TirageSuivant(Partage &partage, Interlocuteur &interlocuteur);

/// Draws and stores the next round of the current competition, with up to ten attempts, and warns of what they could
/// not avoid. A competition without matches is not started, whatever its round says: it goes through ConfirmeTirage.
/// Gives false when the old draw was kept for want of a copy.
bool LanceTourSuivant(Partage &partage, Interlocuteur &interlocuteur);

/// Takes up the last round that the current competition has matches of, in the file too, where its row tells a lower
/// one: a cancelled round leaves it so.
void ReprendTour(Partage &partage);
