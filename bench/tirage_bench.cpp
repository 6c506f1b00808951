#include "concours_bench.h"
#include "engine/rapport_tirage.h"
#include "mesure.h"

#include "engine/classement.h"
#include "engine/tirage_suivant.h"
#include "engine/tirage_tour1.h"

namespace {

/// Arguments: teams, rounds played before. One attempt at the draw of the next round, clubs included.
void TirageSuivant(benchmark::State &etat)
{
    limite(etat, double(etat.range(2)));
    essai::Concours &concours = concoursJoue(int(etat.range(0)), int(etat.range(1)));
    const std::vector<moteur::LigneClassement> classement = concours.classement();
    const std::vector<QString> clubs = concours.clubs(classement);
    const std::vector<moteur::PaireJouee> jouees = concours.jouees();
    std::vector<moteur::LigneClassement> lignes;
    for ([[maybe_unused]] auto _ : etat) {
        lignes = classement; // the draw changes its rows
        benchmark::DoNotOptimize(
            moteur::tireTourSuivant({lignes, clubs, jouees, concours.tourpri(), concours.repeche()}));
    }
}
BENCHMARK(TirageSuivant)
    ->ArgNames({"equipes", "tours", ""})
    ->Args({128, 4, 0})
    ->Args({512, 4, 0})
    ->Args({1000, 4, 5})
    ->Args({4000, 4, 20})
    ->Args({10000, 4, 55})
    ->Args({10000, 8, 80})
    ->ArgsProduct({{1000, 4000, 10000}, {1}, {0}})
    ->Unit(benchmark::kMillisecond);

void TirageSuivantUnSeulClub(benchmark::State &etat)
{
    std::vector<moteur::EquipeInscrite> equipes = champ(int(etat.range(0)));
    for (moteur::EquipeInscrite &equipe : equipes)
        equipe.club = u"Pétanque de Sète"_qs;
    essai::Concours concours(equipes, false, 7);
    concours.joueTour();
    const std::vector<moteur::LigneClassement> classement = concours.classement();
    const std::vector<QString> clubs = concours.clubs(classement);
    const std::vector<moteur::PaireJouee> jouees = concours.jouees();
    for ([[maybe_unused]] auto _ : etat) {
        std::vector<moteur::LigneClassement> lignes = classement;
        benchmark::DoNotOptimize(moteur::tireTourSuivant({lignes, clubs, jouees, 1, false}));
    }
}
BENCHMARK(TirageSuivantUnSeulClub)->ArgName("equipes")->Arg(10000)->Unit(benchmark::kMillisecond);

/// The ranking alone, from matches already in memory.
void Classement(benchmark::State &etat)
{
    const std::vector<moteur::Partie> rencontres = concoursJoue(int(etat.range(0)), int(etat.range(1))).rencontres();
    AleaFixe alea(1);
    for ([[maybe_unused]] auto _ : etat)
        benchmark::DoNotOptimize(moteur::etablitClassement(rencontres, alea));
}
BENCHMARK(Classement)
    ->ArgNames({"equipes", "tours"})
    ->Args({128, 8})
    ->Args({512, 8})
    ->Args({1000, 8})
    ->Args({4000, 8})
    ->Args({10000, 8})
    ->Unit(benchmark::kMillisecond);

/// The report of a round: its matches, and what each level could have at least.
void RapportDuTour(benchmark::State &etat)
{
    limite(etat, double(etat.range(2)));
    essai::Concours &concours = concoursJoue(int(etat.range(0)), int(etat.range(1)));
    const std::vector<moteur::Partie> parties = concours.rencontres();
    QHash<int, QString> clubs;
    for (const moteur::EquipeInscrite &equipe : concours.equipes())
        clubs.insert(equipe.equipe, equipe.club);
    for ([[maybe_unused]] auto _ : etat) {
        moteur::RapportTour rapport = moteur::etablitRapport(parties, int(etat.range(1)), clubs);
        moteur::calculeMinimums(rapport, parties, clubs);
        benchmark::DoNotOptimize(rapport);
    }
}
BENCHMARK(RapportDuTour)
    ->ArgNames({"equipes", "tour", ""})
    ->Args({128, 2, 0})
    ->Args({1000, 1, 1000})
    ->Args({1000, 2, 1000})
    ->Args({1000, 5, 1000})
    ->Unit(benchmark::kMillisecond);

/// The largest graph that a level can have: some clubs share all teams, and the draw heeds none of them.
void RapportPeuDeClubs(benchmark::State &etat)
{
    limite(etat, 1000);
    constexpr int equipes = 1000;
    std::vector<moteur::Partie> parties;
    QHash<int, QString> clubs;
    for (int equipe = 1; equipe <= equipes; ++equipe) {
        clubs.insert(equipe, u"Club %1"_qs.arg((equipe - 1) / 2 % etat.range(0)));
        if (equipe % 2 == 0)
            parties.push_back({.tour = 1, .rencontre = equipe / 2, .equipe1 = equipe - 1, .equipe2 = equipe});
    }
    for ([[maybe_unused]] auto _ : etat) {
        moteur::RapportTour rapport = moteur::etablitRapport(parties, 1, clubs);
        moteur::calculeMinimums(rapport, parties, clubs);
        benchmark::DoNotOptimize(rapport);
    }
}
BENCHMARK(RapportPeuDeClubs)->ArgName("clubs")->Arg(2)->Arg(3)->Arg(40)->Unit(benchmark::kMillisecond);

void TirageTour1(benchmark::State &etat)
{
    std::vector<moteur::EquipeInscrite> equipes = champ(int(etat.range(0)));
    if (etat.range(1) != 0) {
        for (moteur::EquipeInscrite &equipe : equipes)
            equipe.club = u"Pétanque de Sète"_qs;
    }
    AleaFixe alea(1);
    for ([[maybe_unused]] auto _ : etat)
        benchmark::DoNotOptimize(moteur::tireTour1(equipes, moteur::pasDExempt, alea));
}
BENCHMARK(TirageTour1)
    ->ArgNames({"equipes", "un_seul_club"})
    ->ArgsProduct({{1000, 10000}, {0, 1}})
    ->Unit(benchmark::kMillisecond);

} // namespace
