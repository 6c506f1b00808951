#pragma once

#include "fenetres/formulaire.h"

/// The base has been refused, and the operator knows: there is nothing more to tell.
struct DepartRenonce
{
};

/// Opens the base of the program's folder for the whole run. What an earlier run has left half done is put right and
/// told in one box; for a base that is refused, the last safety copy is offered. Throws store::Erreur when there is no
/// base to work with, DepartRenonce when the operator keeps the refused one.
void OuvreBase(const Contexte &contexte);
