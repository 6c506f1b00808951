#include "concours_joue.h"
#include "salle.h"

#include "engine/routines_tirage.h"

#include <gtest/gtest.h>

#include <algorithm>

using moteur::Rencontre;

namespace {

const QString refus = u"informe : Tirage Impossible, Il y a déjà des résultats de tombés"_qs;
const QString question = u"demande : ATTENTION, le tirage a déjà été fait. Voulez vous recommencer?"_qs;

class PremierTirage : public testing::Test
{
protected:
    void SetUp() override
    {
        autre = salle.inscrit({.equipes = equipes(8)});
        LanceTourSuivant(salle.partage, salle.operateur);
        for (const qint32 numero : {autre, autre + 1}) {
            for (const QString &table : {u"tnequipes"_qs, u"tirages_pro"_qs})
                salle.native().executeScript(
                    u"insert into %1 (concours, tableau, equipe) values (%2, 1, 1), (%2, 2, 1)"_qs
                        .arg(table)
                        .arg(numero));
        }
        concours = salle.inscrit({.equipes = equipes(7)});
        salle.operateur = {};
    }

    std::vector<moteur::EquipeInscrite> equipes(int nombre) { return essai::inscrit(nombre, {}, sort); }

    qint64 lignes(const QString &table, qint32 numero)
    {
        return salle.nombre(u"select count(*) from %1 where concours = %2"_qs.arg(table).arg(numero));
    }

    Salle salle;
    std::mt19937 sort{1};
    qint32 autre = 0;
    qint32 concours = 0;
};

TEST_F(PremierTirage, RefuseDesQuUnResultatEstTombe)
{
    LanceTourSuivant(salle.partage, salle.operateur);
    const std::vector<Rencontre> tirees = salle.scores();
    const Rencontre &premiere = tirees.front();
    // One score alone is no result.
    salle.native().executeScript(
        u"update scores set score_1 = 13 where concours = %1 and rencontre = 1"_qs.arg(concours));
    ConfirmeTirage(salle.partage, salle.operateur);
    EXPECT_EQ(salle.operateur.dits, QStringList(question));
    salle.saisit(premiere.equipe1, premiere.equipe2, u"13"_qs, u"2"_qs);
    const std::vector<Rencontre> jouees = salle.scores();
    salle.operateur.reponse = true;
    ConfirmeTirage(salle.partage, salle.operateur);
    EXPECT_EQ(salle.operateur.dits, QStringList({question, refus}));
    EXPECT_EQ(salle.scores(), jouees);
}

TEST_F(PremierTirage, RecommenceSeulementSurUnOui)
{
    LanceTourSuivant(salle.partage, salle.operateur);
    const std::vector<Rencontre> tirees = salle.scores();
    const QByteArray empreinte = salle.empreinteSauf(concours);

    ConfirmeTirage(salle.partage, salle.operateur);
    EXPECT_EQ(salle.operateur.dits, QStringList(question));
    EXPECT_EQ(salle.scores(), tirees);
    EXPECT_EQ(salle.empreinteSauf(concours), empreinte);

    salle.operateur.reponse = true;
    ConfirmeTirage(salle.partage, salle.operateur);
    EXPECT_NE(salle.scores(), tirees);
    EXPECT_EQ(salle.scores().size(), tirees.size());
    EXPECT_EQ(salle.tourpri(), 1);
    // The two old draw tables lose this competition's bracket and nothing else.
    for (const QString &table : {u"tnequipes"_qs, u"tirages_pro"_qs}) {
        EXPECT_EQ(lignes(table, concours), 1);
        EXPECT_EQ(lignes(table, autre), 2);
    }
    EXPECT_EQ(lignes(u"scores"_qs, autre), 4);
}

TEST_F(PremierTirage, DejaTireLeDitEtNeTouchePasAuxRencontres)
{
    LanceTourSuivant(salle.partage, salle.operateur);
    const std::vector<Rencontre> tirees = salle.scores();
    salle.native().executeScript(u"update concours set tourpri = 4"_qs);
    salle.partage.TourCourant = 4;
    TirageTour1(salle.partage, salle.operateur, 1);
    EXPECT_EQ(salle.operateur.dits, QStringList(u"informe : Attention, le tirage du tour 1 a déjà été fait"_qs));
    EXPECT_EQ(salle.scores(), tirees);
    EXPECT_EQ(salle.tourpri(), 1);
    EXPECT_EQ(salle.partage.TourCourant, 1);
    salle.choisit(autre);
    EXPECT_EQ(salle.tourpri(), 4);
}

TEST_F(PremierTirage, SansEquipesOuPresque)
{
    for (int nombre : {0, 1}) {
        salle.inscrit({.equipes = equipes(nombre)});
        LanceTourSuivant(salle.partage, salle.operateur);
        EXPECT_TRUE(salle.scores().empty());
        EXPECT_EQ(salle.tourpri(), 1);
        EXPECT_EQ(salle.partage.TourCourant, 1);
        EXPECT_EQ(salle.operateur.dits, QStringList());
    }
}

TEST_F(PremierTirage, SeulesLesEquipesDuTableauPrincipalJouent)
{
    salle.native().executeScript(u"update evolution set principal = 0 where concours = %1 and equipe in (2, 5)"_qs
                                     .arg(concours));
    LanceTourSuivant(salle.partage, salle.operateur);
    std::vector<int> jouent;
    for (const Rencontre &ligne : salle.scores()) {
        jouent.push_back(ligne.equipe1);
        jouent.push_back(ligne.equipe2);
    }
    std::ranges::sort(jouent);
    EXPECT_EQ(jouent, (std::vector{0, 1, 3, 4, 6, 7}));
}

/// A store that refuses a row in the middle: what was written before it stays, the round does not count as drawn.
class EcritureCoupee : public PremierTirage
{
protected:
    void coupe(int tour, int apres, const QString &facon)
    {
        salle.native().executeScript(u"create temp trigger coupe before insert on main.scores when "
                                     u"(select count(*) from scores where concours = %1 and tour = %2) >= %3 "
                                     u"begin select raise(%4, 'disque'); end"_qs.arg(concours)
                                         .arg(tour)
                                         .arg(apres)
                                         .arg(facon));
    }
    void repare() { salle.native().executeScript(u"drop trigger coupe"_qs); }
};

TEST_F(EcritureCoupee, AuxToursSuivantsLeTourResteLAncien)
{
    LanceTourSuivant(salle.partage, salle.operateur);
    for (const Rencontre &ligne : salle.scores()) {
        if (ligne.equipe2 > 0)
            salle.saisit(ligne.equipe1, ligne.equipe2, u"13"_qs, u"5"_qs);
    }
    const std::vector<Rencontre> tour1 = salle.scores(1);
    coupe(2, 2, u"abort"_qs);
    EXPECT_THROW(LanceTourSuivant(salle.partage, salle.operateur), store::Erreur);
    EXPECT_EQ(salle.scores(2).size(), 2u);
    EXPECT_EQ(salle.scores(1), tour1);
    EXPECT_EQ(salle.tourpri(), 1);
    EXPECT_EQ(salle.partage.TourCourant, 1);
    repare();

    // A disk that fails for good undoes the whole group instead.
    salle.native().executeScript(u"delete from scores where tour = 2"_qs);
    coupe(2, 2, u"rollback"_qs);
    EXPECT_THROW(LanceTourSuivant(salle.partage, salle.operateur), store::Erreur);
    EXPECT_TRUE(salle.scores(2).empty());
    EXPECT_EQ(salle.tourpri(), 1);
    EXPECT_TRUE(salle.native().horsTransaction());
    repare();

    LanceTourSuivant(salle.partage, salle.operateur);
    EXPECT_EQ(salle.scores(2).size(), 4u);
    EXPECT_EQ(salle.tourpri(), 2);

    // What the program kept is what the file holds: nothing was left in an open group.
    salle.partage.BaseDonnees.Close();
    salle.partage.BaseDonnees = salle.base.ouvre();
    EXPECT_EQ(salle.scores(2).size(), 4u);
    EXPECT_EQ(salle.tourpri(), 2);
}

TEST_F(EcritureCoupee, LeNumeroDuTourManqueSeul)
{
    salle.native().executeScript(
        u"create temp trigger coupe before update on main.concours begin select raise(abort, 'disque'); end"_qs);
    EXPECT_THROW(LanceTourSuivant(salle.partage, salle.operateur), store::Erreur);
    EXPECT_EQ(salle.scores().size(), 4u);
    EXPECT_EQ(salle.tourpri(), 0);
    EXPECT_EQ(salle.partage.TourCourant, 0);
}

} // namespace
