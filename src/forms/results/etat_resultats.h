#pragma once

#include "fenetres/formulaires.h"

/// State of the entry of scores and of its views. It outlives the forms.
struct EtatResultats
{
    bool ScoreReel = true; ///< The score in hand was typed, not given by a double click.
    bool AttendusAJour = false; ///< The view of pending matches shows what the base holds.
    bool JouesAJour = false; ///< The same of the view of played ones.
    bool ClicGrille = true; ///< Left clicks on the views act.
};

/// The state of the run.
inline EtatResultats &etatResultats(Formulaires &formulaires)
{
    return formulaires.etat<EtatResultats>();
}
