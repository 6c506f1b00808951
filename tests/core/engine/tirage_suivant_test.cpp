#include "modele_lent.h"

#include "commun/concours_en_base.h"
#include "partage/alea.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>

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

std::string paires(const moteur::TabTirage &table)
{
    std::string resultat;
    for (const LigneTirage &ligne : table.lignes)
        resultat += (resultat.empty() ? "" : " ") + std::to_string(ligne.equipe1) + '-' + std::to_string(ligne.equipe2);
    return resultat;
}

/// Teams numbered in the order of draw, a digit for the level of each and a letter for its club; * is the mixed club as
/// the program writes it, + the same in other letters.
Champ champ(std::string_view niveaux, std::string_view clubs = {})
{
    Champ champ;
    for (std::size_t i = 0; i < niveaux.size(); ++i) {
        const char lettre = clubs.empty() ? 'A' : clubs[i];
        champ.ajoute(niveaux[i] - '0', 90000 - int(i),
                     lettre == '*'       ? u"*Panachée"_qs
                         : lettre == '+' ? u"*PANACHÉE"_qs
                                         : QString(QLatin1Char(lettre)));
    }
    return champ;
}

TEST(TirageSuivant, ChampsEcritsALaMain)
{
    struct Cas
    {
        const char *quoi, *niveaux, *clubs;
        int tourpri;
        std::vector<PaireJouee> jouees;
        const char *paires;
        StatutTirage statut = StatutTirage::RienASignaler;
    };
    const Cas tous[] = {
        {"nobody", "", "", 1, {}, ""},
        {"one level, in the order of draw", "11111", "AAAAA", 2, {}, "1-2 3-4 5-0"},
        {"clubs count before the second round, and the row behind an exchange is mended too",
         "111111",
         "AABBCD",
         1,
         {},
         "1-4 3-2 5-6"},
        {"and not before the third", "111111", "AABBCD", 2, {}, "1-2 3-4 5-6"},
        {"the row behind an exchange is passed over", "11111111", "DEAABBFG", 1, {}, "1-4 3-2 5-6 7-8"},
        {"clubs of the lower level", "11000000", "ABAABBCD", 1, {}, "1-2 3-6 5-4 7-8"},
        {"mixed teams may meet", "11", "**", 1, {}, "1-2"},
        {"if they are written as the program does", "11", "++", 1, {}, "1-2", StatutTirage::MemeClub},
        {"met: first exchange", "111111", "AAAAAA", 2, {{2, 1}}, "1-3 2-4 5-6"},
        {"met: second exchange", "111111", "AAAAAA", 2, {{1, 2}, {3, 1}}, "1-4 2-3 5-6"},
        {"the last row turns to the one before it", "111111", "AAAAAA", 2, {{5, 6}}, "1-2 6-4 5-3"},
        {"past the end it goes on from row 1", "111111", "AAAAAA", 2, {{3, 4}, {3, 5}, {3, 6}}, "6-2 3-1 4-5"},
        {"alone in its level, a repetition is not told", "2211", "AAAA", 2, {{1, 2}, {3, 4}}, "1-2 3-4"},
        {"no second bye", "11111", "AAAAA", 2, {{5, 0}}, "1-2 4-0 5-3"},
    };
    for (const Cas &cas : tous) {
        Champ essai = champ(cas.niveaux, cas.clubs);
        essai.tourpri = cas.tourpri;
        essai.jouees = cas.jouees;
        const moteur::TabTirage table = essai.tire();
        EXPECT_EQ(paires(table), cas.paires) << cas.quoi;
        EXPECT_EQ(table.statut, cas.statut) << cas.quoi;
    }
    Champ sansIssue = champ("1111");
    sansIssue.jouees = {{1, 2}, {1, 3}, {1, 4}};
    EXPECT_EQ(sansIssue.tire().statut, StatutTirage::DejaRencontrees);
    sansIssue = champ("11111111");
    sansIssue.jouees = {{1, 2}, {1, 3}, {1, 4}, {1, 5}, {1, 6}, {1, 7}, {1, 8}};
    EXPECT_EQ(sansIssue.tire().statut, StatutTirage::DejaRencontrees);
    sansIssue.jouees.push_back({3, 4});
    EXPECT_EQ(sansIssue.tire().statut, StatutTirage::RienASignaler) << "a later success has the last word";
}

TEST(TirageSuivant, UnSigneParRencontreLue)
{
    Champ quatre = champ("1111", "ABCD");
    quatre.jouees = {{1, 2}, {3, 4}, {77, 78}};
    QString signes;
    quatre.tire([&](QStringView signe) { signes += signe; });
    EXPECT_EQ(signes, u"..."_qs);
    quatre.tourpri = 1;
    quatre.jouees = {{77, 78}, {1, 77}};
    signes.clear();
    quatre.tire([&](QStringView signe) { signes += signe; });
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
    const Melange melange{.clubs = entre(1, 6),
                          .pourcentHote = entre(0, 1) * 45,
                          .pourcentPanache = entre(0, 1) * 20,
                          .pourcentSans = entre(0, 3) ? 0 : 30,
                          .casseMelee = entre(0, 1) == 1};
    for (const moteur::EquipeInscrite &equipe : equipesMelangees(nombre, melange, sort)) {
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
        const moteur::TabTirage attendue =
            modele::tirageSuivant({copie.classement, copie.clubs, copie.jouees, copie.tourpri, copie.repeche}, journal);
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
