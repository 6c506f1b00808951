#pragma once

#include "donnees/concours.h"

#include <functional>
#include <optional>
#include <vector>

/// What of the base a season is made of; what is left out counts for any.
struct FiltreSaison
{
    QDate depuis = {}; ///< First day; competitions without a date are left out with either of the two days.
    QDate jusqua = {};
    QString type = {}; ///< As a competition holds it; its code decides.
};

/// One competition of a season.
struct ConcoursJoue
{
    donnees::Concours concours;
    int equipes = 0; ///< Registered.
    int tours = 0; ///< Drawn.
    int parties = 0; ///< Between two teams, with their results.
};

/// A day with competitions, and the teams registered in all of them.
struct JourDeSaison
{
    QDate jour;
    int equipes = 0;

    bool operator==(const JourDeSaison &) const = default;
};

/// What a club or a licence has done over a season. All counts as in the ranking: a bye is a match won, 13 to 7, and a
/// word in the place of a score its -1 to -3 points.
struct LigneSaison
{
    int ecart() const { return pour - contre; }

    QString cle; ///< Name of the club, or licence.
    QString nom = {}; ///< Of the player, as he was registered last; empty for a club.
    QString club = {}; ///< Of the player's last team.
    int concours = 0; ///< Those with a match of one of its teams.
    int parties = 0; ///< With their results.
    int gagnees = 0;
    int pour = 0; ///< Points scored.
    int contre = 0;
    std::optional<int> meilleurePlace = std::nullopt; ///< In competitions that wait for no result.
};

struct Saison
{
    std::vector<ConcoursJoue> concours = {}; ///< By date, those without one first, then by number.
    std::vector<LigneSaison> clubs = {}; ///< Most matches won first. Mixed teams count for no club.
    std::vector<LigneSaison> licences = {}; ///< The same of the players; those without a licence are left out.
};

/// Reckons the season of \p base, in one pass over its teams and matches; changes nothing. \p avance hears how many
/// competitions have been reckoned.
Saison LitSaison(store::Database &base, const FiltreSaison &filtre = {}, const std::function<void(int)> &avance = {});

/// The days of the competitions of \p saison, the first one first; those without a date are left out.
std::vector<JourDeSaison> JoursDeSaison(const Saison &saison);

/// Code of a type as a competition holds it.
QString CodeType(const QString &type);
