#include "engine/routines_tirage.h"

#include "engine/controle_tours.h"
#include "engine/tirage_tour1.h"
#include "partage/routines.h"

#include <QHash>

#include <limits>
#include <utility>

using moteur::LigneClassement;
using moteur::Partie;
using store::Instruction;
using store::Valeur;

namespace {

constexpr int premierTour = 1;

std::optional<int> optionnel(const Instruction &ligne, int colonne)
{
    return ligne.estNulle(colonne) ? std::nullopt : std::optional(int(ligne.nombre(colonne)));
}

void ecritClassement(Partage &partage, qint64 concours, const std::vector<LigneClassement> &lignes)
{
    partage.BaseDonnees.Execute(u"delete * from tbclass");
    Instruction ajout(partage.BaseDonnees.native(),
                      u"insert into tbclass (equipe, gagnées, perdues, pp, pc, ga, pt, concours, repechage, alea) "
                      u"values (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"_qs);
    for (const LigneClassement &ligne : lignes) {
        const Valeur champs[] = {ligne.equipe, ligne.gagnées, ligne.perdues, ligne.pp,        ligne.pc,
                                 ligne.ga,     ligne.pt,      concours,      ligne.repechage, ligne.alea};
        int indice = 0;
        for (const Valeur &champ : champs)
            ajout.lie(++indice, champ);
        ajout.avance();
    }
}

void metAJourClassement(Partage &partage, const std::vector<LigneClassement> &avant,
                        const std::vector<LigneClassement> &apres)
{
    Instruction change(partage.BaseDonnees.native(),
                       u"update tbclass set pt = ?, alea = ?, repechage = ? where equipe = ?"_qs);
    for (std::size_t i = 0; i < apres.size(); ++i) {
        if (apres[i] == avant[i])
            continue;
        change.lie(1, apres[i].pt);
        change.lie(2, apres[i].alea);
        change.lie(3, apres[i].repechage);
        change.lie(4, apres[i].equipe);
        change.avance();
    }
}

/// Pairs of the rounds before \p tour, in the order of the store.
std::vector<moteur::PaireJouee> litPairesJouees(Partage &partage, int tour)
{
    std::vector<moteur::PaireJouee> paires;
    Instruction lecture(partage.BaseDonnees.native(),
                        u"select equipe_1, equipe_2 from scores where concours = ? and tour < ? order by rowid"_qs);
    lecture.lie(1, partage.ConcoursCourant);
    lecture.lie(2, tour);
    while (lecture.avance())
        paires.push_back({int(lecture.nombre(0)), int(lecture.nombre(1))});
    return paires;
}

void ecritParties(Partage &partage, qint16 tableau, const std::vector<Partie> &parties)
{
    Instruction ajout(partage.BaseDonnees.native(),
                      u"insert into scores (concours, tableau, tour, rencontre, equipe_1, equipe_2, score_1, score_2, "
                      u"repechage) values (?, ?, ?, ?, ?, ?, ?, ?, ?)"_qs);
    for (const Partie &partie : parties) {
        const Valeur champs[] = {partage.ConcoursCourant, tableau,        partie.tour,
                                 partie.rencontre,        partie.equipe1, partie.equipe2,
                                 partie.score1,           partie.score2,  partie.repechage};
        int indice = 0;
        for (const Valeur &champ : champs)
            ajout.lie(++indice, champ);
        ajout.avance();
    }
}

std::vector<moteur::EquipeInscrite> litEquipesInscrites(Partage &partage)
{
    const QHash<int, QString> clubs = LitClubs(partage);
    store::Recordset evolution =
        partage.BaseDonnees.OpenRecordset(u"select * from evolution where (principal >= 1 and concours = %1);"_qs.arg(
                                              partage.ConcoursCourant),
                                          store::dbOpenSnapshot);
    std::vector<moteur::EquipeInscrite> equipes;
    for (; !evolution.Eof(); evolution.MoveNext()) {
        const int equipe = int(evolution[u"equipe"].entier());
        equipes.push_back({equipe, clubs.value(equipe)});
    }
    return equipes;
}

bool tourDejaTire(Partage &partage, qint16 tableau, int tour)
{
    store::Recordset scores = partage.BaseDonnees.OpenRecordset(u"scores", store::dbOpenTable);
    scores.Index(u"tirage");
    scores.Seek(u"=", {partage.ConcoursCourant, tableau, tour});
    return !scores.NoMatch();
}

/// Last round that the current competition has matches of, nothing without any.
std::optional<int> dernierTourTire(Partage &partage)
{
    const Valeur tour =
        ValeurUnique(partage, u"select max(tour) from scores where concours=%1"_qs.arg(partage.ConcoursCourant));
    return tour.estNull() ? std::nullopt : std::optional(int(tour.entier()));
}

/// Team that had the bye of the round before \p tour, which the draw takes first; pasDExempt without one, as always
/// before round 1. Asked all the same: the rules give that team its place in any draw of this kind.
int exemptDuTourPrecedent(Partage &partage, qint16 tableau, int tour)
{
    const QString bye =
        u"select * from scores where tableau = %1 and equipe_2=0 and concours = %2 and tour = %3"_qs.arg(tableau)
            .arg(partage.ConcoursCourant)
            .arg(tour - 1);
    const store::Recordset exempt = partage.BaseDonnees.OpenRecordset(bye, store::dbOpenSnapshot);
    return exempt.Eof() ? moteur::pasDExempt : int(exempt[u"equipe_1"].entier());
}

void fixeTourPrincipal(Partage &partage, int tour)
{
    partage.BaseDonnees.Execute(
        u"update concours set tourpri= %1 where concours=%2"_qs.arg(tour).arg(partage.ConcoursCourant));
}

/// Draws round 1 into the store; what the program knows of it follows once the draw is on the disk.
void ecritTirageTour1(Partage &partage, qint16 tableau)
{
    const int exempt = exemptDuTourPrecedent(partage, tableau, premierTour);
    const auto parties = moteur::tireTour1(litEquipesInscrites(partage), exempt, partage.alea);
    partage.BaseDonnees.EcritEnGroupe([&] {
        ecritParties(partage, tableau, parties);
        fixeTourPrincipal(partage, premierTour);
    });
}

/// Brings the file of the base up to the draw. A failure loses nothing: GardeBase tries again, and tells.
void metLeFichierAJour(Partage &partage)
{
    try {
        partage.BaseDonnees.native().consolide();
    } catch (const store::Erreur &) {
    }
}

} // namespace

std::vector<Partie> LitParties(Partage &partage, qint64 concours)
{
    std::vector<Partie> parties;
    Instruction lecture(partage.BaseDonnees.native(),
                        u"select tour, equipe_1, equipe_2, score_1, score_2, repechage from scores where concours = ? "
                        u"order by tour, equipe_1, rowid"_qs);
    lecture.lie(1, concours);
    while (lecture.avance())
        parties.push_back({.tour = int(lecture.nombre(0)),
                           .equipe1 = int(lecture.nombre(1)),
                           .equipe2 = int(lecture.nombre(2)),
                           .score1 = optionnel(lecture, 3),
                           .score2 = optionnel(lecture, 4),
                           .repechage = optionnel(lecture, 5)});
    return parties;
}

QHash<int, QString> LitClubs(Partage &partage)
{
    QHash<int, QString> clubs;
    Instruction lecture(partage.BaseDonnees.native(),
                        u"select equipe, societe from equipes where concours = ? order by equipe, doublon"_qs);
    lecture.lie(1, partage.ConcoursCourant);
    int precedente = -1;
    while (lecture.avance()) {
        const int equipe = int(lecture.nombre(0));
        if (equipe != precedente)
            clubs.insert(equipe, lecture.valeur(1).texte());
        precedente = equipe;
    }
    return clubs;
}

void CalculClassement(Partage &partage, const QString &concours)
{
    const qint64 numero = Valeur(concours).entier();
    const auto lignes = moteur::etablitClassement(LitParties(partage, numero), partage.alea);
    partage.BaseDonnees.EcritEnGroupe([&] { ecritClassement(partage, numero, lignes); });
}

std::vector<LigneClassement> LitClassement(Partage &partage)
{
    std::vector<LigneClassement> lignes;
    Instruction lecture(partage.BaseDonnees.native(),
                        u"select equipe, gagnées, perdues, pp, pc, ga, pt, repechage, alea from tbclass "
                        u"order by pt desc, ga desc, equipe"_qs);
    while (lecture.avance())
        lignes.push_back({.equipe = int(lecture.nombre(0)),
                          .gagnées = int(lecture.nombre(1)),
                          .perdues = int(lecture.nombre(2)),
                          .pp = optionnel(lecture, 3),
                          .pc = optionnel(lecture, 4),
                          .ga = optionnel(lecture, 5),
                          .pt = int(lecture.nombre(6)),
                          .repechage = optionnel(lecture, 7),
                          .alea = int(lecture.nombre(8))});
    return lignes;
}

ObstacleAuTirage ConfirmeTirage(Partage &partage)
{
    const QString tirage = u"select * from scores where concours=%1 and tableau=1"_qs.arg(partage.ConcoursCourant);
    const auto existe = [&](const QString &sql) {
        return !partage.BaseDonnees.OpenRecordset(sql, store::dbOpenSnapshot).Eof();
    };
    if (existe(tirage + u" and (not isnull(score_1) and not isnull(score_2))"_qs))
        return ObstacleAuTirage::ResultatsTombes;
    if (existe(tirage))
        return ObstacleAuTirage::TirageSansResultat;
    return TirageTour1(partage, 1) ? ObstacleAuTirage::Aucun : ObstacleAuTirage::DejaTire;
}

void RefaitTirage(Partage &partage)
{
    // One group: a power cut leaves the old draw or the new one.
    partage.BaseDonnees.EcritEnGroupe([&] {
        for (const QStringView table : {u"scores", u"tnequipes", u"tirages_pro"})
            partage.BaseDonnees.Execute(
                u"delete * from %1 where concours=%2 and tableau=1"_qs.arg(table).arg(partage.ConcoursCourant));
        ecritTirageTour1(partage, 1);
    });
    partage.TourCourant = premierTour;
    metLeFichierAJour(partage);
}

bool TirageTour1(Partage &partage, qint16 tableau, int)
{
    if (tourDejaTire(partage, tableau, premierTour))
        return false;
    ecritTirageTour1(partage, tableau);
    partage.TourCourant = premierTour;
    metLeFichierAJour(partage);
    return true;
}

void PasseAuTour1(Partage &partage)
{
    fixeTourPrincipal(partage, premierTour);
    partage.TourCourant = premierTour;
    metLeFichierAJour(partage);
}

void TirageSuivant(Partage &partage, const SuiviTirage &suivi)
{
    const std::vector<LigneClassement> avant = LitClassement(partage);
    std::vector<LigneClassement> apres = avant;
    const QHash<int, QString> clubsDesEquipes = LitClubs(partage);
    std::vector<QString> clubs;
    clubs.reserve(apres.size());
    for (const LigneClassement &ligne : apres)
        clubs.push_back(clubsDesEquipes.value(ligne.equipe));
    const std::vector<moteur::PaireJouee> jouees = litPairesJouees(partage, std::numeric_limits<int>::max());

    partage.TabTirage = moteur::tireTourSuivant({.classement = apres,
                                                 .clubs = clubs,
                                                 .jouees = jouees,
                                                 .tourpri = partage.TourCourant,
                                                 .repeche = partage.AvecRepechage},
                                                [&](QStringView signe) {
                                                    if (suivi.signe)
                                                        suivi.signe(signe);
                                                });
    partage.BaseDonnees.EcritEnGroupe([&] { metAJourClassement(partage, avant, apres); });
}

BilanLancement LanceTourSuivant(Partage &partage, const SuiviTirage &suivi)
{
    if (partage.TourCourant <= 0 || !dernierTourTire(partage))
        return {.obstacle = ConfirmeTirage(partage)};
    const int tour = partage.TourCourant + 1;
    partage.EssaisTirage = 0;
    do {
        ++partage.EssaisTirage;
        CalculClassement(partage, QString::number(partage.ConcoursCourant));
        if (suivi.essai)
            suivi.essai();
        TirageSuivant(partage, suivi);
    } while (moteur::tirageARefaire(partage.TabTirage.statut, partage.TourCourant, partage.EssaisTirage));

    const auto parties = moteur::partiesDuTour(partage.TabTirage, LitClassement(partage), tour);
    // The matches and the round number reach the disk together: a power cut leaves the old round or the new one.
    partage.BaseDonnees.EcritEnGroupe([&] {
        ecritParties(partage, 1, parties);
        fixeTourPrincipal(partage, tour);
    });
    partage.TourCourant = qint16(tour);
    metLeFichierAJour(partage);
    return {.statut = std::exchange(partage.TabTirage, {}).statut};
}

TourPropose ProposeTour(Partage &partage, int tour)
{
    if (tour == premierTour)
        return {.parties = moteur::tireTour1(litEquipesInscrites(partage),
                                             exemptDuTourPrecedent(partage, 1, premierTour), partage.alea)};
    std::vector<Partie> avant = LitParties(partage, partage.ConcoursCourant);
    std::erase_if(avant, [tour](const Partie &partie) { return partie.tour >= tour; });
    const std::vector<moteur::PaireJouee> jouees = litPairesJouees(partage, tour);
    const QHash<int, QString> clubsDesEquipes = LitClubs(partage);
    moteur::TabTirage table;
    std::vector<LigneClassement> classement;
    int essais = 0;
    do {
        ++essais;
        classement = moteur::etablitClassement(avant, partage.alea);
        std::vector<QString> clubs;
        clubs.reserve(classement.size());
        for (const LigneClassement &ligne : classement)
            clubs.push_back(clubsDesEquipes.value(ligne.equipe));
        table = moteur::tireTourSuivant({.classement = classement,
                                         .clubs = clubs,
                                         .jouees = jouees,
                                         .tourpri = tour - 1,
                                         .repeche = partage.AvecRepechage});
    } while (moteur::tirageARefaire(table.statut, tour - 1, essais));
    return {moteur::partiesDuTour(table, classement, tour), table.statut};
}

void RemplaceTour(Partage &partage, const std::vector<Partie> &parties)
{
    partage.BaseDonnees.EcritEnGroupe([&] {
        partage.BaseDonnees.Execute(
            u"delete * from scores where concours=%1 and tableau=1 and tour=%2"_qs.arg(partage.ConcoursCourant)
                .arg(partage.TourCourant));
        ecritParties(partage, 1, parties);
    });
    metLeFichierAJour(partage);
}

void ReprendTour(Partage &partage)
{
    const std::optional<int> dernier = dernierTourTire(partage);
    if (!dernier || *dernier <= partage.TourCourant)
        return;
    fixeTourPrincipal(partage, *dernier);
    partage.TourCourant = qint16(*dernier);
}
