#pragma once

#include "engine/classement.h"
#include "engine/tirage_suivant.h"
#include "partage/partage.h"

#include <QHash>

#include <functional>
#include <vector>

/// Whom a draw keeps informed on its way; each may be left out.
struct SuiviTirage
{
    std::function<void()> essai; ///< An attempt begins.
    std::function<void(QStringView)> signe; ///< A sign more of the pairs drawn.
};

/// What stands in the way of the draw of round 1, and what becomes of it.
enum class ObstacleAuTirage {
    Aucun,
    TirageSansResultat, ///< A draw without results: on a Yes, and behind a copy, RefaitTirage() takes its place.
    ResultatsTombes, ///< Results are in: the draw stays.
    DejaTire, ///< Round 1 has matches: it stays, and PasseAuTour1() follows. The obstacles before leave no such case.
};

/// What the call for the next round has led to.
struct [[nodiscard]] BilanLancement
{
    ObstacleAuTirage obstacle = ObstacleAuTirage::Aucun; ///< Where there is one, nothing has been drawn.
    /// What the draw of a later round could not avoid; nothing to report behind round 1.
    moteur::StatutTirage statut = moteur::StatutTirage::RienASignaler;
};

/// Rebuilds `tbclass` from all matches of the competition whose number is \p concours.
void CalculClassement(Partage &partage, const QString &concours);

/// Rows of `tbclass`, best team first (the order of `rankkey`).
std::vector<moteur::LigneClassement> LitClassement(Partage &partage);

/// Draws round 1 of the current competition where no match stands in its way; otherwise nothing is written and the
/// obstacle is given back.
[[nodiscard]] ObstacleAuTirage ConfirmeTirage(Partage &partage);

/// Takes the draw of the current competition away and draws round 1 anew, whole or not at all. The caller has made a
/// safety copy.
void RefaitTirage(Partage &partage);

/// Draws round 1 of the current competition into bracket \p tableau, which is 1, and passes to it; no match is written
/// for fewer than two teams. False, and nothing is written, when the round is already drawn. \p reserve is kept free
/// for other kinds of draw.
[[nodiscard]] bool TirageTour1(Partage &partage, qint16 tableau, int reserve = 0);

/// The current competition stands at round 1 from now on, as it is: follows a TirageTour1 that gave false, once the
/// operator knows.
void PasseAuTour1(Partage &partage);

/// Works out the pairs of the round after the current one into TabTirage, from `tbclass` as CalculClassement left it,
/// and marks there the teams that were pulled up.
void TirageSuivant(Partage &partage, const SuiviTirage &suivi = {});

/// Draws and stores the next round of the current competition, with up to ten attempts. A competition without matches
/// is not started, whatever its round says: it goes through ConfirmeTirage.
BilanLancement LanceTourSuivant(Partage &partage, const SuiviTirage &suivi = {});

/// All matches of the competition \p concours, in the order of rounds and first teams.
std::vector<moteur::Partie> LitParties(Partage &partage, qint64 concours);

/// Club of each team of the current competition, that of its first member.
QHash<int, QString> LitClubs(Partage &partage);

/// A round of the current competition drawn by the rules, and nowhere written.
struct TourPropose
{
    std::vector<moteur::Partie> parties;
    moteur::StatutTirage statut = moteur::StatutTirage::RienASignaler;
};

/// Draws round \p tour, from 1 to the current one, anew from the matches before it.
TourPropose ProposeTour(Partage &partage, int tour);

/// Puts \p parties into the place of the matches of the current round in bracket 1, whole or not at all. Make a copy
/// before.
void RemplaceTour(Partage &partage, const std::vector<moteur::Partie> &parties);

/// Takes up the last round that the current competition has matches of, in the file too, where its row tells a lower
/// one: a cancelled round leaves it so.
void ReprendTour(Partage &partage);
