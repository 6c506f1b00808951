#include "engine/controle_tours.h"

#include <gtest/gtest.h>

using moteur::StatutTirage;

namespace {

TEST(ControleTours, EquipesIncompletesEtTypeInconnu)
{
    EXPECT_FALSE(moteur::resteUnTour(47, 3, 3, false)); // 15 teams and two thirds
    EXPECT_TRUE(moteur::resteUnTour(48, 3, 3, false));
    EXPECT_TRUE(moteur::resteUnTour(16, 0, 3, false)); // each row counts as a team
    EXPECT_FALSE(moteur::resteUnTour(15, 0, 3, false));
    EXPECT_FALSE(moteur::resteUnTour(0, 0, 0, true));
    EXPECT_FALSE(moteur::resteUnTour(4000, 2, 300, false)); // no overflow
}

TEST(ControleTours, DixEssaisAuPlus)
{
    EXPECT_TRUE(moteur::tirageARefaire(StatutTirage::MemeClub, 1, 9));
    EXPECT_FALSE(moteur::tirageARefaire(StatutTirage::MemeClub, 2, 1));
    EXPECT_TRUE(moteur::tirageARefaire(StatutTirage::DejaRencontrees, 5, 9));
    EXPECT_FALSE(moteur::tirageARefaire(StatutTirage::DejaRencontrees, 5, 10));
    EXPECT_FALSE(moteur::tirageARefaire(StatutTirage::MemeClub, 1, 10));
    EXPECT_FALSE(moteur::tirageARefaire(StatutTirage::RienASignaler, 1, 1));
}

TEST(ControleTours, RencontresAEcrire)
{
    const moteur::TabTirage table{StatutTirage::RienASignaler,
                                  {{.pt1 = 2, .equipe1 = 8, .equipe2 = 3, .pt2 = 2},
                                   {.pt1 = 1, .equipe1 = 4, .equipe2 = 7, .pt2 = 1},
                                   {.pt1 = 1, .equipe1 = 1, .equipe2 = 2, .pt2 = 1},
                                   {.pt1 = 0, .equipe1 = 6, .equipe2 = 0}}};
    const std::vector<moteur::LigneClassement> classement = {{.equipe = 1, .repechage = 1},
                                                             {.equipe = 2, .repechage = 1},
                                                             {.equipe = 3, .repechage = 1},
                                                             {.equipe = 4, .repechage = 1},
                                                             {.equipe = 7, .repechage = 0},
                                                             {.equipe = 6, .repechage = 1}};
    const std::vector<moteur::Partie> attendues = {
        {.tour = 4, .equipe1 = 8, .equipe2 = 3, .repechage = 2},
        {.tour = 4, .equipe1 = 4, .equipe2 = 7, .repechage = 1},
        {.tour = 4, .equipe1 = 1, .equipe2 = 2, .repechage = 2}, // the second side has the last word
        {.tour = 4, .equipe1 = 6, .equipe2 = 0, .score1 = 13, .score2 = 7, .repechage = 1},
    };
    EXPECT_EQ(moteur::partiesDuTour(table, classement, 4), attendues);
}

} // namespace
