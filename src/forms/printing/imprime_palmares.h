#pragma once

#include "fenetres/formulaire.h"
#include "printing/zone_palmares.h"

/// Prints a part of the honours list as the grid shows it, a match a line. False when the operator has cancelled, who
/// has been told so by then.
[[nodiscard]] bool ImprimePalmares(const Contexte &contexte, const ZonePalmares &zone);
