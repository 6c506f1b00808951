#include "modele_lent.h"

#include "commun/concours_en_base.h"
#include "partage/alea.h"

#include <gtest/gtest.h>

#include <algorithm>

using moteur::EquipeInscrite;
using moteur::Partie;

namespace {

std::vector<Partie> tire(const std::vector<EquipeInscrite> &equipes, quint32 graine)
{
    AleaFixe alea(graine);
    return moteur::tireTour1(equipes, moteur::pasDExempt, alea);
}

std::vector<EquipeInscrite> deClubs(const std::vector<QString> &clubs)
{
    std::vector<EquipeInscrite> equipes;
    for (const QString &club : clubs)
        equipes.push_back({int(equipes.size()) + 1, club});
    return equipes;
}

int memeClub(const std::vector<Partie> &rencontres, const std::vector<EquipeInscrite> &equipes)
{
    return int(std::ranges::count_if(rencontres, [&](const Partie &r) {
        return r.equipe2 > 0
            && equipes[std::size_t(r.equipe1) - 1].club.toUpper() == equipes[std::size_t(r.equipe2) - 1].club.toUpper();
    }));
}

TEST(TirageTour1, ClubsSepares)
{
    for (quint32 graine = 1; graine <= 200; ++graine) {
        std::mt19937 sort(graine);
        // No club has more than half of the teams: a separation exists.
        std::vector<QString> clubs;
        for (int i = 0; i < 24; ++i)
            clubs.push_back(u"Club %1"_qs.arg(i < 12 ? 0 : 1 + i % 5));
        std::ranges::shuffle(clubs, sort);
        const auto equipes = deClubs(clubs);
        ASSERT_EQ(memeClub(tire(equipes, graine), equipes), 0) << graine;
    }
}

TEST(TirageTour1, ExemptPrecedentTireEnPremier)
{
    for (quint32 graine = 1; graine <= 20; ++graine) {
        // Numbers beyond the rows, so that no team number can be taken for the row found.
        std::vector<EquipeInscrite> equipes;
        for (int i = 0; i < 9; ++i)
            equipes.push_back({100 + i, u"Club %1"_qs.arg(i)});
        AleaFixe alea(graine);
        EXPECT_EQ(moteur::tireTour1(equipes, 104, alea).front().equipe1, 104);
        EXPECT_EQ(moteur::tireTour1(equipes, 999, alea).size(), 5u); // a team that does not play any more
    }
}

TEST(TirageTour1, CommeLeModeleLent)
{
    for (quint32 graine = 1; graine <= 3000; ++graine) {
        std::mt19937 sort(graine);
        const Melange melange{.clubs = 1 + int(sort() % 8),
                              .pourcentHote = sort() % 2 ? 45 : 0,
                              .pourcentPanache = sort() % 2 ? 20 : 0,
                              .pourcentSans = sort() % 4 ? 0 : 30,
                              .casseMelee = sort() % 2 == 0};
        const auto equipes = equipesMelangees(2 + int(sort() % 59), melange, sort);
        AleaFixe alea(graine);
        AleaFixe memeAlea(graine);
        ASSERT_EQ(moteur::tireTour1(equipes, moteur::pasDExempt, alea), modele::tirageTour1(equipes, memeAlea))
            << graine;
    }
}

} // namespace
