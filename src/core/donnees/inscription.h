#pragma once

#include "donnees/equipes.h"

namespace donnees {

/// What a new team finds of the first round.
enum class EtatTirage {
    PasTire,
    Exemption, ///< Drawn, no result yet, and a team has a bye.
    SansExemption, ///< Drawn, no result yet, and no team has a bye.
    Commence, ///< A result is in.
};

/// How a new team enters a first round that is already drawn.
enum class Retardataire {
    Aucun, ///< The round is not drawn: there is no match to enter.
    PrendExemption, ///< Against the team that had the bye.
    NouvelleExemption, ///< With a bye of its own.
};

/// How far the first round of bracket 1 has got.
[[nodiscard]] EtatTirage EtatDuTirage(store::Database &base, qint32 concours);

/// Stores a new team, and its match when it comes after the draw: whole or, when a write throws, not at all. Gives the
/// number of the team that it now meets in the place of a bye, 0 when there is none.
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
/// Removes a known player; nothing happens when nobody bears the number.
void RetireJoueur(store::Database &base, qint64 numero);

} // namespace donnees
