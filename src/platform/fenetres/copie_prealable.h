#pragma once

#include "fenetres/formulaire.h"
#include "garde/sauvegarde.h"

/// Puts a copy of the base aside before rows go for good. False when it fails and the operator does not want to go on
/// without one: nothing may change then.
[[nodiscard]] bool GardeUneCopie(const Contexte &contexte, RaisonCopie raison);
/// Asks whether to go on although no copy could be made, for the reason \p cause; No is preselected.
[[nodiscard]] bool ContinueSansCopie(Boites &boites, const QString &cause);
