#pragma once

#include "platform/formulaire.h"

class FlexGrid;

/// Prints the selected rows of \p grille, or all of them when none is selected: the list of the known players for the
/// form "listjo", the list of the registrations for any other.
void ImprimeListe(const Contexte &contexte, const QString &forme, FlexGrid &grille);
