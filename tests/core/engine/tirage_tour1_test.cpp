#include "concours_joue.h"
#include "modele_lent.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

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

/// How often each team stands in a match.
std::map<int, int> presences(const std::vector<Partie> &rencontres)
{
    std::map<int, int> fois;
    for (const Partie &r : rencontres) {
        ++fois[r.equipe1];
        if (r.equipe2 > 0)
            ++fois[r.equipe2];
    }
    return fois;
}

TEST(TirageTour1, ChacunUneFoisEtUnExemptSiImpair)
{
    for (int nombre = 2; nombre <= 130; ++nombre) {
        std::mt19937 sort(static_cast<quint32>(nombre));
        const auto equipes = essai::inscrit(nombre, {.clubs = 6, .pourcentHote = 45, .pourcentPanache = 10}, sort);
        const std::vector<Partie> rencontres = tire(equipes, quint32(nombre));
        const std::map<int, int> fois = presences(rencontres);
        ASSERT_EQ(int(fois.size()), nombre);
        ASSERT_TRUE(std::ranges::all_of(fois, [](const auto &f) { return f.second == 1; }));
        ASSERT_EQ(int(rencontres.size()), (nombre + 1) / 2);
        for (std::size_t i = 0; i < rencontres.size(); ++i) {
            const Partie &r = rencontres[i];
            ASSERT_EQ(r.rencontre, int(i) + 1);
            ASSERT_EQ(r.tour, 1);
            ASSERT_FALSE(r.score1 || r.score2 || r.repechage);
            ASSERT_EQ(r.equipe2 == 0, nombre % 2 == 1 && i + 1 == rencontres.size());
        }
    }
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

/// Clubs of one name in different letters: the empty side of the bye changes places with a team, which then has no
/// match, while its opponent has a second bye.
TEST(TirageTour1, CoteVideDeLExemptEchange)
{
    int perdues = 0;
    for (quint32 graine = 1; graine <= 300; ++graine) {
        const std::vector<Partie> rencontres =
            tire(deClubs({u"Nice"_qs, u"NICE"_qs, u"Nice"_qs, u"NICE"_qs, u"nice"_qs}), graine);
        ASSERT_EQ(rencontres.size(), 3u);
        const int exempts = int(std::ranges::count(rencontres, 0, &Partie::equipe2));
        ASSERT_EQ(presences(rencontres).size(), 6u - std::size_t(exempts));
        perdues += exempts > 1;
    }
    EXPECT_GT(perdues, 0);
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
        const essai::Melange melange{.clubs = 1 + int(sort() % 8),
                                     .pourcentHote = sort() % 2 ? 45 : 0,
                                     .pourcentPanache = sort() % 2 ? 20 : 0,
                                     .pourcentSans = sort() % 4 ? 0 : 30,
                                     .casseMelee = sort() % 2 == 0};
        const auto equipes = essai::inscrit(2 + int(sort() % 59), melange, sort);
        AleaFixe alea(graine);
        AleaFixe memeAlea(graine);
        ASSERT_EQ(moteur::tireTour1(equipes, moteur::pasDExempt, alea), modele::tirageTour1(equipes, memeAlea))
            << graine;
    }
}

} // namespace
