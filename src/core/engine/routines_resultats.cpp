#include "engine/routines_resultats.h"

namespace {

constexpr int tableau = 1;

QString duConcours(const Partage &partage)
{
    return u" where concours=%1"_qs.arg(partage.ConcoursCourant);
}

/// Takes away the matches that \p lesquels tells, and sets the round that the store has.
void annule(Partage &partage, const QString &lesquels, int tourpri)
{
    partage.BaseDonnees.EcritEnGroupe([&] {
        partage.BaseDonnees.Execute(u"delete * from scores%1 and tableau=%2"_qs.arg(duConcours(partage)).arg(tableau)
                                    + lesquels);
        partage.BaseDonnees.Execute(u"update concours set tourpri=%1"_qs.arg(tourpri) + duConcours(partage));
    });
}

} // namespace

bool EnregistreScore(Partage &partage, const ScoreSaisi &saisi)
{
    store::Recordset scores = partage.BaseDonnees.OpenRecordset(u"scores", store::dbOpenTable);
    scores.Index(u"Equipes");
    scores.Seek(u"=", {saisi.concours, tableau, partage.TourCourant, saisi.equipe1, saisi.equipe2});
    if (scores.NoMatch())
        return false;
    scores.Edit();
    scores[u"score_reel"] = saisi.ScoreReel;
    scores[u"score_1"] = saisi.score1;
    scores[u"score_2"] = saisi.score2;
    scores.Update();
    return true;
}

void AnnuleTour(Partage &partage)
{
    annule(partage, u" and tour=%1"_qs.arg(partage.TourCourant), partage.TourCourant - 2);
    --partage.TourCourant;
}

void AnnuleTirage(Partage &partage)
{
    annule(partage, {}, 0);
    partage.TourCourant = 0;
}
