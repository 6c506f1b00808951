#include "inscription_essai.h"

namespace {

/// Teams 1 to 3 are in, round 1 is drawn.
class Retard : public Inscription
{
protected:
    void apresTirage(int exempte)
    {
        club(u"DUP"_qs);
        m_concours = ouvre(u"1 - Doublettes"_qs, 3);
        ASSERT_EQ(m_concours, 1);
        rencontre(1, 1, 1, 2);
        if (exempte > 0)
            rencontre(1, 2, exempte, 0);
    }
    QStringList rencontres()
    {
        return lignes(u"select rencontre, equipe_1, equipe_2, score_1, score_2, tableau, tour from scores "
                      "where concours = 1 order by rencontre"_qs);
    }

    qint32 m_concours = 0;
};

TEST_F(Retard, TheLatecomerMeetsTheFreeTeam)
{
    apresTirage(3);
    execute(u"update scores set score_1 = 13 where equipe_2 = 0"_qs);
    boites.attend(u"La rencontre 4 contre 3 peut être lancée"_qs);
    inscrit(u"TARD"_qs, u"DUP"_qs);
    EXPECT_EQ(boites.titre(), u"Torvik"_qs);
    EXPECT_EQ(rencontres(), QStringList({u"1|1|2|Null|Null|1|1"_qs, u"2|3|4|Null|Null|1|1"_qs}));
    EXPECT_EQ(numeros(1).last(), u"4"_qs);
    EXPECT_EQ(texte(E, u"Equipe"_qs), u"00005"_qs);
}

TEST_F(Retard, WithoutAFreeTeamTheOperatorDecides)
{
    apresTirage(0);
    const QString question = u"Le concours est déjà lancé, \r\n"_qs + partage().mes(126);
    boites.attend(question, ReponseBoite::Non);
    inscrit(u"TARD"_qs, u"DUP"_qs);
    EXPECT_EQ(boites.titre(), u"Torvik"_qs);
    EXPECT_EQ(rencontres().size(), 1);
    EXPECT_EQ(numeros(1).last(), u"3"_qs);
    EXPECT_EQ(texte(E, u"NomJ_0"_qs), u"TARD"_qs);

    boites.attend(question, ReponseBoite::Oui);
    clic(E, u"Okc"_qs);
    EXPECT_EQ(rencontres(), QStringList({u"1|1|2|Null|Null|1|1"_qs, u"2|4|0|Null|Null|1|1"_qs}));
    EXPECT_EQ(numeros(1).last(), u"4"_qs);

    // The free match that the first latecomer got is the place of the next one.
    boites.attend(u"La rencontre 5 contre 4 peut être lancée"_qs);
    inscrit(u"PLUS TARD"_qs, u"DUP"_qs);
    EXPECT_EQ(rencontres().last(), u"2|4|5|Null|Null|1|1"_qs);
}

TEST_F(Retard, AfterAResultNoTeamComesInButOneCanBeCorrectedAndRemoved)
{
    apresTirage(3);
    execute(u"update scores set score_1 = 13, score_2 = 5 where rencontre = 1"_qs);
    boites.attend(partage().mes(83));
    inscrit(u"TARD"_qs, u"DUP"_qs);
    EXPECT_EQ(numeros(1).last(), u"3"_qs);
    EXPECT_EQ(nombre(u"select count(*) from evolution"_qs), 3);
    EXPECT_EQ(rencontres().size(), 2);

    execute(u"update evolution set principal = 2 where equipe = 1"_qs);
    appelle(u"1"_qs);
    remplit(E, u"NomJ_0"_qs, u"CHANGÉ"_qs);
    clic(E, u"Okc"_qs);
    EXPECT_EQ(equipe(1, 1).first(), u"0|CHANGÉ|P0|L1-0|DUP|A|1"_qs);
    EXPECT_EQ(nombre(u"select principal from evolution where equipe = 1"_qs), 1);

    appelle(u"2"_qs);
    clic(E, u"SupprimerC"_qs);
    EXPECT_EQ(numeros(1), QStringList({u"1"_qs, u"3"_qs}));
    EXPECT_EQ(rencontres().first(), u"1|1|2|13|5|1|1"_qs);
}

TEST_F(Retard, AFailureLeavesTheFreeTeamFree)
{
    apresTirage(3);
    abime(u"create trigger panne before insert on equipes when new.doublon = 1 "
          "begin select raise(abort, 'panne'); end"_qs);
    boites.attend(u"L'équipe 4 n'a pas pu être enregistrée"_qs);
    inscrit(u"TARD"_qs, u"DUP"_qs);
    EXPECT_EQ(rencontres().last(), u"2|3|0|Null|Null|1|1"_qs);
    EXPECT_EQ(numeros(1).last(), u"3"_qs);
    EXPECT_EQ(nombre(u"select count(*) from evolution"_qs), 3);

    abime(u"drop trigger panne"_qs);
    boites.attend(u"La rencontre 4 contre 3 peut être lancée"_qs);
    clic(E, u"Okc"_qs);
    EXPECT_EQ(rencontres().last(), u"2|3|4|Null|Null|1|1"_qs);
}

} // namespace
