#pragma once

#include "engine/saison.h"
#include "fenetres/formulaire.h"

/// What a list of the season puts on paper.
struct ListeSaison
{
    QString titre;
    QString type; ///< The one that was chosen; empty for all.
    QString resume; ///< Below the rows.
    QStringList entetes;
    std::vector<int> places; ///< Left ends of the columns, in twips.
    std::vector<bool> nombres; ///< Columns of numbers, which stand under each other.
    std::vector<QStringList> lignes;
    std::vector<std::pair<double, double>> barres = {}; ///< Of each row: its length and how far it is filled, up to 1.
    QString titreCourbe = {};
    std::vector<JourDeSaison> jours = {}; ///< The points of the line above the rows.
    QStringList dates = {}; ///< Texts of the days.
};

void ImprimeSaison(const Contexte &contexte, const ListeSaison &liste);
