#pragma once

#include "engine/rapport_tirage.h"
#include "fenetres/formulaire.h"

/// The words on a slip.
struct MotsFiche
{
    QString tour; ///< With its number.
    QString terrain;
    QString score;
    QString exempte;
};

/// Prints a slip for each match of \p rapport, eight to an A4 sheet with lines to cut along: teams, clubs, first
/// members, and room for the ground and the two scores.
void ImprimeFiches(const Contexte &contexte, const moteur::RapportTour &rapport, const MotsFiche &mots);
