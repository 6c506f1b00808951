#include "concours_joue.h"

#include "engine/classement.h"
#include "engine/tirage_suivant.h"
#include "engine/tirage_tour1.h"

#include <benchmark/benchmark.h>

#include <map>
#include <memory>

namespace {

/// A field as clubs send it: a large host, mixed teams, the rest from about one club for eight teams.
std::vector<moteur::EquipeInscrite> champ(int equipes)
{
    std::mt19937 sort(2024);
    return essai::inscrit(equipes, {.clubs = 1 + equipes / 8, .pourcentHote = 20, .pourcentPanache = 5}, sort);
}

/// A competition whose \p tours rounds have been drawn and played; kept, since several measures start from it.
essai::Concours &concoursJoue(int equipes, int tours)
{
    static std::map<std::pair<int, int>, std::unique_ptr<essai::Concours>> joues;
    std::unique_ptr<essai::Concours> &concours = joues[{equipes, tours}];
    if (!concours) {
        concours = std::make_unique<essai::Concours>(champ(equipes), false, 7);
        for (int tour = 0; tour < tours; ++tour)
            concours->joueTour({.pourcentMots = 3});
    }
    return *concours;
}

/// Arguments: teams, rounds played before. One attempt at the draw of the next round, clubs included.
void TirageSuivant(benchmark::State &etat)
{
    essai::Concours &concours = concoursJoue(int(etat.range(0)), int(etat.range(1)));
    const std::vector<moteur::LigneClassement> classement = concours.classement();
    const std::vector<QString> clubs = concours.clubs(classement);
    const std::vector<moteur::PaireJouee> jouees = concours.jouees();
    std::vector<moteur::LigneClassement> lignes;
    for (auto _ : etat) {
        lignes = classement; // the draw changes its rows
        benchmark::DoNotOptimize(
            moteur::tireTourSuivant({lignes, clubs, jouees, concours.tourpri(), concours.repeche()}));
    }
    etat.SetComplexityN(etat.range(0));
}
BENCHMARK(TirageSuivant)
    ->ArgNames({"equipes", "tours"})
    ->ArgsProduct({{1000, 4000, 10000}, {4}})
    ->Unit(benchmark::kMillisecond)
    ->Complexity();
BENCHMARK(TirageSuivant)
    ->ArgNames({"equipes", "tours"})
    ->ArgsProduct({{1000, 4000, 10000}, {1, 8}})
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
    for (auto _ : etat) {
        std::vector<moteur::LigneClassement> lignes = classement;
        benchmark::DoNotOptimize(moteur::tireTourSuivant({lignes, clubs, jouees, 1, false}));
    }
}
BENCHMARK(TirageSuivantUnSeulClub)->ArgName("equipes")->Arg(10000)->Unit(benchmark::kMillisecond);

/// The ranking alone, from matches already in memory.
void Classement(benchmark::State &etat)
{
    const std::vector<moteur::Rencontre> rencontres
        = concoursJoue(int(etat.range(0)), int(etat.range(1))).rencontres();
    AleaFixe alea(1);
    for (auto _ : etat)
        benchmark::DoNotOptimize(moteur::etablitClassement(rencontres, alea));
}
BENCHMARK(Classement)
    ->ArgNames({"equipes", "tours"})
    ->Args({512, 8})
    ->Args({4000, 8})
    ->Unit(benchmark::kMillisecond);

void TirageTour1(benchmark::State &etat)
{
    std::vector<moteur::EquipeInscrite> equipes = champ(int(etat.range(0)));
    if (etat.range(1) != 0) {
        for (moteur::EquipeInscrite &equipe : equipes)
            equipe.club = u"Pétanque de Sète"_qs;
    }
    AleaFixe alea(1);
    for (auto _ : etat)
        benchmark::DoNotOptimize(moteur::tireTour1(equipes, moteur::pasDExempt, alea));
}
BENCHMARK(TirageTour1)
    ->ArgNames({"equipes", "un_seul_club"})
    ->ArgsProduct({{1000, 10000}, {0, 1}})
    ->Unit(benchmark::kMillisecond);

} // namespace
