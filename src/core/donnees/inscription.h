#pragma once

#include "donnees/equipes.h"

namespace donnees {

/// What a new team finds of the first round.
enum class EtatTirage { PasTire, Exemption, SansExemption, Commence };

/// How a new team enters a first round that is already drawn.
enum class Retardataire { Aucun, PrendExemption, NouvelleExemption };

[[nodiscard]] EtatTirage EtatDuTirage(store::Database &base, qint32 concours);

/// Stores a new team, and its match when it comes after the draw: whole or, when a write throws, not at all. Gives the
/// number of the free team that it now meets, 0 when there is none.
qint64 AjouteEquipe(store::Database &base, const Equipe &equipe, Retardataire entree);
/// Writes a known team anew, names cut to what the table holds, and sets its stage counters back. A write that fails
/// does not stop the others; false then.
[[nodiscard]] bool CorrigeEquipe(store::Database &base, const Equipe &equipe);
/// Removes a team; its matches stay. False when it had no row in `evolution`.
[[nodiscard]] bool RetireEquipe(store::Database &base, qint32 concours, qint64 numero);

/// Stores a new known player, texts cut to what the file holds.
void AjouteJoueur(store::Database &base, const Membre &joueur);
/// Writes a known player anew, texts as they are. False when the date of birth is none: the one stored stays then.
[[nodiscard]] bool CorrigeJoueur(store::Database &base, const Membre &joueur);
void RetireJoueur(store::Database &base, qint64 numero);

} // namespace donnees
