#pragma once

#include "app/partage.h"

#include <optional>
#include <vector>

/// One member of a team as typed.
struct Membre
{
    QString nom;
    QString prenom;
    QString licence;
};

/// A team as the registration table hands it over: one row of `equipes` a member and one row of `evolution`.
struct EquipeSaisie
{
    qint32 concours = 0;
    qint64 numero = 0;
    QString societe;
    std::vector<Membre> membres;
};

/// What a new team finds of the first round.
enum class EtatTirage { PasTire, Exemption, SansExemption, Commence };

/// How a new team enters a first round that is already drawn.
enum class Retardataire { Aucun, PrendExemption, NouvelleExemption };

/// Statement of the rows of one team, in the order of its members; they can be changed.
QString RequeteEquipe(qint32 concours, qint64 numero);
bool EquipeExiste(Partage &partage, qint32 concours, qint64 numero);
/// Highest team number of the competition, nothing without a team.
std::optional<qint64> PlusHautNumero(Partage &partage, qint32 concours);
/// A team's or known player's number as the lists show it: four digits, or as many as it has.
QString NumeroAffiche(qint64 numero);
/// Numbers of the teams in ascending order.
std::vector<qint64> NumerosDesEquipes(Partage &partage, qint32 concours);

EtatTirage EtatDuTirage(Partage &partage, qint32 concours);

/// Stores a new team, and its match when it comes after the draw: whole or, when a write fails, not at all. Gives the
/// number of the free team that it now meets, 0 when there is none; nothing when it is not stored.
std::optional<qint64> AjouteEquipe(Partage &partage, const EquipeSaisie &equipe, Retardataire entree);
/// Writes a known team anew, names cut to what the table holds, and sets its stage counters back. A write that fails
/// does not stop the others; false then.
bool CorrigeEquipe(Partage &partage, const EquipeSaisie &equipe);
/// Removes a team; its matches stay. False when it had no row in `evolution`.
bool RetireEquipe(Partage &partage, qint32 concours, qint64 numero);
