#pragma once

#include "fenetres/formulaire.h"

/// What a list of the season puts on paper.
struct ListeSaison
{
    QString titre;
    QString resume; ///< Below the rows.
    QStringList entetes;
    std::vector<int> places; ///< Left ends of the columns, in twips.
    std::vector<QStringList> lignes;
    std::vector<std::pair<double, double>> barres = {}; ///< Of each row: its length and how far it is filled, up to 1.
    std::vector<int> equipes = {}; ///< Of each competition, for the line above the rows.
};

void ImprimeSaison(const Contexte &contexte, const ListeSaison &liste);
