#pragma once

#include "engine/affichage_public.h"
#include "fenetres/formulaires.h"

/// The order in which results come in during the run.
inline moteur::OrdreDesResultats &ordreDesResultats(Formulaires &formulaires)
{
    return formulaires.etat<moteur::OrdreDesResultats>();
}
