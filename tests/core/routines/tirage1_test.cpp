#include "salle.h"

#include "commun/contenu.h"
#include "commun/panne_ecriture.h"
#include "donnees/inscription.h"
#include "engine/routines_rapport.h"
#include "engine/routines_resultats.h"
#include "engine/routines_tirage.h"

#include <gtest/gtest.h>

#include <algorithm>

using moteur::Partie;

namespace {

class PremierTirage : public testing::Test
{
protected:
    void SetUp() override
    {
        autre = salle.inscrit({.equipes = equipes(8)});
        salle.clique();
        for (const qint32 numero : {autre, autre + 1}) {
            for (const QString &table : {u"tnequipes"_qs, u"tirages_pro"_qs})
                salle.native().executeScript(
                    u"insert into %1 (concours, tableau, equipe) values (%2, 1, 1), (%2, 2, 1)"_qs.arg(table).arg(
                        numero));
        }
        concours = salle.inscrit({.equipes = equipes(7)});
    }

    std::vector<moteur::EquipeInscrite> equipes(int nombre) { return equipesMelangees(nombre, {}, sort); }

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
    EXPECT_EQ(salle.clique().bilan.obstacle, ObstacleAuTirage::Aucun);
    const std::vector<Partie> tirees = salle.scores();
    const Partie &premiere = tirees.front();
    // One score alone is no result.
    salle.native().executeScript(
        u"update scores set score_1 = 13 where concours = %1 and rencontre = 1"_qs.arg(concours));
    EXPECT_EQ(ConfirmeTirage(salle.partage), ObstacleAuTirage::TirageSansResultat);
    salle.saisit(premiere.equipe1, premiere.equipe2, u"13"_qs, u"2"_qs);
    const std::vector<Partie> jouees = salle.scores();
    EXPECT_EQ(ConfirmeTirage(salle.partage), ObstacleAuTirage::ResultatsTombes);
    EXPECT_EQ(salle.scores(), jouees);
}

TEST_F(PremierTirage, RecommenceSeulementSurUnOui)
{
    salle.clique();
    const std::vector<Partie> tirees = salle.scores();
    const QStringList contenu = Contenu(salle.native());

    salle.partage.TourCourant = 0;
    EXPECT_EQ(salle.clique(false).bilan.obstacle, ObstacleAuTirage::TirageSansResultat);
    EXPECT_EQ(Contenu(salle.native()), contenu);

    salle.clique(true);
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

TEST_F(PremierTirage, DejaTireNeTouchePasAuxRencontres)
{
    salle.clique();
    const std::vector<Partie> tirees = salle.scores();
    salle.native().executeScript(u"update concours set tourpri = 4"_qs);
    salle.partage.TourCourant = 4;
    EXPECT_FALSE(TirageTour1(salle.partage, 1));
    EXPECT_EQ(salle.tourpri(), 4) << "the operator is told first";
    PasseAuTour1(salle.partage);
    EXPECT_EQ(salle.scores(), tirees);
    EXPECT_EQ(salle.tourpri(), 1);
    EXPECT_EQ(salle.partage.TourCourant, 1);
    salle.choisit(autre);
    EXPECT_EQ(salle.tourpri(), 4);
}

/// A store that refuses any one of the rows of an act: the act has not been, and the next click carries it out.
class EcritureCoupee : public PremierTirage
{
protected:
    /// Cuts \p acte at each of its rows, then lets it pass.
    void coupe(const char *nom, const std::function<void()> &acte)
    {
        SCOPED_TRACE(nom);
        const QStringList avant = Contenu(salle.native());
        const qint16 tour = salle.partage.TourCourant;
        int rang = 0;
        for (bool passe = false; !passe; ++rang) {
            ASSERT_LT(rang, 200);
            for (const QString &facon : {u"rollback"_qs, u"abort"_qs}) {
                if (passe)
                    break;
                try {
                    const PanneEcriture panne(salle.native(), rang, facon);
                    acte();
                    passe = true;
                } catch (const store::Erreur &) {
                    EXPECT_TRUE(salle.native().horsTransaction());
                    ASSERT_EQ(Contenu(salle.native()), avant) << "row " << rang;
                    ASSERT_EQ(salle.partage.TourCourant, tour);
                }
            }
        }
        EXPECT_GT(rang, 2) << "several rows were to be refused";
        EXPECT_NE(Contenu(salle.native()), avant);
    }

    void joue()
    {
        for (const Partie &ligne : salle.scores(salle.partage.TourCourant)) {
            if (ligne.equipe2 > 0)
                salle.saisit(ligne.equipe1, ligne.equipe2, u"13"_qs, u"5"_qs);
        }
    }
};

TEST_F(EcritureCoupee, UnActeEstEntierOuNAPasEuLieu)
{
    const auto tire = [this] { salle.clique(); };
    coupe("first draw", tire);
    coupe("new draw", [this] { RefaitTirage(salle.partage); });
    EXPECT_EQ(salle.scores().size(), 4u);
    joue();
    const std::vector<Partie> tour1 = salle.scores(1);
    coupe("next round", tire);
    EXPECT_EQ(salle.scores(2).size(), 4u);
    EXPECT_EQ(salle.tourpri(), 2);
    coupe("cancelled round", [this] { AnnuleTour(salle.partage); });
    EXPECT_EQ(salle.scores(), tour1);
    EXPECT_EQ(salle.partage.TourCourant, 1);
    coupe("round drawn again", tire);
    coupe("cancelled draw", [this] { AnnuleTirage(salle.partage); });
    EXPECT_TRUE(salle.scores().empty());
    coupe("removed team", [this] { EXPECT_TRUE(donnees::RetireEquipe(salle.partage.BaseDonnees, concours, 2)); });

    // What the program kept is what the file holds: nothing was left in an open group.
    const QStringList contenu = Contenu(salle.native());
    salle.partage.BaseDonnees.Close();
    salle.partage.BaseDonnees = salle.base.ouvre();
    EXPECT_EQ(Contenu(salle.native()), contenu);
}

/// What is proposed is what the click would draw, and nothing is written before it is chosen.
TEST_F(EcritureCoupee, UnTourProposeEstCeluiQueLesReglesTirent)
{
    for (const int equipes : {7, 16}) {
        for (const bool repeche : {false, true}) {
            salle.inscrit({.repeche = repeche, .equipes = equipesMelangees(equipes, {.clubs = 3}, sort)});
            for (int tour = 1; tour <= 3; ++tour) {
                salle.clique();
                EXPECT_TRUE(PeutRefaireTour(salle.partage));
                const QStringList contenu = Contenu(salle.native(), u"tbclass"_qs);
                AleaFixe avant = salle.alea;
                const TourPropose propose = ProposeTour(salle.partage, tour);
                const std::vector<Partie> autres =
                    CherchePlusieursTours(salle.partage, 5, [](int faits) { return faits < 3; }).tour.parties;
                EXPECT_EQ(Contenu(salle.native(), u"tbclass"_qs), contenu);
                std::swap(avant, salle.alea);
                AnnuleTour(salle.partage);
                EXPECT_EQ(salle.clique().bilan.statut, propose.statut);
                EXPECT_EQ(salle.scores(tour), propose.parties);

                coupe("round replaced", [&] { RemplaceTour(salle.partage, autres); });
                EXPECT_EQ(salle.scores(tour), autres);
                EXPECT_EQ(salle.tourpri(), tour);
                joue();
                EXPECT_FALSE(PeutRefaireTour(salle.partage));
            }
        }
    }
}

} // namespace
