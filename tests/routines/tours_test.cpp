#include "concours_joue.h"
#include "salle.h"

#include "engine/routines_tirage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

using moteur::StatutTirage;

namespace {

const QString avertissementClub = u"avertit : Attention il y a une rencontre opposant deux équipes d'un même club"_qs;
const QString avertissementDeja = u"avertit : Attention deux équipes se sont déjà rencontrées"_qs;

struct Discipline
{
    QString type;
    int joueurs;
};

const Discipline disciplines[] = {{u"1 - Doublettes"_qs, 2}, {u"2 - Triplettes"_qs, 3}, {u"3 - Tête-à-tête"_qs, 1}};

/// What must come out of a click on the next round, found out beforehand on the work table alone.
struct Attendu
{
    moteur::TabTirage table;
    std::map<int, LigneTbclass> classement;
    int essais = 0;
    QStringList avertissements;
};

Attendu prevoit(Salle &salle)
{
    const AleaFixe avant = salle.alea;
    OperateurEssai muet;
    Attendu attendu;
    StatutTirage statut = StatutTirage::RienASignaler;
    do {
        ++attendu.essais;
        CalculClassement(salle.partage, QString::number(salle.partage.ConcoursCourant));
        TirageSuivant(salle.partage, muet);
        statut = salle.partage.TabTirage.statut;
    } while (attendu.essais < 10
             && (statut == StatutTirage::DejaRencontrees
                 || (statut == StatutTirage::MemeClub && salle.partage.TourCourant == 1)));
    attendu.table = salle.partage.TabTirage;
    attendu.classement = salle.tbclass();
    if (statut == StatutTirage::MemeClub)
        attendu.avertissements += avertissementClub;
    else if (statut == StatutTirage::DejaRencontrees)
        attendu.avertissements += avertissementDeja;
    salle.alea = avant;
    return attendu;
}

void verifieClassement(Salle &salle, const std::map<int, LigneTbclass> &refait)
{
    CalculClassement(salle.partage, QString::number(salle.partage.ConcoursCourant));
    std::map<int, LigneTbclass> lignes = salle.tbclass();
    for (auto &[equipe, ligne] : lignes) {
        ASSERT_GE(ligne.alea, 10000);
        ASSERT_LE(ligne.alea, 100000);
        ligne.alea = 0;
    }
    ASSERT_EQ(lignes, refait);
}

/// Round 1: matches numbered from 1, all open, every team once, the bye alone in the last row.
void verifieTour1(Salle &salle, int equipes)
{
    const std::vector<LigneScores> lignes = salle.scores();
    ASSERT_EQ(int(lignes.size()), equipes < 2 ? 0 : (equipes + 1) / 2);
    std::set<int> vues;
    for (std::size_t i = 0; i < lignes.size(); ++i) {
        const LigneScores &ligne = lignes[i];
        ASSERT_EQ(ligne, (LigneScores{.tour = 1,
                                      .rencontre = int(i) + 1,
                                      .equipe1 = ligne.equipe1,
                                      .equipe2 = ligne.equipe2}));
        ASSERT_TRUE(vues.insert(ligne.equipe1).second);
        const bool exempte = equipes % 2 == 1 && i + 1 == lignes.size();
        ASSERT_EQ(ligne.equipe2 == 0, exempte);
        if (!exempte) {
            ASSERT_TRUE(vues.insert(ligne.equipe2).second);
        }
    }
    ASSERT_EQ(int(vues.size()), equipes < 2 ? 0 : equipes);
}

/// Rows of a later round: those of the draw in its order, without a number; a mark exactly where a team plays above
/// its wins and the competition has repêchage.
void verifieTourSuivant(Salle &salle, const Attendu &attendu, std::map<int, LigneTbclass> &avant)
{
    const int tour = salle.partage.TourCourant;
    const std::vector<LigneScores> lignes = salle.scores(tour);
    ASSERT_EQ(lignes.size(), attendu.table.lignes.size());
    const std::map<int, QString> clubs = salle.clubs();
    for (std::size_t i = 0; i < lignes.size(); ++i) {
        const moteur::LigneTirage &paire = attendu.table.lignes[i];
        LigneScores attendue{.tour = tour, .equipe1 = paire.equipe1, .equipe2 = paire.equipe2};
        if (paire.equipe2 == 0) {
            attendue.score1 = 13;
            attendue.score2 = 7;
        } else if (salle.partage.AvecRepechage && avant[paire.equipe1].pt != avant[paire.equipe2].pt) {
            attendue.repechage = avant[paire.equipe1].pt < avant[paire.equipe2].pt ? 1 : 2;
        }
        ASSERT_EQ(lignes[i], attendue) << i;
        ASSERT_EQ(paire.club1, clubs.at(paire.equipe1));
        ASSERT_EQ(paire.club2, paire.equipe2 == 0 ? QString() : clubs.at(paire.equipe2));
    }
}

/// The draw leaves `tbclass` as the ranking made it but for level, order and mark.
void verifieTbclassApres(Salle &salle, const Attendu &attendu, const std::map<int, LigneTbclass> &avant)
{
    std::map<int, LigneTbclass> apres = salle.tbclass();
    ASSERT_EQ(apres, attendu.classement);
    for (auto &[equipe, ligne] : apres) {
        LigneTbclass reste = avant.at(equipe);
        ASSERT_GE(ligne.pt, reste.pt);
        reste.pt = ligne.pt;
        reste.repechage = ligne.repechage;
        reste.alea = ligne.alea;
        ASSERT_EQ(ligne, reste) << equipe;
    }
}

/// Clicks once for the next round and looks at everything that the click has left behind.
void lanceTour(Salle &salle, int equipes)
{
    const qint32 concours = salle.partage.ConcoursCourant;
    const int tour = salle.partage.TourCourant;
    std::map<int, LigneTbclass> avant = salle.classementRefait();
    ASSERT_NO_FATAL_FAILURE(verifieClassement(salle, avant));
    const Attendu attendu = tour == 0 ? Attendu{} : prevoit(salle);
    const std::vector<LigneScores> anciennes = salle.scores();
    const QByteArray empreinte = salle.empreinteSauf(concours);
    salle.operateur = {};

    LanceTourSuivant(salle.partage, salle.operateur);

    ASSERT_EQ(salle.partage.TourCourant, tour + 1);
    ASSERT_EQ(salle.tourpri(), tour + 1);
    ASSERT_EQ(salle.empreinteSauf(concours), empreinte);
    ASSERT_EQ(salle.operateur.dits, attendu.avertissements);
    ASSERT_EQ(salle.operateur.annonces, attendu.essais);
    ASSERT_TRUE(salle.partage.TabTirage.lignes.empty());
    if (tour == 0)
        return verifieTour1(salle, equipes);
    std::vector<LigneScores> gardees = salle.scores();
    gardees.resize(anciennes.size());
    ASSERT_EQ(gardees, anciennes);
    ASSERT_EQ(salle.partage.EssaisTirage, attendu.essais);
    ASSERT_NO_FATAL_FAILURE(verifieTourSuivant(salle, attendu, avant));
    verifieTbclassApres(salle, attendu, avant);
}

void joueLeTour(Salle &salle, std::mt19937 &sort)
{
    for (const LigneScores &ligne : salle.scores(salle.partage.TourCourant)) {
        if (ligne.equipe2 == 0)
            continue;
        const int perdant = sort() % 10 == 0 ? -1 - int(sort() % 3) : int(sort() % 13);
        QString scores[] = {u"13"_qs, QString::number(perdant)};
        if (sort() % 2)
            std::swap(scores[0], scores[1]);
        salle.saisit(ligne.equipe1, ligne.equipe2, scores[0], scores[1]);
    }
}

void joueConcours(Salle &salle, int equipes, std::mt19937 &sort)
{
    const bool repeche = salle.partage.AvecRepechage;
    do {
        ASSERT_NO_FATAL_FAILURE(lanceTour(salle, equipes)) << "after round " << salle.partage.TourCourant;
        joueLeTour(salle, sort);
    } while (equipes >= std::pow(2, salle.partage.TourCourant + (repeche ? 0 : 1)));
    ASSERT_NO_FATAL_FAILURE(verifieClassement(salle, salle.classementRefait()));
    const int tours = std::max(1, int(std::log2(equipes)) + repeche);
    ASSERT_EQ(salle.tourpri(), tours);
}

TEST(ToursDuConcours, DeDeuxACentVingtEquipes)
{
    for (int equipes = 2; equipes <= 120; equipes += equipes < 20 ? 1 : 10) {
        std::mt19937 sort{quint32(equipes)};
        const Discipline &discipline = disciplines[equipes % 3];
        const bool repeche = sort() % 2;
        SCOPED_TRACE(testing::Message() << equipes << " teams, " << discipline.joueurs << " players, " << repeche);
        Salle salle{quint32(equipes)};
        // A second day in the same file, with the same team numbers and results of its own.
        salle.inscrit({.equipes = essai::inscrit(6, {}, sort)});
        LanceTourSuivant(salle.partage, salle.operateur);
        joueLeTour(salle, sort);

        const essai::Melange melange{.clubs = 1 + int(sort() % 12), .pourcentHote = 40, .pourcentPanache = 10};
        salle.inscrit({discipline.type, discipline.joueurs, repeche, essai::inscrit(equipes, melange, sort)});
        ASSERT_EQ(salle.partage.NbJoueurs, discipline.joueurs);
        ASSERT_NO_FATAL_FAILURE(joueConcours(salle, equipes, sort));
    }
}

TEST(ToursDuConcours, DixEssaisPuisLeTirageEstEcritAvecSonAvertissement)
{
    std::mt19937 sort(3);
    Salle salle;
    // One club for all: round 2 cannot keep it apart from itself.
    salle.inscrit({.equipes = essai::inscrit(8, {.pourcentHote = 100}, sort)});
    ASSERT_NO_FATAL_FAILURE(lanceTour(salle, 8));
    joueLeTour(salle, sort);
    ASSERT_NO_FATAL_FAILURE(lanceTour(salle, 8));
    EXPECT_EQ(salle.partage.EssaisTirage, 10);
    EXPECT_EQ(salle.operateur.dits, QStringList(avertissementClub));
    // From round 3 on clubs are no longer looked at.
    joueLeTour(salle, sort);
    ASSERT_NO_FATAL_FAILURE(lanceTour(salle, 8));
    EXPECT_EQ(salle.operateur.dits, QStringList());

    // Two teams have met in the only round there is.
    salle.inscrit({.repeche = true, .equipes = essai::inscrit(2, {}, sort)});
    ASSERT_NO_FATAL_FAILURE(lanceTour(salle, 2));
    joueLeTour(salle, sort);
    ASSERT_NO_FATAL_FAILURE(lanceTour(salle, 2));
    EXPECT_EQ(salle.scores(2).size(), 1u);
}

TEST(ToursDuConcours, ClassementDUnAutreConcoursPrendSaPlace)
{
    std::mt19937 sort(4);
    Salle salle;
    const qint32 premier = salle.inscrit({.equipes = essai::inscrit(9, {}, sort)});
    LanceTourSuivant(salle.partage, salle.operateur);
    joueLeTour(salle, sort);
    salle.inscrit({.equipes = essai::inscrit(4, {}, sort)});
    LanceTourSuivant(salle.partage, salle.operateur);
    joueLeTour(salle, sort);

    ASSERT_NO_FATAL_FAILURE(verifieClassement(salle, salle.classementRefait()));
    EXPECT_EQ(salle.tbclass().size(), 4u);
    salle.choisit(premier);
    ASSERT_NO_FATAL_FAILURE(verifieClassement(salle, salle.classementRefait()));
    EXPECT_EQ(salle.nombre(u"select count(*) from tbclass where concours = %1"_qs.arg(premier)), 9);
    CalculClassement(salle.partage, u"999"_qs);
    EXPECT_TRUE(salle.tbclass().empty());
}

} // namespace
