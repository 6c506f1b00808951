#include "commun/base_essai.h"

#include <gtest/gtest.h>

using namespace store;

namespace {

class Dialecte : public testing::Test
{
protected:
    Dialecte()
    {
        base.Execute(u"insert into concours (lieu, type) values ('L''Étoile; d''Aÿ', '1 - Doublettes')");
        base.Execute(u"insert into scores (concours, tableau, tour, Equipe_1, Equipe_2) values (1, 1, 1, 3, 4)");
        base.Execute(u"insert into scores (concours, tableau, tour, Equipe_1, Equipe_2, score_1, score_2) "
                     u"values (1, 1, 1, 1, 0, 13, 7)");
        base.Execute(
            u"insert into equipes (concours, equipe, nom, prenom, licence) values (1, 1, 'Été ', ' Zoé', '7')");
        base.Execute(u"insert into [catégories] (lang, libelle) values (1, 'Seniors')");
        base.Execute(u"insert into evolution (concours, equipe, principal) values (1, 1, 1)");
        base.Execute(u"insert into traduc (numero, actif) values (1, 0)");
        base.Execute(u"insert into traduc (numero, actif) values (2, true)");
    }

    Valeur seul(QStringView sql) { return base.OpenRecordset(sql, dbOpenSnapshot)[0].valeur(); }

    BaseEssai essai;
    Database base = essai.ouvre();
};

} // namespace

TEST_F(Dialecte, UnderstandsTheStatementsOfTheProgram)
{
    EXPECT_EQ(seul(u"select count(equipe_1) as nbe from SCORES where concours = 000001 and isnull(score_1) and "
                   u"Equipe_2 > 0")
                  .entier(),
              1);
    EXPECT_EQ(seul(u"select count(tour) from scores where tableau = 1 and (not isnull(score_1) and not "
                   u"isnull(score_2)) and concours=1")
                  .entier(),
              1);
    EXPECT_EQ(seul(u"select equipe from equipes where trim([nom]) + left(trim([prenom]),1) like 'étéz'").entier(), 1);
    EXPECT_EQ(seul(u"select equipe + 1 from [Equipes] where [concours] = 1").entier(), 2);
    EXPECT_EQ(seul(u"select lieu from concours where lieu = 'l''étoile; D''AŸ'").texte(), u"L'Étoile; d'Aÿ");
    EXPECT_EQ(seul(u"select * from [CATÉGORIES] where lang = 1 order by libelle").entier(), 1);
    EXPECT_EQ(seul(u"select * from evolution where (principal >= 1 and concours = 1);").entier(), 1);
    EXPECT_EQ(seul(u"select * from [traduc] where actif=true").entier(), 2);
}

TEST_F(Dialecte, TogglesYesNoFields)
{
    const QString bascule = u"update scores set lancee = not lancee where equipe_1 = 3"_qs;
    for (const bool attendu : {true, false, true}) {
        EXPECT_EQ(base.Execute(bascule), 1);
        EXPECT_EQ(seul(u"select lancee from scores where equipe_1 = 3"), Valeur(attendu));
    }
}

TEST_F(Dialecte, RefusesWhatIsNoSingleStatement)
{
    const int avant = int(seul(u"select count(*) from scores").entier());
    for (const QStringView faux :
         {u"delete * from scores; delete * from concours", u"delete * from scores; concours",
          u"delete * from scores where lieu = 'O'Brien'", u"delete * from scores where concours = 1 -- 2'",
          u"delete * from scores where concours = 1x", u"", u";", u"delete * from scores where [concours = 1",
          u"delete * from scores where concours = ?"})
        EXPECT_THROW(base.Execute(faux), Erreur) << faux.toString().toStdString();
    EXPECT_EQ(seul(u"select count(*) from scores").entier(), avant);
}

TEST_F(Dialecte, SortsDistinctRowsAndKeyedTables)
{
    for (const int equipe : {12, 3, 25, 7})
        base.Execute(u"insert into equipes (concours, equipe) values (1, %1)"_qs.arg(equipe));
    base.Execute(u"insert into equipes (concours, equipe) values (1, 12)");
    QStringList vues;
    Recordset distinctes = base.OpenRecordset(u"SELECT distinct Concours, Equipe FROM [Equipes] Where [concours] = 1");
    for (; !distinctes.Eof(); distinctes.MoveNext())
        vues += distinctes[u"EQUIPE"].texte();
    EXPECT_EQ(vues.join(u' '), u"1 3 7 12 25");

    vues.clear();
    Recordset toutes = base.OpenRecordset(u"select * from equipes where concours = 1");
    for (; !toutes.Eof(); toutes.MoveNext())
        vues += toutes[u"equipe"].texte() + u'.' + toutes[u"doublon"].texte();
    EXPECT_EQ(vues.join(u' '), u"1.0 3.0 7.0 12.0 12.1 25.0");
}

TEST_F(Dialecte, CopiesOnlyTheRowsThatAKeyLetsThrough)
{
    base.Execute(u"insert into equipes (concours, equipe, engage) values (1, 1, 1)");
    base.Execute(
        u"INSERT INTO evolution(equipe, principal, complement, consolante, concours)  select equipe, 1 as E1 , "
        u"0 as E2, 0 as E3, 9 as e4 from equipes where concours= 000001 and (engage=1 or engage=0)");
    EXPECT_EQ(seul(u"select count(*) from evolution where concours = 9").entier(), 1);
    EXPECT_THROW(base.Execute(u"insert into evolution (concours, equipe) values (9, 1)"), Erreur);
}
