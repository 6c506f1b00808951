#include "commun/concours_en_base.h"
#include "commun/programme_pilote.h"
#include "concours_bench.h"
#include "mesure.h"
#include "results/affichage_attendus.h"
#include "results/affichage_joues.h"

// The result views: from the call to the grids filled and painted.

namespace {

constexpr int tours = 8;

/// A started program whose views stand beside the results screen, on a competition of so many teams.
class EcranVues
{
public:
    explicit EcranVues(int equipes)
    {
        prog.demarre();
        const essai::Concours &concours = concoursJoue(equipes, tours);
        poseRencontres(prog.base(),
                       poseConcours(prog.base(), {.type = u"2 - Triplettes"_qs, .equipes = concours.equipes()}),
                       concours.rencontres());
        prog.ouvre(u"f_resultats"_qs);
        prog.clique(u"EResultats"_qs, u"manquants"_qs);
        prog.clique(u"EResultats"_qs, u"VALIDATION"_qs);
        QApplication::processEvents();
    }

    ProgrammePilote prog;
};

void AfficheJoues(benchmark::State &etat)
{
    limite(etat, double(etat.range(1)));
    EcranVues ecran(int(etat.range(0)));
    for ([[maybe_unused]] auto _ : etat) {
        ::AfficheJoues(ecran.prog.partage(), ecran.prog.formulaires());
        QApplication::processEvents();
    }
}

/// The ranking included.
void AfficheAttendus(benchmark::State &etat)
{
    limite(etat, double(etat.range(1)));
    EcranVues ecran(int(etat.range(0)));
    for ([[maybe_unused]] auto _ : etat) {
        ::AfficheAttendus(ecran.prog.partage(), ecran.prog.formulaires());
        QApplication::processEvents();
    }
}

/// Teams, and the limit where there is one.
void tailles(benchmark::internal::Benchmark *mesure)
{
    mesure->ArgNames({"equipes", ""})->Unit(benchmark::kMillisecond);
    for (const auto &[equipes, ms] : {std::pair(128, 0), {512, 50}, {1000, 0}, {4000, 500}, {10000, 0}})
        mesure->Args({equipes, ms});
}
BENCHMARK(AfficheJoues)->Apply(tailles);
BENCHMARK(AfficheAttendus)->Apply(tailles);

} // namespace
