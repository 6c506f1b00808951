#pragma once

class Formulaires;
struct Partage;

/// Rebuilds the pending matches and the ranking of the form `manqres`, and the grids of `Groupes`, when `manqres` is
/// visible. The ranking is worked out anew for it; `Groupes` is loaded when it is not there, and not shown.
void AfficheAttendus(Partage &partage, Formulaires &formulaires);
