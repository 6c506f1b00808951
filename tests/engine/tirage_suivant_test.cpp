#include "concours_joue.h"
#include "modele_lent.h"

#include <gtest/gtest.h>

#include <algorithm>

using moteur::LigneClassement;
using moteur::LigneTirage;
using moteur::PaireJouee;
using moteur::StatutTirage;

namespace {

/// A field written by hand: a level, an order of draw and a club for each team, numbered from 1.
struct Champ
{
    std::vector<LigneClassement> classement;
    std::vector<QString> clubs;
    std::vector<PaireJouee> jouees;
    int tourpri = 2;
    bool repeche = false;

    void ajoute(int pt, int alea, const QString &club = u"A"_qs, std::optional<int> ga = 0)
    {
        classement.push_back({.equipe = int(classement.size()) + 1, .ga = ga, .pt = pt, .alea = alea});
        clubs.push_back(club);
    }

    moteur::TabTirage tire(const moteur::SigneTirage &signe = {})
    {
        return moteur::tireTourSuivant({classement, clubs, jouees, tourpri, repeche}, signe);
    }
};

using Paires = std::vector<std::pair<int, int>>;

Paires paires(const moteur::TabTirage &table)
{
    Paires resultat;
    for (const LigneTirage &ligne : table.lignes)
        resultat.emplace_back(ligne.equipe1, ligne.equipe2);
    return resultat;
}

/// \p nombre teams of one level that stand in the order of their numbers.
Champ unNiveau(int nombre)
{
    Champ champ;
    for (int i = 1; i <= nombre; ++i)
        champ.ajoute(1, 90000 - i);
    return champ;
}

TEST(TirageSuivant, SansEquipe)
{
    EXPECT_EQ(Champ{}.tire(), moteur::TabTirage{});
    Champ premier;
    premier.tourpri = 1;
    EXPECT_EQ(premier.tire(), moteur::TabTirage{});
}

TEST(TirageSuivant, UnNiveauSuitLAlea)
{
    Champ champ = unNiveau(5);
    champ.repeche = true;
    const std::vector<LigneClassement> avant = champ.classement;
    const moteur::TabTirage table = champ.tire();
    EXPECT_EQ(paires(table), (Paires{{1, 2}, {3, 4}, {5, 0}}));
    EXPECT_EQ(table.lignes.back(), (LigneTirage{.pt1 = 1, .equipe1 = 5, .club1 = u"A"_qs}));
    EXPECT_EQ(champ.classement, avant);
}

TEST(TirageSuivant, RemonteLaMeilleureDuNiveauImpair)
{
    for (const bool repeche : {false, true}) {
        Champ champ;
        champ.repeche = repeche;
        champ.ajoute(1, 50000);
        champ.ajoute(0, 80000, u"A"_qs, -9);
        champ.ajoute(0, 70000, u"A"_qs, -8);
        champ.ajoute(0, 60000, u"B"_qs, -2); // the best of its level
        champ.ajoute(0, 40000, u"A"_qs, std::nullopt);
        const moteur::TabTirage table = champ.tire();
        EXPECT_EQ(paires(table), (Paires{{1, 4}, {3, 2}, {5, 0}}));
        EXPECT_EQ(table.lignes[0].pt2, 1);
        EXPECT_EQ(table.lignes[0].club2, u"B"_qs);
        EXPECT_EQ(champ.classement[3].pt, 1);
        EXPECT_EQ(champ.classement[3].alea, 80000);
        EXPECT_EQ(champ.classement[1].alea, 60000);
        EXPECT_EQ(champ.classement[3].repechage, repeche ? std::optional(1) : std::nullopt);
        EXPECT_EQ(champ.classement[1].repechage, repeche ? std::optional(0) : std::nullopt);
    }
}

TEST(TirageSuivant, RemonteDejaEnTeteEtAleasEgaux)
{
    Champ champ;
    champ.repeche = true;
    champ.ajoute(1, 50000);
    champ.ajoute(0, 60000, u"A"_qs, -1);
    EXPECT_EQ(paires(champ.tire()), (Paires{{1, 2}}));
    EXPECT_EQ(champ.classement[1].repechage, 1); // it pulls itself up

    Champ egaux;
    egaux.ajoute(1, 50000);
    for (int i = 0; i < 6; ++i)
        egaux.ajoute(0, 60000, u"A"_qs, i == 4 ? 5 : -5);
    EXPECT_EQ(paires(egaux.tire()), (Paires{{1, 6}, {2, 3}, {4, 5}, {7, 0}}));
}

TEST(TirageSuivant, ClubsSeparesAuDeuxiemeTourSeulement)
{
    Champ champ;
    champ.tourpri = 1;
    for (const char16_t *club : {u"A", u"A", u"B", u"B", u"C", u"D"})
        champ.ajoute(1, 90000 - int(champ.clubs.size()), QString::fromUtf16(club));
    moteur::TabTirage table = champ.tire();
    // The exchange passes over the row after it, which it has mended too.
    EXPECT_EQ(paires(table), (Paires{{1, 4}, {3, 2}, {5, 6}}));
    EXPECT_EQ(table.statut, StatutTirage::RienASignaler);

    champ.tourpri = 2;
    table = champ.tire();
    EXPECT_EQ(paires(table), (Paires{{1, 2}, {3, 4}, {5, 6}}));
    EXPECT_EQ(table.statut, StatutTirage::RienASignaler);
}

TEST(TirageSuivant, RangeeApresUnEchangePasRegardee)
{
    Champ champ;
    champ.tourpri = 1;
    for (const char16_t *club : {u"D", u"E", u"A", u"A", u"B", u"B", u"F", u"G"})
        champ.ajoute(1, 90000 - int(champ.clubs.size()), QString::fromUtf16(club));
    const moteur::TabTirage table = champ.tire();
    EXPECT_EQ(paires(table), (Paires{{1, 4}, {3, 2}, {5, 6}, {7, 8}})); // 5 and 6 are both of club B
    EXPECT_EQ(table.statut, StatutTirage::RienASignaler);
}

TEST(TirageSuivant, ClubsDuNiveauDuBas)
{
    Champ champ;
    champ.tourpri = 1;
    champ.ajoute(1, 90000, u"A"_qs);
    champ.ajoute(1, 80000, u"B"_qs);
    for (const char16_t *club : {u"A", u"A", u"B", u"B", u"C", u"D"})
        champ.ajoute(0, 70000 - int(champ.clubs.size()), QString::fromUtf16(club));
    EXPECT_EQ(paires(champ.tire()), (Paires{{1, 2}, {3, 6}, {5, 4}, {7, 8}}));

    champ.clubs = {u"A"_qs, u"B"_qs, u"A"_qs, u"A"_qs, u"A"_qs, u"A"_qs, u"C"_qs, u"A"_qs};
    EXPECT_EQ(champ.tire().statut, StatutTirage::MemeClub);
}

TEST(TirageSuivant, PanacheesSeCroisentSiElleSontBienEcrites)
{
    for (const QString &club : {u"*Panachée"_qs, u"*PANACHÉE"_qs}) {
        Champ champ;
        champ.tourpri = 1;
        champ.ajoute(1, 90000, club);
        champ.ajoute(1, 80000, club);
        EXPECT_EQ(champ.tire().statut,
                  club == u"*Panachée"_qs ? StatutTirage::RienASignaler : StatutTirage::MemeClub);
    }
}

/// The team pulled up meets its own club and nobody can change with it: the next of its new level takes its place.
TEST(TirageSuivant, RemonteRemplaceeParLaSuivanteDeSonNiveau)
{
    Champ champ;
    champ.tourpri = 1;
    champ.repeche = true;
    champ.ajoute(1, 90000, u"B"_qs, 6);
    champ.ajoute(1, 80000, u"A"_qs, 5);
    champ.ajoute(1, 70000, u"A"_qs, 1);
    champ.ajoute(0, 60000, u"A"_qs, 2); // lost by no 13, and ahead of the winner 3
    champ.ajoute(0, 50000, u"C"_qs, -9);
    const moteur::TabTirage table = champ.tire();
    EXPECT_EQ(paires(table), (Paires{{1, 2}, {4, 3}, {5, 0}}));
    EXPECT_EQ(table.statut, StatutTirage::MemeClub); // behind team 3 there is nobody left
    EXPECT_EQ(champ.classement[3].repechage, std::nullopt);
    EXPECT_EQ(champ.classement[2].repechage, 1);
}

TEST(TirageSuivant, RepetitionsEchangees)
{
    Champ champ = unNiveau(6);
    champ.jouees = {{2, 1}};
    moteur::TabTirage table = champ.tire();
    EXPECT_EQ(paires(table), (Paires{{1, 3}, {2, 4}, {5, 6}})); // first exchange
    EXPECT_EQ(table.statut, StatutTirage::RienASignaler);

    champ.jouees = {{1, 2}, {3, 1}};
    EXPECT_EQ(paires(champ.tire()), (Paires{{1, 4}, {2, 3}, {5, 6}})); // second exchange

    champ.jouees = {{5, 6}};
    EXPECT_EQ(paires(champ.tire()), (Paires{{1, 2}, {6, 4}, {5, 3}})); // the last row turns to the one before it

    champ.jouees = {{3, 4}, {3, 5}, {3, 6}};
    EXPECT_EQ(paires(champ.tire()), (Paires{{6, 2}, {3, 1}, {4, 5}})); // past the end it goes on from row 1
}

TEST(TirageSuivant, RepetitionSansIssue)
{
    Champ champ = unNiveau(4);
    champ.jouees = {{1, 2}, {1, 3}, {1, 4}};
    EXPECT_EQ(champ.tire().statut, StatutTirage::DejaRencontrees);

    // A later success has the last word, although team 1 still meets a team again.
    champ = unNiveau(8);
    champ.jouees = {{1, 2}, {1, 3}, {1, 4}, {1, 5}, {1, 6}, {1, 7}, {1, 8}};
    EXPECT_EQ(champ.tire().statut, StatutTirage::DejaRencontrees);
    champ.jouees.push_back({3, 4});
    EXPECT_EQ(champ.tire().statut, StatutTirage::RienASignaler);
}

TEST(TirageSuivant, RepetitionSeuleDansSonNiveauResteMuette)
{
    Champ champ;
    champ.ajoute(2, 90000);
    champ.ajoute(2, 80000);
    champ.ajoute(1, 70000);
    champ.ajoute(1, 60000);
    champ.jouees = {{1, 2}, {3, 4}};
    const moteur::TabTirage table = champ.tire();
    EXPECT_EQ(paires(table), (Paires{{1, 2}, {3, 4}}));
    EXPECT_EQ(table.statut, StatutTirage::RienASignaler);
}

TEST(TirageSuivant, SecondExemptEvite)
{
    Champ champ = unNiveau(5);
    champ.jouees = {{5, 0}};
    const moteur::TabTirage table = champ.tire();
    EXPECT_EQ(paires(table), (Paires{{1, 2}, {4, 0}, {5, 3}}));
    EXPECT_EQ(table.lignes[1], (LigneTirage{.pt1 = 1, .equipe1 = 4, .club1 = u"A"_qs}));
}

TEST(TirageSuivant, UnSigneParRencontreLue)
{
    Champ champ = unNiveau(4);
    champ.jouees = {{1, 2}, {3, 4}, {77, 78}};
    QString signes;
    champ.tire([&](QStringView signe) { signes += signe; });
    EXPECT_EQ(signes, u"..."_qs);
    champ.tourpri = 1;
    champ.jouees = {{77, 78}, {1, 77}};
    champ.clubs = {u"A"_qs, u"B"_qs, u"C"_qs, u"D"_qs};
    signes.clear();
    champ.tire([&](QStringView signe) { signes += signe; });
    EXPECT_TRUE(signes.startsWith(u" . ."_qs));
    EXPECT_TRUE(signes.endsWith(u".."_qs));
}

/// Fields that no competition would give: gaps between levels, equal draws, crowds of meetings, odd clubs.
Champ invente(std::mt19937 &sort)
{
    const auto entre = [&sort](int bas, int haut) { return bas + int(sort() % quint32(haut - bas + 1)); };
    Champ champ;
    champ.tourpri = entre(1, 2);
    champ.repeche = entre(0, 1) == 1;
    const int nombre = entre(1, 30);
    const int niveaux = entre(0, 4);
    const int pas = entre(1, 3); // above 1: nobody stands in the levels between
    const int aleas = entre(0, 1) ? 4 : 90000;
    const essai::Melange melange{.clubs = entre(1, 6),
                                 .pourcentHote = entre(0, 1) * 45,
                                 .pourcentPanache = entre(0, 1) * 20,
                                 .pourcentSans = entre(0, 3) ? 0 : 30,
                                 .casseMelee = entre(0, 1) == 1};
    for (const moteur::EquipeInscrite &equipe : essai::inscrit(nombre, melange, sort)) {
        const std::optional<int> ga = entre(0, 9) ? std::optional(entre(-6, 6)) : std::nullopt;
        champ.ajoute(pas * entre(0, niveaux), 10000 + entre(0, aleas), equipe.club, ga);
    }
    const int jouees = entre(0, nombre * entre(1, 1 + nombre / 2));
    for (int k = 0; k < jouees; ++k) {
        const int equipe = entre(1, nombre + 1);
        const int autre = entre(0, nombre + 1);
        if (equipe != autre)
            champ.jouees.push_back({equipe, autre});
    }
    return champ;
}

/// Two levels far apart in which nearly everybody has met everybody: searches run all the way round.
Champ sature(std::mt19937 &sort)
{
    const int nombre = 7 + int(sort() % 8);
    const int enHaut = 5 + 2 * int(sort() % quint32(nombre / 2 - 2));
    Champ champ;
    for (int i = 0; i < nombre; ++i)
        champ.ajoute(i < enHaut ? 3 : 0, int(sort() % 10000));
    const quint32 part = 50 + sort() % 50;
    for (int equipe = 1; equipe <= nombre; ++equipe) {
        for (int autre = 0; autre < equipe; ++autre) {
            if (sort() % 100 < part)
                champ.jouees.insert(champ.jouees.end(), 1 + sort() % 2, PaireJouee{equipe, autre});
        }
    }
    std::ranges::shuffle(champ.jouees, sort);
    return champ;
}

TEST(TirageSuivant, ChampsInventesCommeLeModeleLent)
{
    modele::Journal journal;
    for (quint32 graine = 1; graine <= 12000; ++graine) {
        std::mt19937 sort(graine);
        Champ champ = graine % 4 == 0 ? sature(sort) : invente(sort);
        Champ copie = champ;
        const moteur::TabTirage attendue = modele::tirageSuivant(
            {copie.classement, copie.clubs, copie.jouees, copie.tourpri, copie.repeche}, journal);
        ASSERT_EQ(champ.tire(), attendue) << graine;
        ASSERT_EQ(champ.classement, copie.classement) << graine;
    }
    // Every path of the rules has been walked.
    EXPECT_GT(journal.remontees, 0);
    EXPECT_GT(journal.remplacees, 0);
    EXPECT_GT(journal.clubsRestants, 0);
    EXPECT_GT(journal.toursComplets, 0);
    EXPECT_GT(journal.secondsRetours, 0);
    EXPECT_GT(journal.finsMuettes, 0);
    EXPECT_GT(journal.retoursAuxClubs, 0);
}

} // namespace
