#include "donnees/rencontres.h"

#include "donnees/requetes.h"

using store::Database;
using store::Recordset;

namespace donnees {

namespace {

Rencontre lit(const Recordset &ligne)
{
    return {.tour = int(ligne[u"tour"].entierOu(0)),
            .equipe1 = ligne[u"equipe_1"].entierOu(0),
            .equipe2 = ligne[u"equipe_2"].entierOu(0),
            .score1 = ligne[u"score_1"],
            .score2 = ligne[u"score_2"],
            .scoreReel = Oui(ligne[u"score_reel"]),
            .lancee = Oui(ligne[u"lancee"]),
            .repechage = int(ligne[u"repechage"].entierOu(0))};
}

std::vector<Rencontre> litToutes(Database &base, const QString &suite)
{
    std::vector<Rencontre> rencontres;
    Recordset scores = base.OpenRecordset(u"select * from scores where "_qs + suite, store::dbOpenSnapshot);
    for (; !scores.Eof(); scores.MoveNext())
        rencontres.push_back(lit(scores));
    return rencontres;
}

std::optional<Rencontre> litPremiere(Database &base, const QString &suite)
{
    const Recordset scores = base.OpenRecordset(u"select * from scores where "_qs + suite, store::dbOpenSnapshot);
    return scores.Eof() ? std::nullopt : std::optional(lit(scores));
}

qint64 compte(Database &base, const QString &champ, const QString &condition)
{
    return ValeurUnique(base, u"select count(%1) as nbe from scores where "_qs.arg(champ) + condition).entier();
}

} // namespace

std::vector<Rencontre> RencontresAttendues(Database &base, qint64 concours)
{
    // Launched matches first: yes stands below no in the file.
    std::vector<Rencontre> rencontres =
        litToutes(base,
                  u"tableau = 1 and isnull(score_1) and concours = %1 order by lancee, tour, Equipe_1"_qs.arg(
                      concours));
    std::erase_if(rencontres, [](const Rencontre &rencontre) { return rencontre.exempt(); });
    return rencontres;
}

std::vector<Rencontre> RencontresJouees(Database &base, qint64 concours)
{
    return litToutes(base,
                     u"tableau = 1 and (not isnull(score_1) or Equipe_2=0) and concours = %1 "
                     u"order by tour desc, Equipe_1"_qs.arg(concours));
}

std::vector<Rencontre> RencontresDuTableau1(Database &base, qint32 concours)
{
    std::vector<Rencontre> rencontres;
    store::Instruction lecture(base.native(),
                               u"select tour, equipe_1, equipe_2, score_1, score_2, score_reel, lancee, repechage "
                               u"from scores where concours = ? and tableau = 1 order by tour, rowid"_qs);
    lecture.lie(1, concours);
    while (lecture.avance())
        rencontres.push_back({.tour = int(lecture.nombre(0)),
                              .equipe1 = lecture.nombre(1),
                              .equipe2 = lecture.nombre(2),
                              .score1 = lecture.valeur(3),
                              .score2 = lecture.valeur(4),
                              .scoreReel = lecture.nombre(5) != 0,
                              .lancee = lecture.nombre(6) != 0,
                              .repechage = int(lecture.nombre(7))});
    return rencontres;
}

std::vector<Rencontre> RencontresDeLEquipe(Database &base, qint32 concours, qint64 equipe)
{
    return litToutes(base,
                     u"concours=%1 and (equipe_1 = %2 or equipe_2 = %2) order by tour"_qs.arg(concours).arg(equipe));
}

std::vector<Rencontre> RencontresDuTour(Database &base, qint32 concours, int tour, OrdreDuTour ordre)
{
    return litToutes(base,
                     u"concours = %1 and tour = %2"_qs.arg(concours).arg(tour)
                         + (ordre == OrdreDuTour::SecondeEquipe ? u" order by equipe_2"_qs : QString()));
}

std::optional<Rencontre> RencontreAppelee(Database &base, qint64 concours, qint64 equipe)
{
    const QString deLEquipe = u"concours=%1 and (equipe_1=%2 or equipe_2=%2)"_qs.arg(concours).arg(equipe);
    const std::optional<Rencontre> attendue =
        litPremiere(base, deLEquipe + u" and ((equipe_2<>0) and isnull(score_1) and isnull(score_2))"_qs);
    return attendue ? attendue : litPremiere(base, deLEquipe + u"  order by tableau desc, tour desc"_qs);
}

std::optional<Rencontre> RencontreDuTableau2(Database &base, const QString &concours, int tour, const QString &equipe1,
                                             const QString &equipe2)
{
    constexpr int tableau = 2;
    Recordset scores = base.OpenRecordset(u"scores", store::dbOpenTable);
    scores.Index(u"Equipes");
    scores.Seek(u"=", {concours, tableau, tour, equipe1, equipe2});
    if (scores.NoMatch()) {
        scores.Index(u"EquipeKey2");
        scores.Seek(u"=", {concours, tableau, tour, equipe1});
    }
    return scores.NoMatch() ? std::nullopt : std::optional(lit(scores));
}

qint64 CompteRencontres(Database &base, qint32 concours)
{
    return compte(base, u"equipe_1"_qs, u"concours = %1"_qs.arg(concours));
}

qint64 CompteDuTour(Database &base, qint32 concours, int tour, std::optional<int> tableau)
{
    return compte(base, u"equipe_1"_qs,
                  u"concours = %1"_qs.arg(concours) + (tableau ? u" and tableau = %1"_qs.arg(*tableau) : QString())
                      + u" and tour = %1"_qs.arg(tour));
}

qint64 CompteOpposees(Database &base, qint32 concours, int tour)
{
    return compte(base, u"equipe_2"_qs, u"concours=%1 and tour=%2 and equipe_2>0"_qs.arg(concours).arg(tour));
}

qint64 CompteAttendus(Database &base, qint32 concours, std::optional<int> tour)
{
    return compte(base, u"equipe_1"_qs,
                  u"concours = %1 and Tableau = 1 and isnull(score_1) and Equipe_2 > 0"_qs.arg(concours)
                      + (tour ? u" and tour = %1"_qs.arg(*tour) : QString()));
}

bool BasculeLancee(Database &base, qint32 concours, int tableau, const QString &equipe1, const QString &equipe2)
{
    return base.Execute(u"update scores set lancee = not lancee where concours = %1 and tableau=%2 and equipe_1= %3 "
                        u"and equipe_2 = %4"_qs.arg(concours)
                            .arg(tableau)
                            .arg(equipe1, equipe2))
        > 0;
}

} // namespace donnees
