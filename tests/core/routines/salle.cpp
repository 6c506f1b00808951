#include "salle.h"

#include "engine/routines_resultats.h"
#include "partage/concours_courant.h"

using moteur::LigneClassement;
using moteur::Partie;
using store::Instruction;
using store::Recordset;

namespace {

std::optional<int> optionnel(const Instruction &ligne, int colonne)
{
    return ligne.estNulle(colonne) ? std::nullopt : std::optional(int(ligne.nombre(colonne)));
}

std::optional<int> optionnel(const Recordset &ligne, QStringView champ)
{
    return ligne[champ].estNull() ? std::nullopt : std::optional(int(ligne[champ].entier()));
}

} // namespace

qint32 Salle::inscrit(const ConcoursInscrit &concours)
{
    const qint32 numero = poseConcours(partage.BaseDonnees, concours);
    choisit(numero);
    return numero;
}

void Salle::choisit(qint32 concours)
{
    partage.ConcoursCourant = concours;
    ChargeConcours(partage, partage.ConcoursCourant);
    ReprendTour(partage);
}

std::vector<Partie> Salle::scores(int tour)
{
    std::vector<Partie> lignes;
    Instruction lecture(native(),
                        u"select tour, rencontre, equipe_1, equipe_2, score_1, score_2, repechage "
                        u"from scores where concours = ?1 and tableau = 1 and (?2 = 0 or tour = ?2) "
                        u"order by rowid"_qs);
    lecture.lie(1, partage.ConcoursCourant);
    lecture.lie(2, tour);
    while (lecture.avance())
        lignes.push_back({.tour = int(lecture.nombre(0)),
                          .rencontre = int(lecture.nombre(1)),
                          .equipe1 = int(lecture.nombre(2)),
                          .equipe2 = int(lecture.nombre(3)),
                          .score1 = optionnel(lecture, 4),
                          .score2 = optionnel(lecture, 5),
                          .repechage = optionnel(lecture, 6)});
    return lignes;
}

std::vector<LigneClassement> Salle::tbclass()
{
    std::vector<LigneClassement> lignes;
    Recordset table = partage.BaseDonnees.OpenRecordset(u"tbclass", store::dbOpenTable);
    table.Index(u"rankkey");
    if (table.RecordCount() > 0)
        table.MoveFirst();
    for (; !table.Eof(); table.MoveNext())
        lignes.push_back({.equipe = int(table[u"Equipe"].entier()),
                          .gagnées = int(table[u"gagnées"].entier()),
                          .perdues = int(table[u"perdues"].entier()),
                          .pp = optionnel(table, u"pp"),
                          .pc = optionnel(table, u"pc"),
                          .ga = optionnel(table, u"ga"),
                          .pt = int(table[u"pt"].entier()),
                          .repechage = optionnel(table, u"repechage"),
                          .alea = int(table[u"alea"].entier())});
    return lignes;
}

int Salle::tourpri()
{
    return int(nombre(u"select tourpri from concours where concours = %1"_qs.arg(partage.ConcoursCourant)));
}

Salle::Clic Salle::clique(bool recommence)
{
    Clic clic;
    clic.bilan = LanceTourSuivant(partage, {.essai = [&] { ++clic.essais; }, .signe = {}});
    if (clic.bilan.obstacle == ObstacleAuTirage::TirageSansResultat && recommence)
        RefaitTirage(partage);
    return clic;
}

bool Salle::saisit(int equipe1, int equipe2, const QString &score1, const QString &score2)
{
    return EnregistreScore(partage,
                           {QString::number(partage.ConcoursCourant), QString::number(equipe1),
                            QString::number(equipe2), score1, score2});
}
