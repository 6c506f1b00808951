#include "commun/base_essai.h"
#include "commun/concours_en_base.h"
#include "donnees/clubs.h"
#include "donnees/equipes.h"
#include "donnees/rencontres.h"

#include <gtest/gtest.h>

using namespace donnees;

namespace {

class SalleDesDonnees : public testing::Test
{
protected:
    void membre(qint32 concours, int equipe, int place, const QString &licence, const QString &club)
    {
        poseMembre(base, concours, equipe, place, {.nom = {}, .prenom = {}, .licence = licence, .club = club});
    }
    void rencontre(int tableau, int tour, int equipe1, int equipe2, const QString &score1, const QString &score2)
    {
        base.Execute(u"insert into scores (concours, tableau, tour, equipe_1, equipe_2, score_1, score_2) "
                     u"values (1, %1, %2, %3, %4, %5, %6)"_qs.arg(tableau)
                         .arg(tour)
                         .arg(equipe1)
                         .arg(equipe2)
                         .arg(score1, score2));
    }

    BaseEssai essai;
    store::Database base = essai.ouvre();
};

} // namespace

TEST_F(SalleDesDonnees, UnClubPanacheLEstDansTouteCasse)
{
    for (const QStringView club : {u"*Panachée", u"*PANACHÉE", u"*panachée"})
        EXPECT_TRUE(EstPanache(club)) << club.toUtf8().constData();
    for (const QStringView club : {u"", u"Panachée", u"*Panachée 2"})
        EXPECT_FALSE(EstPanache(club)) << club.toUtf8().constData();
}

TEST_F(SalleDesDonnees, LaFicheDUnJoueurPasseAvantSesEquipes)
{
    membre(1, 4, 0, u"L1"_qs, u"Ancien"_qs);
    membre(0, 9, 0, u"L1"_qs, u"Nouveau"_qs);
    membre(1, 4, 1, u"L2"_qs, u"Sète"_qs);
    EXPECT_EQ(JoueurDeLicence(base, u"l1"_qs)->club, u"Nouveau"_qs);
    EXPECT_EQ(JoueurDeLicence(base, u"L2"_qs)->club, u"Sète"_qs);
    EXPECT_FALSE(JoueurDeLicence(base, u"L'3"_qs));
    EXPECT_FALSE(JoueurConnu(base, u"L2"_qs));
    EXPECT_EQ(MembreEngage(base, u"L2"_qs, u"000001"_qs)->place, 1);
    const ClubsConnus clubs(base, 1);
    EXPECT_EQ(clubs.club(u"L1"_qs), u"Nouveau"_qs);
    EXPECT_FALSE(clubs.club(u"L2"_qs));
}

TEST_F(SalleDesDonnees, UneEquipePartieMontreCelleQuiSuit)
{
    membre(1, 2, 0, u"A"_qs, u"Deux"_qs);
    membre(1, 4, 1, u"B"_qs, u"Autre"_qs);
    membre(1, 4, 0, u"C"_qs, u"Quatre"_qs);
    EXPECT_EQ(PremierMembre(base, 1, 2)->club, u"Deux"_qs);
    EXPECT_EQ(PremierMembre(base, 1, 3)->club, u"Quatre"_qs);
    EXPECT_FALSE(PremierMembre(base, 1, 5));
    EXPECT_TRUE(MembresDeLEquipe(base, 1, 3).empty());
}

TEST_F(SalleDesDonnees, LaRencontreAppeleeAttendOuEstLaDerniere)
{
    rencontre(1, 1, 1, 2, u"13"_qs, u"5"_qs);
    rencontre(1, 2, 3, 1, u"null"_qs, u"null"_qs);
    rencontre(1, 3, 1, 0, u"null"_qs, u"null"_qs);
    rencontre(1, 2, 4, 2, u"13"_qs, u"7"_qs);
    EXPECT_EQ(RencontreAppelee(base, 1, 1)->equipe1, 3);
    EXPECT_EQ(RencontreAppelee(base, 1, 2)->tour, 2);
    EXPECT_FALSE(RencontreAppelee(base, 1, 5));
    // A bye is played from the start, and never awaited.
    EXPECT_EQ(RencontresJouees(base, 1).front().tour, 3);
    EXPECT_EQ(RencontresAttendues(base, 1).size(), 1u);
    EXPECT_EQ(CompteAttendus(base, 1), 1);
    EXPECT_EQ(CompteAttendus(base, 1, 1), 0);
}
