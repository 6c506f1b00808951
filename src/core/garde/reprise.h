#pragma once

#include "garde/inventaire.h"
#include "garde/sauvegarde.h"

/// What an earlier run has left half done, or lost, is put right before the base is opened. All of it may be cut short
/// at any point: the next start goes on from there.

/// Takes up a purge that was cut short, when it has left the whole base under its temporary name and none under its
/// own. Whether there was one. Throws store::Erreur when it cannot be renamed.
[[nodiscard]] bool ReprendPurge(const QString &dossierProgramme);

/// A safety copy that is proved whole, and what it holds.
struct CopieSaine
{
    Copie copie;
    Inventaire inventaire;
};

/// The safety copies that are proved whole, the newest first.
[[nodiscard]] std::vector<CopieSaine> CopiesSaines(const QString &dossierProgramme);

/// Puts the safety copy \p copie into the place of the closed base. What stood there stays beside it: gives the name
/// that it has now, empty when there was nothing. Throws store::Erreur; the base stands as before then.
[[nodiscard]] QString RemetCopie(const Partage &partage, const QString &copie);

/// Sets the journals aside that stand beside a base that is not theirs, and gives the name of the first. Throws
/// store::Erreur.
[[nodiscard]] QString EcarteJournaux(const Partage &partage);
