#include "commun/programme_pilote.h"
#include "mesure.h"

#include <QAction>
#include <QElapsedTimer>
#include <QFile>

// The lists of a federation, from the menu to the rows on the disk.

namespace {

/// Every licensed player of a country, as an export gives them.
void ecritJoueurs(const QString &fichier, qint64 nombre)
{
    QFile liste(fichier);
    liste.open(QIODevice::WriteOnly);
    liste.write("N° licence;Nom;Prénom;Sexe;Date de naissance;Code club;Nom du club\r\n");
    for (qint64 i = 1; i <= nombre; ++i)
        liste.write(
            u"%1;NÉGREL-%2;Marie-Joëlle;%3;%4/07/19%5;083%6;\"La Boule ; Ferrée %6\"\r\n"_qs.arg(i, 8, 10, QChar(u'0'))
                .arg(i)
                .arg(i % 3 == 0 ? u'F' : u'M')
                .arg(1 + i % 28, 2, 10, QChar(u'0'))
                .arg(40 + i % 60)
                .arg(i % 4000)
                .toUtf8());
}

void ImportJoueurs(benchmark::State &etat)
{
    limite(etat, 5000);
    const qint64 lignes = etat.range(0);
    ProgrammePilote prog;
    prog.demarre();
    ecritJoueurs(prog.dossier() + u"/joueurs.txt"_qs, lignes);
    QAction *menu = prog.menu(u"mnu_ijoueur"_qs);
    for ([[maybe_unused]] auto _ : etat) {
        QElapsedTimer montre;
        montre.start();
        menu->trigger();
        etat.SetIterationTime(double(montre.nsecsElapsed()) / 1e9);
        if (prog.valeur(u"select count(*) from joueurs where ne is not null"_qs).entier() != lignes)
            etat.SkipWithError("the list has not been taken in");
    }
}
BENCHMARK(ImportJoueurs)
    ->ArgName("lignes")
    ->Arg(300'000)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->UseManualTime();

} // namespace
