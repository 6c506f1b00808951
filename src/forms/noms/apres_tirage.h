#pragma once

#include "fenetres/formulaires.h"

/// What else is done behind a draw, once all that the click shows has been shown.
struct ApresTirage
{
    bool montreRapport = false; ///< The report opens by itself when it has something to tell.
    std::function<void()> traite; ///< Set by the menu Outils.
};

inline ApresTirage &apresTirage(Formulaires &formulaires)
{
    return formulaires.etat<ApresTirage>();
}
