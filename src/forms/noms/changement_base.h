#pragma once

#include "fenetres/formulaires.h"

/// What the main window keeps ready for whoever puts another file into the place of the open base.
struct ChangementBase
{
    std::vector<NomForme> formes; ///< To be unloaded before, in this order: they stand on what is about to go.
    std::function<void()> metEnService; ///< Brings the new base up to date and takes its language over.
};

inline ChangementBase &changementBase(Formulaires &formulaires)
{
    return formulaires.etat<ChangementBase>();
}
