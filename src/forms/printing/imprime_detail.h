#pragma once

#include "fenetres/formulaire.h"
#include "printing/zone_palmares.h"

/// Prints the list of all teams of the current competition with their members, in portrait. A form needs no more than
/// its context: `ImprimeDetail(contexte())`. False when the operator has cancelled, who has been told so by then.
bool ImprimeDetail(const Contexte &contexte);

/// Whose members follow a match of the detailed honours list; those of the winner of the final always do.
struct MembresMontres
{
    bool gagnants = false;
    bool perdants = false;
};

/// Prints a part of the honours list, each round under a line of its own. False when the operator has cancelled.
bool ImprimeDetail(const Contexte &contexte, const ZonePalmares &zone, MembresMontres montres);
