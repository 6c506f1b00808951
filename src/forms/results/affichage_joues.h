#pragma once

class Formulaires;
struct Partage;

/// Rebuilds the grid of the form `valresu` with all played matches, the latest round first, when that form is visible.
void AfficheJoues(Partage &partage, const Formulaires &formulaires);
