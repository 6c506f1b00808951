#include "commun/concours_en_base.h"
#include "commun/programme_pilote.h"
#include "concours_bench.h"
#include "grille/flexgrid.h"
#include "mesure.h"

#include <QAction>
#include <QScrollBar>

// The lists of the registration table, on a file of players as large as that of a region.

namespace {

constexpr int joueurs = 12000;
constexpr int clubs = 300;

void poseJoueurs(store::Database &base)
{
    base.EcritEnGroupe([&] {
        store::Instruction joueur(base.native(),
                                  u"insert into equipes (concours, equipe, doublon, nom, prenom, "
                                  u"licence, societe, ne, sexe) values (0, ?, 0, ?, ?, ?, ?, "
                                  u"'1961-07-14', 'F')"_qs);
        for (int numero = 1; numero <= joueurs; ++numero) {
            // Neither names nor licences come in their order, and one name in four bears an accent.
            const int melange = numero * 7919 % joueurs;
            joueur.lie(1, numero);
            joueur.lie(2, (melange % 4 == 0 ? u"Bérenger %1"_qs : u"Martin %1"_qs).arg(melange));
            joueur.lie(3, u"Dominique"_qs);
            joueur.lie(4, u"%1"_qs.arg(melange, 8, 10, QChar(u'0')));
            joueur.lie(5, u"Pétanque de Sète %1"_qs.arg(melange % clubs));
            joueur.avance();
        }
    });
}

/// A started program with its file of players, a competition of so many teams, and the registration open on it.
class TableInscription
{
public:
    explicit TableInscription(int equipes)
    {
        prog.demarre();
        poseJoueurs(prog.base());
        poseConcours(prog.base(), {.type = u"2 - Triplettes"_qs, .equipes = concoursJoue(equipes, 1).equipes()});
        // The first member of each team is a known player.
        prog.base().Execute(u"update equipes set licence = '0000' + equipe where concours > 0 and doublon = 0");
        prog.ouvre(u"f_equipes"_qs);
    }

    /// Shows the list behind \p bouton, from the click to its rows painted.
    void ouvreListe(const QString &bouton)
    {
        prog.clique(u"Eequipes"_qs, bouton);
        QApplication::processEvents();
    }
    FlexGrid &grille(const QString &liste) { return *static_cast<FlexGrid *>(prog.controle(liste, u"Les_équipes"_qs)); }

    ProgrammePilote prog;
};

void OuvreListeJoueurs(benchmark::State &etat)
{
    limite(etat, 500);
    TableInscription table(16);
    for ([[maybe_unused]] auto _ : etat) {
        table.ouvreListe(u"Command2"_qs);
        etat.PauseTiming();
        if (table.grille(u"listjo"_qs).Rows() != joueurs + 1)
            etat.SkipWithError("the list is not whole");
        table.prog.decharge(NomForme(u"listjo"));
        etat.ResumeTiming();
    }
}
BENCHMARK(OuvreListeJoueurs)->Unit(benchmark::kMillisecond)->Iterations(5)->UseRealTime();

/// Every member of the teams, each looked up among the players, and the text file written.
void OuvreListeEquipes(benchmark::State &etat)
{
    limite(etat, 500);
    TableInscription table(int(etat.range(0)));
    for ([[maybe_unused]] auto _ : etat) {
        table.ouvreListe(u"Command1"_qs);
        etat.PauseTiming();
        if (table.grille(u"listeq"_qs).Rows() != 3 * etat.range(0) + 1)
            etat.SkipWithError("the list is not whole");
        table.prog.decharge(NomForme(u"listeq"));
        etat.ResumeTiming();
    }
}
BENCHMARK(OuvreListeEquipes)
    ->ArgName("equipes")
    ->Arg(128)
    ->Arg(512)
    ->Arg(1000)
    ->Arg(4000)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(5)
    ->UseRealTime();

/// A right click on a column: numbers, names with accents, or licences.
void TrieListeJoueurs(benchmark::State &etat)
{
    limite(etat, 150);
    TableInscription table(16);
    table.ouvreListe(u"Command2"_qs);
    FlexGrid &grille = table.grille(u"listjo"_qs);
    const QPoint cellule = grille.visualRect(grille.model()->index(0, int(etat.range(0)))).center();
    for ([[maybe_unused]] auto _ : etat) {
        QTest::mouseClick(grille.viewport(), Qt::RightButton, Qt::NoModifier, cellule);
        QApplication::processEvents();
    }
}
BENCHMARK(TrieListeJoueurs)->ArgName("colonne")->Arg(0)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond)->UseRealTime();

/// One page further down, painted.
void DefileListeJoueurs(benchmark::State &etat)
{
    limite(etat, 16);
    TableInscription table(16);
    table.ouvreListe(u"Command2"_qs);
    QScrollBar *barre = table.grille(u"listjo"_qs).verticalScrollBar();
    for ([[maybe_unused]] auto _ : etat) {
        barre->setValue(barre->value() < barre->maximum() ? barre->value() + barre->pageStep() : 0);
        QApplication::processEvents();
    }
}
BENCHMARK(DefileListeJoueurs)->Unit(benchmark::kMillisecond)->UseRealTime();

/// From the menu to the form of the players, its list of numbers filled.
void OuvreFichierJoueurs(benchmark::State &etat)
{
    limite(etat, 500);
    TableInscription table(16);
    QAction *entree = table.prog.menu(u"mnu_joueurs"_qs);
    for ([[maybe_unused]] auto _ : etat) {
        entree->trigger();
        QApplication::processEvents();
        etat.PauseTiming();
        if (table.prog.focus() != u"Société")
            etat.SkipWithError("the form has not opened");
        table.prog.ouvre(u"f_equipes"_qs);
        etat.ResumeTiming();
    }
}
BENCHMARK(OuvreFichierJoueurs)->Unit(benchmark::kMillisecond)->Iterations(5)->UseRealTime();

} // namespace
