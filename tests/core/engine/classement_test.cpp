#include "engine/classement.h"
#include "partage/alea.h"

#include <gtest/gtest.h>

#include <map>

using moteur::LigneClassement;
using moteur::Partie;

namespace {

std::map<int, LigneClassement> classe(const std::vector<Partie> &rencontres, quint32 graine = 1)
{
    AleaFixe alea(graine);
    std::map<int, LigneClassement> lignes;
    for (const LigneClassement &ligne : moteur::etablitClassement(rencontres, alea))
        lignes[ligne.equipe] = ligne;
    return lignes;
}

void attend(const LigneClassement &ligne, int gagnees, int perdues, std::optional<int> pp, std::optional<int> pc)
{
    SCOPED_TRACE(ligne.equipe);
    EXPECT_EQ(ligne.gagnées, gagnees);
    EXPECT_EQ(ligne.pt, gagnees);
    EXPECT_EQ(ligne.perdues, perdues);
    EXPECT_EQ(ligne.pp, pp);
    EXPECT_EQ(ligne.pc, pc);
    EXPECT_EQ(ligne.ga, pp && pc ? std::optional(*pp - *pc) : std::nullopt);
}

TEST(Classement, PremiereLigneDUneEquipe)
{
    const auto lignes = classe({{.tour = 1, .equipe1 = 1, .equipe2 = 2, .score1 = 13, .score2 = 12},
                                {.tour = 1, .equipe1 = 3, .equipe2 = 4, .score1 = 12, .score2 = 11},
                                {.tour = 1, .equipe1 = 5, .equipe2 = 6, .score1 = 13, .score2 = 13},
                                {.tour = 1, .equipe1 = 7, .equipe2 = 8},
                                {.tour = 1, .equipe1 = 9, .equipe2 = 0, .score1 = 0, .score2 = 5},
                                {.tour = 1, .equipe1 = 10, .equipe2 = 11, .score1 = -2, .score2 = 13}});
    ASSERT_EQ(lignes.size(), 11u);
    attend(lignes.at(1), 1, 0, 13, 12);
    attend(lignes.at(2), 0, 1, 12, 13);
    attend(lignes.at(3), 0, 0, 12, 11); // no 13: neither won nor lost, points count
    attend(lignes.at(4), 0, 0, 11, 12);
    attend(lignes.at(5), 1, 0, 13, 13); // both at 13: the first team has won
    attend(lignes.at(6), 0, 1, 13, 13);
    attend(lignes.at(7), 0, 0, std::nullopt, std::nullopt);
    attend(lignes.at(8), 0, 0, std::nullopt, std::nullopt);
    attend(lignes.at(9), 1, 0, 13, 7); // a bye, whatever its scores
    attend(lignes.at(10), 0, 1, -2, 13);
    attend(lignes.at(11), 1, 0, 13, -2);
}

TEST(Classement, LignesSuivantes)
{
    const auto lignes = classe({{.tour = 1, .equipe1 = 1, .equipe2 = 2, .score1 = 13, .score2 = 4},
                                {.tour = 1, .equipe1 = 3, .equipe2 = 4},
                                {.tour = 2, .equipe1 = 1, .equipe2 = 3, .score1 = 8, .score2 = 13},
                                {.tour = 2, .equipe1 = 2, .equipe2 = 0},
                                {.tour = 2, .equipe1 = 4, .equipe2 = 0, .score1 = 13, .score2 = 7},
                                {.tour = 3, .equipe1 = 1, .equipe2 = 4},
                                {.tour = 3, .equipe1 = 3, .equipe2 = 2, .score1 = std::nullopt, .score2 = 9}});
    attend(lignes.at(1), 1, 1, 21, 17);
    attend(lignes.at(2), 1, 1, 4 + 13 + 9, 13 + 7);
    // An open first match adds nothing; what is played later counts from 0.
    attend(lignes.at(3), 1, 0, 13, 8 + 9);
    attend(lignes.at(4), 1, 0, 13, 7);
}

TEST(Classement, RepechageVientDeLaPremiereLigneEtDuPremierCote)
{
    const auto lignes = classe({{.tour = 1, .equipe1 = 1, .equipe2 = 2, .repechage = 1},
                                {.tour = 1, .equipe1 = 3, .equipe2 = 4, .repechage = 2},
                                {.tour = 1, .equipe1 = 5, .equipe2 = 6, .repechage = 0},
                                {.tour = 2, .equipe1 = 3, .equipe2 = 5, .repechage = 1},
                                {.tour = 2, .equipe1 = 7, .equipe2 = 0, .repechage = 1}});
    for (const auto &[equipe, ligne] : lignes)
        EXPECT_EQ(ligne.repechage, equipe == 1 || equipe == 7 ? std::optional(1) : std::nullopt) << equipe;
}

} // namespace
