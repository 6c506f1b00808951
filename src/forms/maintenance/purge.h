#pragma once

#include "fenetres/formulaire.h"
#include "fenetres/nom_forme.h"
#include "garde/fichiers_base.h"

/// Asks, and empties the base of all competitions at the end of a season: the clubs and the pre-registered players
/// stay. The file is rewritten without the room that the rows took. \p formesDeConcours are unloaded before, in this
/// order.
void Torvik_mnu_base_Click(const Contexte &contexte, const std::vector<NomForme> &formesDeConcours);
/// The same on other file operations.
void PurgeBase(const Contexte &contexte, const FichiersBase &fichiers, const std::vector<NomForme> &formesDeConcours);
