#pragma once

#include "store/database.h"

#include <optional>
#include <vector>

namespace donnees {

/// A match as its row tells it, drawn or played.
struct Rencontre
{
    int tour = 0;
    qint64 equipe1 = 0;
    qint64 equipe2 = 0; ///< 0 for a bye.
    store::Valeur score1 = {}; ///< Null until the result is in; -1 to -3, or a text, stand for a word.
    store::Valeur score2 = {};
    bool scoreReel = false; ///< The scores were typed, not given by a double click.
    bool lancee = false;
    int repechage = 0; ///< 1 or 2: the side that was pulled up.

    bool exempt() const { return equipe2 == 0; }
    /// Whether it waits for its result.
    bool enAttente() const { return score1.estNull() && score2.estNull(); }
    bool premiereGagne() const { return exempt() || (!score2.estNull() && score1.reel() > score2.reel()); }
};

/// The order of the matches of a round: as they were entered, or by second team, byes first.
enum class OrdreDuTour { Tirage, SecondeEquipe };

/// Pending matches of bracket 1 without the byes, launched ones first.
[[nodiscard]] std::vector<Rencontre> RencontresAttendues(store::Database &base, qint64 concours);
/// Played matches of bracket 1, all byes among them, the last round first.
[[nodiscard]] std::vector<Rencontre> RencontresJouees(store::Database &base, qint64 concours);
/// All matches of bracket 1, round after round as they were drawn.
[[nodiscard]] std::vector<Rencontre> RencontresDuTableau1(store::Database &base, qint32 concours);
/// Matches of one team, round after round.
[[nodiscard]] std::vector<Rencontre> RencontresDeLEquipe(store::Database &base, qint32 concours, qint64 equipe);
/// Matches of one round in all brackets.
[[nodiscard]] std::vector<Rencontre> RencontresDuTour(store::Database &base, qint32 concours, int tour,
                                                      OrdreDuTour ordre);
/// The match that a team's number calls up: the first that waits for its result, or else the latest.
[[nodiscard]] std::optional<Rencontre> RencontreAppelee(store::Database &base, qint64 concours, qint64 equipe);
/// A match of bracket 2 between the two teams, or one that has the first for its second team; numbers as typed.
[[nodiscard]] std::optional<Rencontre> RencontreDuTableau2(store::Database &base, const QString &concours, int tour,
                                                           const QString &equipe1, const QString &equipe2);

/// Matches of a competition, in all brackets.
[[nodiscard]] qint64 CompteRencontres(store::Database &base, qint32 concours);
/// Matches of a round; of bracket \p tableau alone where it is given.
[[nodiscard]] qint64 CompteDuTour(store::Database &base, qint32 concours, int tour,
                                  std::optional<int> tableau = std::nullopt);
/// Matches of a round that are no byes, in all brackets.
[[nodiscard]] qint64 CompteOpposees(store::Database &base, qint32 concours, int tour);
/// Results of bracket 1 still to come, over all rounds or in one.
[[nodiscard]] qint64 CompteAttendus(store::Database &base, qint32 concours, std::optional<int> tour = std::nullopt);

/// Turns round whether a match, by the numbers of its teams as shown, has been launched; false when there is none.
[[nodiscard]] bool BasculeLancee(store::Database &base, qint32 concours, int tableau, const QString &equipe1,
                                 const QString &equipe2);

} // namespace donnees
