#include "engine/rangs.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using moteur::LigneClassement;

namespace {

LigneClassement equipe(int numero, int gagnees, std::optional<int> ga)
{
    LigneClassement ligne{.equipe = numero, .gagnées = gagnees, .pt = gagnees};
    if (ga) {
        ligne.pp = 50 + *ga;
        ligne.pc = 50;
        ligne.ga = ga;
    }
    return ligne;
}

/// Positions as one text, a dot where there is none.
std::string niveaux(const std::vector<LigneClassement> &lignes)
{
    std::string texte;
    for (const std::optional<int> &position : moteur::positionsParNiveau(lignes))
        texte += position ? std::to_string(*position) + ' ' : ". ";
    return texte;
}

std::string general(const std::vector<LigneClassement> &lignes)
{
    std::string texte;
    for (const moteur::PlaceGenerale &place : moteur::classementGeneral(lignes))
        texte += (place.position ? std::to_string(*place.position) : "-") + ":"
            + std::to_string(lignes[place.ligne].equipe) + ' ';
    return texte;
}

TEST(Rangs, EgalitesDansUnNiveau)
{
    EXPECT_EQ(niveaux({}), "");
    // Positions count on over ties and over levels.
    EXPECT_EQ(niveaux({equipe(1, 2, 10), equipe(2, 2, 10), equipe(3, 2, 4), equipe(4, 1, 9), equipe(5, 1, 9),
                       equipe(6, 0, -3)}),
              "1 . 3 4 . 6 ");
    // A lower level with a higher difference is no tie.
    EXPECT_EQ(niveaux({equipe(1, 1, -2), equipe(2, 0, -2), equipe(3, 0, -2)}), "1 2 . ");
}

TEST(Rangs, SansPointsDansUnNiveau)
{
    // Behind a positive difference a team without points has a place of its own, shared with the next of its kind.
    EXPECT_EQ(niveaux({equipe(1, 0, 4), equipe(2, 0, {}), equipe(3, 0, {})}), "1 2 . ");
    // Behind a difference of 0 or less it has none.
    EXPECT_EQ(niveaux({equipe(1, 0, 0), equipe(2, 0, {})}), "1 . ");
    EXPECT_EQ(niveaux({equipe(1, 0, -5), equipe(2, 0, {})}), "1 . ");
    EXPECT_EQ(niveaux({equipe(1, 0, {}), equipe(2, 0, {})}), "1 . ");
}

TEST(Rangs, GeneralParVictoiresPuisDifference)
{
    EXPECT_EQ(general({}), "");
    EXPECT_EQ(general({equipe(7, 3, 20), equipe(9, 3, 20), equipe(2, 2, 30), equipe(4, 1, -8)}), "1:7 -:9 3:2 4:4 ");
    // No difference that a day can bring makes up for a match won.
    EXPECT_EQ(general({equipe(1, 1, 499), equipe(2, 2, -499)}), "1:2 2:1 ");
    // Without points a team stands at 0, before those that lost more than they scored.
    EXPECT_EQ(general({equipe(1, 1, 6), equipe(2, 0, 0), equipe(3, 0, -6), equipe(4, 0, {})}), "1:1 2:2 -:4 4:3 ");
    // What a team has won counts, not the level that a draw has lifted it to.
    LigneClassement repechee = equipe(5, 1, 9);
    repechee.pt = 2;
    EXPECT_EQ(general({repechee, equipe(6, 2, 1)}), "1:6 2:5 ");
}

/// Reckoned the other way round: a team's position is one more than the number of teams ahead of it.
TEST(Rangs, DAccordAvecUnComptageDesEquipesDevant)
{
    std::mt19937 sort(11);
    const auto devant = [](const LigneClassement &a, const LigneClassement &b) {
        return a.gagnées != b.gagnées ? a.gagnées > b.gagnées : *a.ga > *b.ga;
    };
    for (int fois = 0; fois < 100; ++fois) {
        std::vector<LigneClassement> lignes;
        for (int numero = 1; numero <= 2 + fois; ++numero)
            lignes.push_back(equipe(numero, int(sort() % 6), int(sort() % 41) - 20));
        std::ranges::sort(lignes, moteur::avantAuRang);
        const auto attendue = [&](const LigneClassement &ligne) {
            return 1 + int(std::ranges::count_if(lignes, [&](const auto &autre) { return devant(autre, ligne); }));
        };
        int precedente = 0;
        for (const auto &[rang, position] : moteur::classementGeneral(lignes)) {
            const int sienne = attendue(lignes[rang]);
            EXPECT_EQ(position, sienne == precedente ? std::nullopt : std::optional(sienne));
            precedente = sienne;
        }
        const std::vector<std::optional<int>> positions = moteur::positionsParNiveau(lignes);
        for (std::size_t i = 0; i < lignes.size(); ++i) {
            const bool exAequo = i > 0 && !devant(lignes[i - 1], lignes[i]);
            EXPECT_EQ(positions[i], exAequo ? std::nullopt : std::optional(attendue(lignes[i])));
        }
    }
}

} // namespace
