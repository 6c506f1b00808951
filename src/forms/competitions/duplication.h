#pragma once

#include "fenetres/formulaire.h"

/// Makes a fresh copy, with its teams and without its draw, of the competition \p numero, as typed, and loads the form
/// `Econcours` again. A number without a competition is told and copies nothing.
void DupliqueConcours(const Contexte &contexte, const QString &numero);
