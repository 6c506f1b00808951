#pragma once

#include "fenetres/formulaire.h"

class FlexGrid;

/// What ImprimeEquipe prints.
enum class GenreFeuille { Club = 0, Equipe = 1 };

/// Prints the sheet of one team or one club: its members, and its rows of the honours list \p palmares. \p texte is the
/// name of the club, or the team as the list has it: its number and, when the list stands \p avecNoms, the surname and
/// the first initial of a member, by which it is found. Without names the number tells the team.
void ImprimeEquipe(const Contexte &contexte, const FlexGrid &palmares, bool avecNoms, const QString &texte,
                   GenreFeuille genre);
