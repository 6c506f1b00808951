#pragma once

#include "fenetres/formulaire.h"
#include "fenetres/nom_forme.h"

class FlexGrid;

/// Prints the selected rows of \p grille, or all of them when none is selected: the list of the known players for the
/// form "listjo", the list of the registrations for any other.
void ImprimeListe(const Contexte &contexte, NomForme forme, FlexGrid &grille);
