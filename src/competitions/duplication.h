#pragma once

#include "platform/formulaire.h"

/// Makes a fresh copy, with its teams and without its draw, of the competition whose number stands in the combo
/// `référence` of \p formulaire, and loads that form again. A number without a competition is told and copies nothing.
void DupliqueConcours(const Contexte &contexte, Formulaire &formulaire);
