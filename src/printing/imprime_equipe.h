#pragma once

#include "platform/formulaire.h"

class FlexGrid;

/// What ImprimeEquipe prints.
enum class GenreFeuille { Club = 0, Equipe = 1 };

/// Prints the sheet of one team or one club: its members, and the rows of the honours list \p palmares that hold
/// \p texte. That is the name of the club, or the number of the team, the surname and the first initial of a member as
/// the list has them.
void ImprimeEquipe(const Contexte &contexte, const FlexGrid &palmares, const QString &texte, GenreFeuille genre);
