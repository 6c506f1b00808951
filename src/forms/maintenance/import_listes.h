#pragma once

#include "fenetres/formulaire.h"

/// Empties table `joueurs` and fills it from joueurs.txt beside the program. Errors are passed over without a word: the
/// table stays empty then.
void Torvik_mnu_ijoueur_Click(const Contexte &contexte);
/// The same for table `clubs` and clubs.txt.
void Torvik_mnu_iclub_Click(const Contexte &contexte);
