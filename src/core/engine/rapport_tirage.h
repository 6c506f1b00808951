#pragma once

#include "engine/partie.h"

#include <QHash>
#include <QString>

#include <optional>
#include <span>
#include <vector>

namespace moteur {

/// One match of a round, and what an organiser may want to know of it before he posts it.
struct PaireRapportee
{
    bool operator==(const PaireRapportee &) const = default;

    int equipe1 = 0;
    int equipe2 = 0; ///< 0 for a bye.
    int niveau = 0; ///< Matches won before the round, by the better of the two.
    std::optional<int> remontee = {}; ///< The team that comes from a lower level.
    int niveauRemontee = 0; ///< That level.
    std::optional<int> dejaAuTour = {}; ///< Round of the first meeting, of a pair that meets again.
    bool memeClub = false;
    bool encoreExempt = false; ///< The bye goes to a team that has had one.

    bool exempt() const { return equipe2 == 0; }
};

/// What the pairs of one level have, and the least that any pairing of the same teams could have.
struct NiveauRapporte
{
    bool operator==(const NiveauRapporte &) const = default;

    int niveau = 0;
    int repetitions = 0;
    int repetitionsAuMoins = 0;
    int memeClub = 0;
    int memeClubAuMoins = 0;
    int defauts = 0; ///< Matches that are a repeat, of one club, or both.
    int defautsAuMoins = 0;
};

/// A round as it has been drawn.
struct RapportTour
{
    bool operator==(const RapportTour &) const = default;

    int repetitions() const;
    int memeClub() const;
    /// Whether there is anything but matches inside their levels.
    bool aSignaler() const;
    const NiveauRapporte *niveau(int lequel) const;

    int tour = 0;
    std::vector<PaireRapportee> paires = {}; ///< From the highest level, in the order of the draw; byes last.
    std::vector<NiveauRapporte> niveaux = {}; ///< From the highest.
};

/// Report on round \p tour among \p parties, all matches of the competition. \p clubs gives the club of a team; teams
/// without one, or of an empty one, are of no club: leave mixed teams out. What a level could have at least is not
/// looked for yet: it is told as what it has.
RapportTour etablitRapport(std::span<const Partie> parties, int tour, const QHash<int, QString> &clubs);

/// Works out what each level of \p rapport could have at least, exactly.
///
/// The teams of a level stand in a graph whose edges are the pairs without the defect. A largest matching there of m
/// edges leaves n - 2m teams of which no two are joined; paired among themselves they make n/2 - m matches with the
/// defect, and no pairing has fewer.
void calculeMinimums(RapportTour &rapport, std::span<const Partie> parties, const QHash<int, QString> &clubs);

/// Whether \p un is better to post than \p autre: fewer repeats, then fewer pairs of one club.
bool vautMieux(const RapportTour &un, const RapportTour &autre);

} // namespace moteur
