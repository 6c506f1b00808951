#include "bench/concours_joue.h"
#include "engine/rapport_tirage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <numeric>
#include <set>

using moteur::NiveauRapporte;
using moteur::PaireRapportee;
using moteur::Partie;
using moteur::RapportTour;

namespace {

/// Reckoned from the rows alone, team by team.
struct SurPapier
{
    SurPapier(const std::vector<Partie> &parties, int tour, const QHash<int, QString> &clubsDesEquipes)
        : clubs(clubsDesEquipes)
    {
        for (const Partie &p : parties) {
            if (p.tour >= tour)
                continue;
            adversaires[p.equipe1].push_back({p.tour, p.equipe2});
            adversaires[p.equipe2].push_back({p.tour, p.equipe1});
            if (p.equipe2 == 0 || p.score1 == 13)
                ++victoires[p.equipe1];
            else if (p.score2 == 13)
                ++victoires[p.equipe2];
        }
    }

    int deja(int a, int b) const
    {
        int premier = 0;
        if (const auto liste = adversaires.find(a); liste != adversaires.end()) {
            for (const auto &[tour, autre] : liste->second) {
                if (autre == b && (premier == 0 || tour < premier))
                    premier = tour;
            }
        }
        return premier;
    }
    bool club(int a, int b) const { return !clubs.value(a).isEmpty() && clubs.value(a) == clubs.value(b); }

    std::map<int, std::vector<std::pair<int, int>>> adversaires;
    std::map<int, int> victoires;
    QHash<int, QString> clubs;
};

/// Least repeats, pairs of one club and matches with either, each over all pairings of \p equipes.
struct Moindres
{
    int repetitions = 99;
    int memeClub = 99;
    int defauts = 99;
};

void essaieTout(std::vector<int> equipes, const SurPapier &papier, int repetitions, int memeClub, int defauts,
                Moindres &moindres)
{
    if (equipes.empty()) {
        moindres.repetitions = std::min(moindres.repetitions, repetitions);
        moindres.memeClub = std::min(moindres.memeClub, memeClub);
        moindres.defauts = std::min(moindres.defauts, defauts);
        return;
    }
    const int premiere = equipes.back();
    equipes.pop_back();
    for (std::size_t i = 0; i < equipes.size(); ++i) {
        std::vector<int> reste = equipes;
        reste.erase(reste.begin() + long(i));
        const bool repete = papier.deja(premiere, equipes[i]) > 0;
        const bool club = papier.club(premiere, equipes[i]);
        essaieTout(reste, papier, repetitions + repete, memeClub + club, defauts + (repete || club), moindres);
    }
}

QHash<int, QString> clubs(const std::vector<moteur::EquipeInscrite> &equipes)
{
    QHash<int, QString> clubs;
    for (const moteur::EquipeInscrite &equipe : equipes)
        clubs.insert(equipe.equipe, equipe.club);
    return clubs;
}

} // namespace

TEST(RapportTirage, EveryMatchIsToldAsTheRowsTellItAndNoPairingHasFewerDefects)
{
    std::map<QString, int> vus;
    for (quint32 graine = 1; graine <= 120; ++graine) {
        SCOPED_TRACE(graine);
        std::mt19937 sort(graine);
        essai::Concours concours(equipesMelangees(int(4 + graine % 9),
                                                  {.clubs = int(2 + graine % 4), .pourcentSans = 10}, sort),
                                 graine % 2 == 0, graine);
        while (concours.tourpri() < 6 && concours.joueTour()) {}
        const std::vector<Partie> parties = concours.rencontres();
        const QHash<int, QString> clubsDesEquipes = clubs(concours.equipes());
        for (int tour = 1; tour <= concours.tourpri(); ++tour) {
            SCOPED_TRACE(tour);
            const SurPapier papier(parties, tour, clubsDesEquipes);
            RapportTour rapport = moteur::etablitRapport(parties, tour, clubsDesEquipes);
            moteur::calculeMinimums(rapport, parties, clubsDesEquipes);

            std::map<int, std::vector<int>> equipes;
            ASSERT_EQ(qsizetype(rapport.paires.size()), std::ranges::count(parties, tour, &Partie::tour));
            EXPECT_TRUE(std::ranges::is_sorted(rapport.paires, [](const auto &un, const auto &autre) {
                return un.exempt() == autre.exempt() && un.niveau > autre.niveau;
            }));
            for (const PaireRapportee &paire : rapport.paires) {
                const auto victoires = [&](int equipe) {
                    const auto trouve = papier.victoires.find(equipe);
                    return trouve == papier.victoires.end() ? 0 : trouve->second;
                };
                if (paire.exempt()) {
                    EXPECT_EQ(paire.encoreExempt, papier.deja(paire.equipe1, 0) > 0);
                    continue;
                }
                const int niveaux[] = {victoires(paire.equipe1), victoires(paire.equipe2)};
                EXPECT_EQ(paire.niveau, std::max(niveaux[0], niveaux[1]));
                const int remontee = niveaux[0] < niveaux[1] ? paire.equipe1
                    : niveaux[1] < niveaux[0]                ? paire.equipe2
                                                             : 0;
                EXPECT_EQ(paire.remontee.value_or(0), remontee);
                EXPECT_TRUE(remontee == 0 || paire.niveauRemontee == std::min(niveaux[0], niveaux[1]));
                EXPECT_EQ(paire.dejaAuTour.value_or(0), papier.deja(paire.equipe1, paire.equipe2));
                EXPECT_EQ(paire.memeClub, papier.club(paire.equipe1, paire.equipe2));
                vus[u"remontée"_qs] += remontee > 0;
                equipes[paire.niveau].insert(equipes[paire.niveau].end(), {paire.equipe1, paire.equipe2});
            }
            ASSERT_EQ(rapport.niveaux.size(), equipes.size());
            for (const NiveauRapporte &niveau : rapport.niveaux) {
                Moindres moindres;
                essaieTout(equipes[niveau.niveau], papier, 0, 0, 0, moindres);
                EXPECT_EQ(niveau.repetitionsAuMoins, niveau.repetitions > 0 ? moindres.repetitions : 0);
                EXPECT_EQ(niveau.memeClubAuMoins, niveau.memeClub > 0 ? moindres.memeClub : 0);
                EXPECT_EQ(niveau.defautsAuMoins, niveau.defauts > 0 ? moindres.defauts : 0);
                vus[u"répétition évitable"_qs] += niveau.repetitionsAuMoins < niveau.repetitions;
                vus[u"répétition forcée"_qs] += niveau.repetitionsAuMoins > 0;
                vus[u"club évitable"_qs] += niveau.memeClubAuMoins < niveau.memeClub;
                vus[u"club forcé"_qs] += niveau.memeClubAuMoins > 0;
            }
        }
    }
    for (const char *attendu : {"remontée", "répétition évitable", "répétition forcée", "club évitable", "club forcé"})
        EXPECT_GT(vus[QString::fromUtf8(attendu)], 0) << attendu;
}

/// Nobody wins, so that all stand on one level: in its last rounds hardly a pair is left that has not met.
TEST(RapportTirage, TheLeastIsExactWhereHardlyAnyPairIsLeft)
{
    int reste = 0;
    for (quint32 graine = 1; graine <= 200; ++graine) {
        SCOPED_TRACE(graine);
        std::mt19937 sort(graine);
        const int nombre = graine % 2 == 0 ? 8 : 10;
        std::vector<int> equipes(std::size_t(nombre), 0);
        std::iota(equipes.begin(), equipes.end(), 1);
        QHash<int, QString> clubsDesEquipes;
        for (const int equipe : equipes)
            clubsDesEquipes.insert(equipe, u"Club %1"_qs.arg(sort() % 5));
        std::vector<Partie> parties;
        const int dernier = nombre + int(graine % 3);
        for (int tour = 1; tour <= dernier; ++tour) {
            std::ranges::shuffle(equipes, sort);
            for (std::size_t i = 0; i < equipes.size(); i += 2)
                parties.push_back(
                    {.tour = tour, .equipe1 = equipes[i], .equipe2 = equipes[i + 1], .score1 = 5, .score2 = 5});
        }
        const SurPapier papier(parties, dernier, clubsDesEquipes);
        RapportTour rapport = moteur::etablitRapport(parties, dernier, clubsDesEquipes);
        moteur::calculeMinimums(rapport, parties, clubsDesEquipes);
        ASSERT_EQ(rapport.niveaux.size(), 1U);
        Moindres moindres;
        essaieTout(equipes, papier, 0, 0, 0, moindres);
        const NiveauRapporte &niveau = rapport.niveaux.front();
        EXPECT_EQ(niveau.repetitionsAuMoins, niveau.repetitions > 0 ? moindres.repetitions : 0);
        EXPECT_EQ(niveau.defautsAuMoins, niveau.defauts > 0 ? moindres.defauts : 0);
        reste += niveau.defautsAuMoins > 0 && niveau.defautsAuMoins < niveau.defauts;
    }
    EXPECT_GT(reste, 10);
}

TEST(RapportTirage, ASecondByeIsTold)
{
    const std::vector<Partie> parties{{.tour = 1, .equipe1 = 1, .equipe2 = 2, .score1 = 13, .score2 = 4},
                                      {.tour = 1, .equipe1 = 3, .score1 = 13, .score2 = 7},
                                      {.tour = 2, .equipe1 = 1, .equipe2 = 2},
                                      {.tour = 2, .equipe1 = 3}};
    EXPECT_FALSE(moteur::etablitRapport(parties, 1, {}).aSignaler());
    const RapportTour rapport = moteur::etablitRapport(parties, 2, {});
    EXPECT_TRUE(rapport.paires.back().encoreExempt);
    EXPECT_EQ(rapport.paires.front().dejaAuTour, 1);
    EXPECT_TRUE(rapport.aSignaler());
}

TEST(RapportTirage, FewerRepeatsGoBeforeFewerPairsOfOneClub)
{
    const auto rapport = [](int repetitions, int memeClub) {
        RapportTour fait{.tour = 2};
        for (int i = 0; i < std::max(repetitions, memeClub); ++i)
            fait.paires.push_back({.equipe1 = 1,
                                   .equipe2 = 2,
                                   .dejaAuTour = i < repetitions ? std::optional(1) : std::nullopt,
                                   .memeClub = i < memeClub});
        return fait;
    };
    EXPECT_TRUE(moteur::vautMieux(rapport(0, 3), rapport(1, 0)));
    EXPECT_TRUE(moteur::vautMieux(rapport(1, 0), rapport(1, 1)));
    EXPECT_FALSE(moteur::vautMieux(rapport(1, 1), rapport(1, 1)));
    EXPECT_FALSE(rapport(0, 0).aSignaler());
    EXPECT_TRUE(rapport(0, 1).aSignaler());
}
