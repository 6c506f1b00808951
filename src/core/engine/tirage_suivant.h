#pragma once

#include "engine/classement.h"
#include "partage/tab_tirage.h"

#include <QString>
#include <QStringView>

#include <functional>
#include <span>
#include <vector>

namespace moteur {

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
[[nodiscard]] TabTirage tireTourSuivant(const DonneesTirage &donnees, const SigneTirage &signe = {});

} // namespace moteur
