#pragma once

#include "engine/classement.h"

#include <QString>
#include <QStringView>

#include <functional>
#include <span>
#include <vector>

namespace moteur {

/// What a draw could not avoid.
enum class StatutTirage {
    RienASignaler = 0,
    MemeClub = 1, ///< A pair of one club remains.
    DejaRencontrees = 2, ///< A pair that has already met remains.
};

/// One pair of the next round.
struct LigneTirage
{
    int pt1 = 0; ///< Level of the first team.
    int equipe1 = 0;
    QString club1 = {};
    int equipe2 = 0; ///< 0 for a bye.
    QString club2 = {}; ///< Empty for a bye.
    int pt2 = 0; ///< Level of the second side; a club exchange moves the team and leaves this in place.

    bool operator==(const LigneTirage &) const = default;
};

/// The pairs of the next round in drawing order, and what there is to report about them.
struct TabTirage
{
    StatutTirage statut = StatutTirage::RienASignaler;
    std::vector<LigneTirage> lignes;

    bool operator==(const TabTirage &) const = default;
};

/// Two teams that have met; the second is 0 for a bye.
struct PaireJouee
{
    int equipe1 = 0;
    int equipe2 = 0;
};

/// What a next-round draw reads.
struct DonneesTirage
{
    /// Ranking of all teams, in any order. The draw changes `pt`, `alea` and `repechage` of the teams that it pulls
    /// up or that give way.
    std::span<LigneClassement> classement;
    std::span<const QString> clubs; ///< Club of each row of \p classement, in the same order.
    std::span<const PaireJouee> jouees; ///< All matches of the competition, in the order of the store.
    int tourpri = 1; ///< Last round drawn; clubs are kept apart only when it is 1.
    bool repeche = false; ///< Whether a team pulled up is marked in `repechage`.
};

/// Told what to add to the sign of progress: "." for each meeting looked up, " ." for each pair looked at for clubs.
using SigneTirage = std::function<void(QStringView)>;

/// Draws the round after \p donnees.tourpri: teams of one level meet in the order of their `alea`, a level of odd
/// number pulls up the best team of the next one, the last team has the bye; then pairs of one club (round 2) and
/// repeated meetings are exchanged inside their level as far as the rules find a partner.
TabTirage tireTourSuivant(const DonneesTirage &donnees, const SigneTirage &signe = {});

} // namespace moteur
