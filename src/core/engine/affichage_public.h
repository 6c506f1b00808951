#pragma once

#include "donnees/rencontres.h"
#include "engine/classement.h"
#include "partage/partage.h"

#include <QHash>

#include <map>
#include <tuple>

namespace moteur {

/// The order in which the results of the run have been entered: the base keeps none.
class OrdreDesResultats
{
public:
    /// A result has been entered, or mended, just now.
    void note(qint32 concours, int tour, qint64 equipe1, qint64 equipe2);
    /// How late the result was entered, 0 for one that was there before.
    qint64 rang(qint32 concours, const donnees::Rencontre &rencontre) const;

private:
    std::map<std::tuple<qint32, int, qint64, qint64>, qint64> m_rangs;
    qint64 m_dernier = 0;
};

/// The matches of a competition as the public looks for them.
struct RencontresPubliques
{
    std::vector<donnees::Rencontre> tirage = {}; ///< Those of the last round, as they were drawn; byes last.
    std::vector<donnees::Rencontre> attendues = {}; ///< Of all rounds, launched ones first, without byes.
    std::vector<donnees::Rencontre> resultats = {}; ///< The one entered last comes first, without byes.
    int tour = 0; ///< The last round, 0 without any match.
};

/// Sorts the matches of the competition \p concours, which come round by round as they were drawn. Results that
/// \p ordre does not know stand behind those it knows, the last round first.
RencontresPubliques trieRencontres(std::vector<donnees::Rencontre> rencontres, qint32 concours,
                                   const OrdreDesResultats &ordre);

/// A row of the overall ranking.
struct PlacePublique
{
    std::optional<int> position; ///< Absent on a row that stands level with the one before it.
    LigneClassement ligne;
};

/// The overall ranking after \p parties, which come ordered by round, then by first team. It leaves the program's own
/// work table and its random numbers alone.
std::vector<PlacePublique> classementPublic(std::span<const Partie> parties);

} // namespace moteur

/// What the public is told of the current competition, read at once.
struct EtatPublic
{
    qint32 concours = 0; ///< 0 without a competition; nothing else is told then.
    QString date = {};
    QString lieu = {};
    int equipes = 0;
    int tours = 0; ///< Rounds that the competition will have, by the teams it has now.
    moteur::RencontresPubliques rencontres = {};
    std::vector<moteur::PlacePublique> classement = {};
    QHash<int, QString> clubs = {};

    /// All results are in, and no round is left to draw.
    bool termine() const { return rencontres.tour > 0 && rencontres.attendues.empty() && rencontres.tour >= tours; }
};

/// Reads the current competition; changes nothing.
EtatPublic LitEtatPublic(Partage &partage, const moteur::OrdreDesResultats &ordre);
