#include "partage/alea.h"

#include <gtest/gtest.h>

#include <map>
#include <vector>

namespace {

/// Gives the numbers it was handed, then fails the test.
class AleaDicte final : public SourceAleatoire
{
public:
    explicit AleaDicte(std::vector<double> nombres)
        : m_nombres(std::move(nombres))
    {
    }

    double suivant() override
    {
        EXPECT_LT(m_place, m_nombres.size());
        return m_nombres.at(m_place++);
    }
    void Randomize() override {}

    bool epuise() const { return m_place == m_nombres.size(); }

private:
    std::vector<double> m_nombres;
    std::size_t m_place = 0;
};

std::map<int, int> compte(int bas, int haut, int tirages)
{
    AleaFixe alea(7);
    std::map<int, int> fois;
    for (int i = 0; i < tirages; ++i)
        ++fois[AleaEntre(alea, bas, haut)];
    return fois;
}

TEST(Alea, CouvreLesDeuxBornesEtRienDAutre)
{
    const std::map<int, int> fois = compte(3, 9, 7000);
    EXPECT_EQ(fois.size(), 7u);
    EXPECT_EQ(fois.begin()->first, 3);
    EXPECT_EQ(fois.rbegin()->first, 9);
    for (const auto &[nombre, combien] : fois)
        EXPECT_NEAR(combien, 1000, 150) << nombre;
}

TEST(Alea, CasParticuliersDesBornes)
{
    EXPECT_EQ(compte(5, 5, 50), (std::map<int, int>{{5, 50}}));

    const std::map<int, int> sansHaut = compte(4, -1, 5000); // stands for 0 to 9
    EXPECT_EQ(sansHaut.begin()->first, 0);
    EXPECT_EQ(sansHaut.rbegin()->first, 9);

    const std::map<int, int> croisees = compte(8, 3, 5000); // the lower bound counts as 0
    EXPECT_EQ(croisees.begin()->first, 0);
    EXPECT_EQ(croisees.rbegin()->first, 3);
}

TEST(Alea, ArronditAuPlusProcheEtRejetteHorsDesBornes)
{
    // Times 5 (haut 4): 0.98 rounds to 5 and is refused, 0.1 ties to the even 0 and is refused below 1, 0.3 ties
    // to the even 2.
    AleaDicte alea({0.98, 0.1, 0.3});
    EXPECT_EQ(AleaEntre(alea, 1, 4), 2);
    EXPECT_TRUE(alea.epuise());
}

TEST(Alea, MemeGraineMemeSuite)
{
    AleaFixe premiere(42);
    AleaFixe seconde(42);
    AleaFixe autre(43);
    bool differe = false;
    for (int i = 0; i < 100; ++i) {
        const double nombre = premiere.suivant();
        premiere.Randomize();
        EXPECT_EQ(nombre, seconde.suivant());
        EXPECT_GE(nombre, 0.0);
        EXPECT_LT(nombre, 1.0);
        differe = differe || nombre != autre.suivant();
    }
    EXPECT_TRUE(differe);
}

} // namespace
