#pragma once

#include "concours_joue.h"

/// A field as clubs send it: a large host, mixed teams, the rest from about one club for eight teams.
std::vector<moteur::EquipeInscrite> champ(int equipes);

/// A competition whose \p tours rounds have been drawn and played; kept, since several measures start from it.
essai::Concours &concoursJoue(int equipes, int tours);
