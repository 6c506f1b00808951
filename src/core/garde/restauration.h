#pragma once

#include "garde/fichiers_base.h"
#include "partage/partage.h"

/// The safety copy \p copie is proved whole and laid beside the open base, where it waits to take its place. Throws
/// store::Erreur; nothing lies there then.
void PrepareRestauration(const Partage &partage, const QString &copie);

/// Takes away what PrepareRestauration has laid beside the base, or an earlier run has left there; nothing happens when
/// there is nothing.
void AbandonneRestauration(const QString &dossierProgramme);

/// Puts the prepared copy into the place of the open base, closed for it, by one rename, and opens it; the competition
/// at hand is the same as before where the copy has it, else none. Cut short at any point, the base's own name bears
/// either the old base or the new one, whole. Throws store::Erreur, whose sentence tells which of the two stands there;
/// the old one is open again if it can be.
void Restaure(Partage &partage, const FichiersBase &fichiers);
