#include "commun/affiche.h"
#include "commun/concours_en_base.h"
#include "commun/programme_pilote.h"
#include "feuilles_essai.h"
#include "noms/apres_tirage.h"

#include <QTableWidget>

#include <set>

namespace {

class Rapport : public testing::Test
{
protected:
    /// Four teams, three rounds of which the last repeats two matches and could repeat none.
    void SetUp() override
    {
        prog.avecCopies();
        ASSERT_TRUE(prog.demarre());
        concours = poseConcours(prog.base(),
                                {.type = u"1 - Doublettes"_qs,
                                 .repeche = true,
                                 .equipes = {{1, u"A"_qs}, {2, u"A"_qs}, {3, u"B"_qs}, {4, u"C"_qs}}});
        poseRencontres(prog.base(), concours,
                       {{.tour = 1, .rencontre = 1, .equipe1 = 1, .equipe2 = 2, .score1 = 5, .score2 = 5},
                        {.tour = 1, .rencontre = 2, .equipe1 = 3, .equipe2 = 4, .score1 = 5, .score2 = 5},
                        {.tour = 2, .equipe1 = 1, .equipe2 = 2},
                        {.tour = 2, .equipe1 = 3, .equipe2 = 4}});
        prog.ouvre(u"f_resultats"_qs);
        prog.clique(u"EResultats"_qs, u"manquants"_qs);
        prog.touche(Qt::Key_F7);
        QApplication::processEvents();
        QTest::qWait(20);
    }

    QString remarque(int ligne) const
    {
        auto *paires = prog.controle<QTableWidget>(R, u"Paires"_qs);
        return paires->item(ligne, paires->columnCount() - 1)->text();
    }
    QString bilan() const { return prog.texte(R, u"Bilan"_qs); }
    QStringList tour(int lequel)
    {
        QStringList paires;
        store::Recordset scores =
            prog.base().OpenRecordset(u"select * from scores where tour = %1 order by equipe_1"_qs.arg(lequel),
                                      store::dbOpenSnapshot);
        for (; !scores.Eof(); scores.MoveNext())
            paires += scores[u"equipe_1"].texte() + u'-' + scores[u"equipe_2"].texte();
        return paires;
    }
    void clique(const QString &bouton) { prog.clique(R, bouton); }

    inline static const QString R = u"RapportTirage"_qs;
    ProgrammePilote prog;
    qint32 concours = 0;
};

} // namespace

TEST_F(Rapport, TheRoundIsToldAndDrawnAnewBehindACopyUntilAResultIsIn)
{
    EXPECT_EQ(remarque(0), u"déjà rencontrées au tour 1 (évitable), même club (évitable)"_qs);
    EXPECT_EQ(remarque(1), u"déjà rencontrées au tour 1 (évitable)"_qs);
    EXPECT_TRUE(bilan().startsWith(u"Tour 2 : 2 rencontres déjà jouées, 1 rencontre d'un même club.\n"_qs));
    EXPECT_TRUE(bilan().contains(u"une autre répartition aurait 0 défaut(s) au lieu de 2"_qs));

    const QStringList avant = tour(2);
    prog.boites.attend(u"Le meilleur de"_qs, ReponseBoite::Non);
    clique(u"Meilleur"_qs);
    EXPECT_EQ(tour(2), avant);
    prog.boites.attend(u"Refaire le tirage du tour 2 ?"_qs, ReponseBoite::Non);
    clique(u"Refaire"_qs);
    EXPECT_EQ(tour(2), avant);

    prog.boites.attend(u"Le tirage actuel : 2 rencontres déjà jouées"_qs, ReponseBoite::Oui);
    clique(u"Meilleur"_qs);
    EXPECT_NE(tour(2), avant);
    EXPECT_TRUE(bilan().contains(u"Tour 2 : 0 rencontre déjà jouée, 0 rencontre d'un même club."_qs))
        << bilan().toStdString();
    EXPECT_TRUE(bilan().contains(u"Le tirage d'avant : 2 rencontres déjà jouées, 1 rencontre d'un même club."_qs));
    const QDir copies(prog.dossier() + u"/sauvegardes"_qs);
    EXPECT_EQ(copies.entryList({u"*-tirage.mdb"_qs}, QDir::Files).size(), 1);
    EXPECT_EQ(prog.partage().TourCourant, 2);

    ASSERT_TRUE(QDir(copies).removeRecursively());
    prog.verifieSansCopie([this] { clique(u"Refaire"_qs); }, u"Refaire le tirage du tour 2 ?"_qs);
    prog.base().Execute(u"update scores set score_1 = 13, score_2 = 2 where tour = 2");
    prog.boites.attend(u"Un résultat de ce tour est saisi"_qs);
    clique(u"Refaire"_qs);
    EXPECT_FALSE(prog.controle(R, u"Refaire"_qs)->isEnabled());
}

TEST_F(Rapport, ItOpensBehindADrawOnlyWhenAskedToAndWithSomethingToTell)
{
    prog.touche(Qt::Key_Escape);
    apresTirage(prog.formulaires()).traite();
    EXPECT_FALSE(prog.formulaires().estChargee(R));
    apresTirage(prog.formulaires()).montreRapport = true;
    apresTirage(prog.formulaires()).traite();
    EXPECT_TRUE(prog.formulaires().estVisible(R));
    EXPECT_TRUE(prog.controle<QAbstractButton>(R, u"Apres_tirage"_qs)->isChecked());
    prog.decharge(NomForme(R));
    prog.partage().TourCourant = 1;
    apresTirage(prog.formulaires()).traite();
    EXPECT_TRUE(prog.formulaires().estChargee(R)) << "round 1 has a pair of one club";
    prog.decharge(NomForme(R));
    prog.base().Execute(u"update equipes set societe = 'Z' where equipe = 1");
    apresTirage(prog.formulaires()).traite();
    EXPECT_FALSE(prog.formulaires().estChargee(R));
}

TEST_F(Rapport, ASheetTellsTheRemarksAndEightSlipsStandOnASheet)
{
    std::vector<Pages> documents;
    prog.boites.imprimante = [&] { return std::make_unique<DestinationGardee>(documents); };
    clique(u"Imprimer"_qs);
    ASSERT_EQ(documents.size(), 1U);
    EXPECT_NE(trouve(documents[0][0], u"Rapport du tirage"_qs), nullptr);
    EXPECT_NE(trouve(documents[0][0], u"déjà rencontrées au tour 1 (évitable), même club (évitable)"_qs), nullptr);

    std::vector<moteur::EquipeInscrite> equipes;
    std::vector<moteur::Partie> parties;
    for (int i = 1; i <= 9; ++i) {
        equipes.insert(equipes.end(), {{100 + i, u"Club %1"_qs.arg(i)}, {200 + i, u"Autre %1"_qs.arg(i)}});
        parties.push_back({.tour = 1, .rencontre = i, .equipe1 = 100 + i, .equipe2 = i == 9 ? 0 : 200 + i});
    }
    prog.partage().ConcoursCourant = poseConcours(prog.base(), {.equipes = equipes});
    poseRencontres(prog.base(), prog.partage().ConcoursCourant, parties);
    prog.partage().TourCourant = 1;
    prog.formulaires().forme(R)->Rafraichir();
    clique(u"Fiches"_qs);
    ASSERT_EQ(documents.size(), 2U);
    const Pages &fiches = documents[1];
    ASSERT_EQ(fiches.size(), 2U);
    std::set<std::pair<int, int>> places;
    for (int i = 1; i <= 8; ++i) {
        const Dessin *premiere = trouve(fiches[0], QString::number(100 + i));
        const Dessin *seconde = trouve(fiches[0], QString::number(200 + i));
        ASSERT_TRUE(premiere != nullptr && seconde != nullptr) << i;
        const auto fiche = [](const Dessin &dessin) {
            return std::pair(dessin.x1 * 2 / papierA4.width(), dessin.y1 * 4 / papierA4.height());
        };
        EXPECT_EQ(fiche(*premiere), fiche(*seconde));
        places.insert(fiche(*premiere));
    }
    EXPECT_EQ(places.size(), 8U);
    EXPECT_NE(trouve(fiches[1], u"109"_qs), nullptr);
    EXPECT_NE(trouve(fiches[1], u"exempte"_qs), nullptr);
    EXPECT_EQ(trouve(fiches[1], u"209"_qs), nullptr);
}
