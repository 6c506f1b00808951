#include "salle_resultats.h"

using store::Instruction;

void SalleResultats::ouvre(int equipes, bool repeche)
{
    ASSERT_TRUE(prog.demarre());
    inscrit(equipes, repeche);
    prog.ouvre(u"f_resultats"_qs);
    ASSERT_TRUE(prog.formulaires().estVisible(u"EResultats"_qs));
}

qint32 SalleResultats::inscrit(int equipes, bool repeche)
{
    return poseConcours(prog.base(),
                        {.type = u"2 - Triplettes"_qs, .repeche = repeche, .equipes = equipesDeClubs(equipes)});
}

void SalleResultats::rouvre()
{
    prog.ouvre(u"f_accueil"_qs);
    prog.ouvre(u"f_resultats"_qs);
}

void SalleResultats::joueTour()
{
    for (const MatchEssai &match : matchs(prog.partage().TourCourant)) {
        if (!match.score1)
            prog.tape(u"%1\n13\n6\n"_qs.arg(match.equipe1));
    }
}

QString SalleResultats::champs()
{
    return QStringList{texte(u"Equipe1"_qs), texte(u"Equipe2"_qs), texte(u"Score1"_qs), texte(u"Score2"_qs)}.join(u' ');
}

std::vector<MatchEssai> SalleResultats::matchs(int tour)
{
    std::vector<MatchEssai> lus;
    Instruction lecture(prog.base().native(),
                        u"select equipe_1, equipe_2, score_1, score_2, score_reel from scores "
                        u"where concours = ? and tour = ? and equipe_2 > 0 order by rowid"_qs);
    lecture.lie(1, prog.partage().ConcoursCourant);
    lecture.lie(2, tour);
    const auto score = [&](int colonne) {
        return lecture.estNulle(colonne) ? std::nullopt : std::optional(int(lecture.nombre(colonne)));
    };
    while (lecture.avance())
        lus.push_back({int(lecture.nombre(0)), int(lecture.nombre(1)), score(2), score(3), lecture.nombre(4) != 0});
    return lus;
}

int SalleResultats::tourpri()
{
    const QString sql = u"select tourpri from concours where concours = %1"_qs.arg(prog.partage().ConcoursCourant);
    return int(prog.valeur(sql).entier());
}
