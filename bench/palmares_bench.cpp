#include "commun/concours_en_base.h"
#include "commun/programme_pilote.h"
#include "concours_bench.h"
#include "fenetres/formulaires.h"
#include "mesure.h"
#include "papier/destinations.h"
#include "printing/imprime_tirage.h"

#include <QFileInfo>

// The honours list, from the rows of the base to the grid painted, and a draw sheet, to the file closed.

namespace {

/// Every round has as many matches as teams allow: the list at its longest.
std::vector<moteur::Partie> toursComplets(int equipes, int tours)
{
    std::vector<moteur::Partie> rencontres;
    for (int tour = 1; tour <= tours; ++tour) {
        for (int equipe = 1; equipe < equipes; equipe += 2) {
            const int perdant = (equipe + tour) % 13;
            rencontres.push_back(
                {.tour = tour, .equipe1 = equipe, .equipe2 = equipe + 1, .score1 = 13, .score2 = perdant});
        }
    }
    return rencontres;
}

/// A started program, its results screen open on a competition of so many teams.
void prepare(ProgrammePilote &prog, int equipes, int tours)
{
    prog.demarre();
    poseRencontres(prog.base(), poseConcours(prog.base(), {.type = u"2 - Triplettes"_qs, .equipes = champ(equipes)}),
                   toursComplets(equipes, tours));
    prog.ouvre(u"f_resultats"_qs);
}

void Palmares(benchmark::State &etat)
{
    limite(etat, double(etat.range(2)));
    ProgrammePilote prog;
    prepare(prog, int(etat.range(0)), int(etat.range(1)));
    for ([[maybe_unused]] auto _ : etat) {
        prog.formulaires().Montre(NomForme(u"palmares"));
        QApplication::processEvents();
        etat.PauseTiming();
        prog.decharge(NomForme(u"palmares"));
        etat.ResumeTiming();
    }
}
BENCHMARK(Palmares)
    ->ArgNames({"equipes", "tours", ""})
    ->Args({128, 14, 0})
    ->Args({512, 14, 300})
    ->Args({1000, 14, 0})
    ->Args({4000, 14, 0})
    ->Unit(benchmark::kMillisecond);

void FeuilleTirage(benchmark::State &etat)
{
    limite(etat, double(etat.range(1)));
    ProgrammePilote prog;
    prepare(prog, int(etat.range(0)), 1);
    const QString fichier = prog.dossier() + u"/tirage.pdf"_qs;
    prog.boites.imprimante = [&] { return std::make_unique<DestinationPdf>(fichier); };
    for ([[maybe_unused]] auto _ : etat)
        ImprimeTirage({prog.partage(), prog.formulaires(), prog.boites}, ModeTirage::Tirage, false, 1, QString());
    if (QFileInfo(fichier).size() == 0)
        etat.SkipWithError("nothing was printed");
}
BENCHMARK(FeuilleTirage)
    ->ArgNames({"equipes", ""})
    ->Args({256, 0})
    ->Args({1024, 2000})
    ->Args({4000, 0})
    ->Unit(benchmark::kMillisecond);

} // namespace
