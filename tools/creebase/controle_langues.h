#pragma once

#include "lecteur.h"

/// Refuses messages that the program could not work with: \p langue must hold the same numbers as \p reference, with
/// the same blanks at the ends, and what the program takes apart or compares must have its form. Throws ErreurDonnees.
void controleMessages(const FichierDonnees &langue, const FichierDonnees &reference);
