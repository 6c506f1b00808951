#include "commun/base_essai.h"
#include "commun/concours_en_base.h"
#include "commun/programme_pilote.h"
#include "concours_bench.h"
#include "engine/routines_tirage.h"
#include "garde/sauvegarde.h"
#include "mesure.h"
#include "outils/projection.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QLineEdit>
#include <QTableView>

// What the operator waits for: the store, the forms and the disk included.

namespace {

constexpr int concoursDeLaSaison = 20;
constexpr int joueursPreEnregistres = 10000;

/// What a base holds in the middle of a season: earlier competitions and the file of players.
void poseSaison(store::Database &base)
{
    const essai::Concours &ancien = concoursJoue(64, 6);
    for (int fois = 0; fois < concoursDeLaSaison; ++fois) {
        const qint32 numero = poseConcours(base, {.type = u"2 - Triplettes"_qs, .equipes = ancien.equipes()});
        poseRencontres(base, numero, ancien.rencontres());
    }
    base.EcritEnGroupe([&] {
        store::Instruction joueur(base.native(),
                                  u"insert into equipes (concours, equipe, doublon, nom, prenom, "
                                  u"licence, societe, sexe) values (0, ?, 0, ?, 'Dominique', ?, "
                                  u"'Pétanque de Sète', 'F')"_qs);
        for (int numero = 1; numero <= joueursPreEnregistres; ++numero) {
            joueur.lie(1, numero);
            joueur.lie(2, u"Joueuse %1"_qs.arg(numero));
            joueur.lie(3, u"%1"_qs.arg(numero, 8, 10, QChar(u'0')));
            joueur.avance();
        }
    });
}

qint32 poseConcoursJoue(store::Database &base, int equipes, int tours)
{
    const essai::Concours &concours = concoursJoue(equipes, tours);
    const qint32 numero = poseConcours(base, {.type = u"2 - Triplettes"_qs, .equipes = concours.equipes()});
    poseRencontres(base, numero, concours.rencontres());
    return numero;
}

/// A started program in the middle of a season, its results screen open on a competition of so many teams.
class EcranResultats
{
public:
    EcranResultats(int equipes, int tours)
    {
        prog.demarre();
        poseSaison(prog.base());
        concours = poseConcoursJoue(prog.base(), equipes, tours);
        prog.ouvre(u"f_resultats"_qs);
    }

    /// Takes the rounds behind \p tour away and shows the competition as it then stands.
    void revientAuTour(int tour)
    {
        prog.base().native().executeScript(u"delete from scores where concours = %1 and tour > %2; "
                                           u"update concours set tourpri = %2 where concours = %1"_qs.arg(concours)
                                               .arg(tour));
        prog.ouvre(u"f_accueil"_qs);
        prog.ouvre(u"f_resultats"_qs);
    }

    ProgrammePilote prog;
    qint32 concours = 0;
};

double secondes(const QElapsedTimer &montre)
{
    return double(montre.nsecsElapsed()) / 1e9;
}

void CalculClassement(benchmark::State &etat)
{
    limite(etat, double(etat.range(2)));
    const BaseEssai base;
    AleaFixe alea(1);
    const Horloge horloge;
    Partage partage(base.dossier(), alea, horloge);
    partage.BaseDonnees = base.ouvre();
    poseSaison(partage.BaseDonnees);
    const qint32 concours = poseConcoursJoue(partage.BaseDonnees, int(etat.range(0)), int(etat.range(1)));
    for ([[maybe_unused]] auto _ : etat)
        ::CalculClassement(partage, QString::number(concours));
}
BENCHMARK(CalculClassement)
    ->ArgNames({"equipes", "tours", ""})
    ->Args({128, 8, 0})
    ->Args({512, 8, 15})
    ->Args({1000, 8, 0})
    ->Args({4000, 8, 150})
    ->Args({10000, 8, 0})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

/// The sums of a season, from its rows to the list painted.
void SommesSaison(benchmark::State &etat)
{
    limite(etat, 500);
    ProgrammePilote prog;
    prog.demarre();
    const essai::Concours &joue = concoursJoue(int(etat.range(1)), 7);
    for (int fois = 0; fois < etat.range(0); ++fois)
        poseRencontres(prog.base(), poseConcours(prog.base(), {.equipes = joue.equipes()}), joue.rencontres());
    for ([[maybe_unused]] auto _ : etat) {
        prog.menu(u"mnu_Saison"_qs)->trigger();
        QApplication::processEvents();
        etat.PauseTiming();
        if (prog.controle<QTableView>(u"Saison"_qs, u"Lignes"_qs)->model()->rowCount() == 0)
            etat.SkipWithError("the list is empty");
        prog.decharge(NomForme(u"Saison"));
        QApplication::processEvents();
        etat.ResumeTiming();
    }
}
BENCHMARK(SommesSaison)
    ->ArgNames({"concours", "equipes"})
    ->Args({40, 128})
    ->Unit(benchmark::kMillisecond)
    ->Iterations(5)
    ->UseRealTime();

/// A safety copy of a season's base, on the disk.
void CopieDeSecurite(benchmark::State &etat)
{
    limite(etat, 100);
    const BaseEssai base;
    AleaFixe alea(1);
    const Horloge horloge;
    Partage partage(base.dossier(), alea, horloge);
    partage.BaseDonnees = base.ouvre();
    poseSaison(partage.BaseDonnees);
    for ([[maybe_unused]] auto _ : etat) {
        etat.PauseTiming();
        partage.BaseDonnees.Execute(u"update concours set tourpri = 1");
        etat.ResumeTiming();
        if (SauveBase(partage, RaisonCopie::Demande).echouee())
            etat.SkipWithError("the copy has failed");
    }
    etat.counters["Mo"] = double(QFileInfo(base.fichier()).size()) / 1e6;
}
BENCHMARK(CopieDeSecurite)->Unit(benchmark::kMillisecond)->Iterations(25)->UseRealTime();

/// From the click on the draw button to the form with the new round, which is safe on the disk by then.
void ClicTirageSuivant(benchmark::State &etat)
{
    limite(etat, 150);
    const int tours = int(etat.range(1));
    EcranResultats ecran(int(etat.range(0)), tours);
    for ([[maybe_unused]] auto _ : etat) {
        ecran.revientAuTour(tours);
        // What the draw could not avoid is told in a box; the operator's time to answer is not the program's.
        ecran.prog.boites.repondATout();
        QElapsedTimer montre;
        montre.start();
        ecran.prog.clique(u"EResultats"_qs, u"tirage_suivant"_qs);
        QApplication::processEvents();
        etat.SetIterationTime(secondes(montre));
        if (ecran.prog.partage().TourCourant != tours + 1)
            etat.SkipWithError("the round has not been drawn");
    }
}
BENCHMARK(ClicTirageSuivant)
    ->ArgNames({"equipes", "tours"})
    ->Args({1000, 1})
    ->Args({1000, 4})
    ->Args({1000, 8})
    ->Unit(benchmark::kMillisecond)
    ->Iterations(5)
    ->UseManualTime();

/// From Enter behind the loser's score to the form that waits for the next team, the result safe on the disk; the
/// public sees it too, where \p publique is not 0.
void ResultatEntre(benchmark::State &etat)
{
    limite(etat, 16);
    constexpr int tours = 3;
    EcranResultats ecran(int(etat.range(0)), tours);
    ProgrammePilote &prog = ecran.prog;
    if (etat.range(1) != 0)
        projection({prog.partage(), prog.formulaires(), prog.boites}, *prog.torvik()).montre();
    prog.clique(u"EResultats"_qs, u"tirage_suivant"_qs);
    for ([[maybe_unused]] auto _ : etat) {
        const QString attendue = prog.valeur(u"select equipe_1 from scores where score_1 is null limit 1"_qs).texte();
        prog.tape(attendue + u"\n7"_qs);
        QElapsedTimer montre;
        montre.start();
        prog.touche(Qt::Key_Return);
        QApplication::processEvents();
        etat.SetIterationTime(secondes(montre));
        if (prog.focus() != u"Equipe1")
            etat.SkipWithError("the result has not been stored");
    }
}
BENCHMARK(ResultatEntre)
    ->ArgNames({"equipes", "publique"})
    ->Args({512, 0})
    ->Args({512, 1})
    ->Unit(benchmark::kMillisecond)
    ->Iterations(60)
    ->UseManualTime();

/// From nothing to the welcome window, the key of the base derived, and its copy made or, at a further start, proved.
void Demarrage(benchmark::State &etat)
{
    limite(etat, 400);
    for ([[maybe_unused]] auto _ : etat) {
        ProgrammePilote prog;
        prog.avecCopies();
        if (etat.range(0) != 0) {
            store::Database base =
                store::DBEngine().Workspaces(0).OpenDatabase(prog.fichier(), false, false, BaseEssai::connexion());
            poseSaison(base);
        }
        if (etat.range(1) != 0) {
            prog.demarre();
            prog.termine();
        }
        QElapsedTimer montre;
        montre.start();
        const bool demarre = prog.demarre();
        QApplication::processEvents();
        etat.SetIterationTime(secondes(montre));
        if (!demarre || !prog.formulaires().estVisible(u"Accueil"_qs))
            etat.SkipWithError("the program has not started");
    }
}
BENCHMARK(Demarrage)
    ->ArgNames({"saison", "copiee"})
    ->Args({0, 0})
    ->Args({1, 0})
    ->Args({1, 1})
    ->Unit(benchmark::kMillisecond)
    ->Iterations(5)
    ->UseManualTime();

} // namespace
