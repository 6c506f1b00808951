#pragma once

#include "fenetres/formulaire.h"

/// What ImprimeTirage prints.
enum class ModeTirage { Tirage = 1, Classement = 3 };

/// Prints the draw sheet of round \p tour, or the ranking that `tbclass` holds, with the members of each team when
/// \p detail is set. \p etat is the line under the title of the ranking.
void ImprimeTirage(const Contexte &contexte, ModeTirage mode, bool detail, int tour, const QString &etat);
