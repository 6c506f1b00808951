#pragma once

#include "fenetres/formulaires.h"

/// What the registration, its side panels and the entry of results hand each other. It outlives the forms.
struct Passation
{
    QString FormeAppelante; ///< Name of the form that is taking a club or a player.
    QString ClubFiltre; ///< Club whose players the list shows, empty for all.
    bool PanacheeAutorisee = false; ///< Mixed teams are accepted in the competition in hand.
    int ModeListeEquipes = 0; ///< 1 when the list of teams feeds the results.
    bool SelectionEnCours = false; ///< The list of players is feeding a form: it is not built anew meanwhile.
};

/// The hand-over of the run.
inline Passation &passation(Formulaires &formulaires)
{
    return formulaires.etat<Passation>();
}
