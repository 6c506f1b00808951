#include "concours_joue.h"
#include "modele_lent.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

using moteur::LigneClassement;
using moteur::Rencontre;
using moteur::StatutTirage;

namespace {

/// Matches won before round \p tour, counted from the result sheets.
std::map<int, int> victoires(const std::vector<Rencontre> &rencontres, int tour)
{
    std::map<int, int> gagnees;
    for (const Rencontre &r : rencontres) {
        if (r.tour >= tour)
            continue;
        gagnees[r.equipe1] += r.equipe2 == 0 || r.score1 == 13;
        if (r.equipe2 > 0)
            gagnees[r.equipe2] += r.score1 != 13 && r.score2 == 13;
    }
    return gagnees;
}

/// Every team plays once; a pair is of one level or holds the one team that its lower level has sent up; one bye at
/// most, for a team of the lowest level.
void verifieTour(const essai::Concours &concours)
{
    const int tour = concours.tourpri();
    std::map<int, int> niveau = victoires(concours.rencontres(), tour);
    std::set<int> vues;
    std::map<int, int> remonteesDe;
    int exempts = 0;
    int plusBas = tour;
    for (const auto &[equipe, pt] : niveau)
        plusBas = std::min(plusBas, pt);
    for (const Rencontre &r : concours.dernierTour()) {
        ASSERT_TRUE(vues.insert(r.equipe1).second) << r.equipe1;
        if (r.equipe2 == 0) {
            ++exempts;
            ASSERT_EQ(niveau.at(r.equipe1), plusBas);
            ASSERT_EQ(r.score1, 13);
            ASSERT_EQ(r.score2, 7);
            continue;
        }
        ASSERT_TRUE(vues.insert(r.equipe2).second) << r.equipe2;
        ASSERT_FALSE(r.score1 && r.score2 && r.score1 == r.score2);
        const auto [bas, haut] = std::minmax(niveau.at(r.equipe1), niveau.at(r.equipe2));
        if (bas != haut) {
            const int remontee = niveau.at(r.equipe1) == bas ? r.equipe1 : r.equipe2;
            ASSERT_EQ(++remonteesDe[bas], 1) << "second team sent up by level " << bas;
            const std::optional<int> marque = remontee == r.equipe1 ? 1 : 2;
            ASSERT_EQ(r.repechage, concours.repeche() ? marque : std::nullopt);
            // Nobody is left between the two levels.
            for (const auto &[equipe, pt] : niveau)
                ASSERT_FALSE(pt > bas && pt < haut) << equipe;
        }
    }
    ASSERT_EQ(vues.size(), concours.equipes().size());
    ASSERT_EQ(exempts, int(concours.equipes().size() % 2));
}

/// Pairs of the last round that had met before.
std::set<modele::Rencontree> repetitions(const essai::Concours &concours)
{
    std::set<modele::Rencontree> avant;
    std::set<modele::Rencontree> encore;
    for (const Rencontre &r : concours.rencontres()) {
        const modele::Rencontree paire = modele::normee(r.equipe1, r.equipe2);
        if (r.tour < concours.tourpri())
            avant.insert(paire);
        else if (avant.contains(paire))
            encore.insert(paire);
    }
    return encore;
}

/// Draws with the program and with the slow model, which must agree to the last cell; \p journal tells how the last
/// attempt went.
essai::Concours::Tireur compareAuModele(modele::Journal &journal)
{
    return [&journal](const moteur::DonneesTirage &donnees) {
        journal = {};
        std::vector<LigneClassement> copie(donnees.classement.begin(), donnees.classement.end());
        moteur::DonneesTirage pourModele = donnees;
        pourModele.classement = copie;
        const moteur::TabTirage attendue = modele::tirageSuivant(pourModele, journal);
        const moteur::TabTirage table = moteur::tireTourSuivant(donnees);
        EXPECT_EQ(table, attendue);
        EXPECT_TRUE(std::ranges::equal(donnees.classement, copie));
        return table;
    };
}

TEST(Concours, ChaqueTourCommeLeModeleLent)
{
    for (quint32 graine = 1; graine <= 800; ++graine) {
        SCOPED_TRACE(graine);
        std::mt19937 sort(graine);
        const essai::Melange melange{.clubs = 1 + int(sort() % 12),
                                     .pourcentHote = sort() % 2 ? 45 : 0,
                                     .pourcentPanache = sort() % 2 ? 15 : 0,
                                     .casseMelee = sort() % 4 == 0};
        const essai::Saisie saisie{.pourcentMots = 10,
                                   .pourcentAttendus = sort() % 2 ? 0 : 8,
                                   .pourcentSansVainqueur = sort() % 2 ? 0 : 8};
        const int nombre = 2 + int(sort() % 59);
        essai::Concours concours(essai::inscrit(nombre, melange, sort), sort() % 2 == 0, graine);
        modele::Journal journal;
        while (concours.joueTour(saisie, compareAuModele(journal))) { }
        ASSERT_FALSE(HasFailure());
    }
}

/// The rules let a repeat stand without a warning in these cases and no other:
/// - its row is alone in its level, or no row after it in the level suits and the search, going on from row 1, finds
///   another level there (abandonnees);
/// - the draw gave up and warned, but a later exchange succeeded and took the warning back (abandonnees);
/// - the exchange that mended one pair made the repeat in the other row after its meeting had been read (crees).
TEST(Concours, InvariantsDeDeuxATroisCentsEquipes)
{
    for (int nombre = 2; nombre <= 300; nombre += nombre < 70 ? 1 : 23) {
        for (const bool repeche : {false, true}) {
            SCOPED_TRACE(nombre);
            std::mt19937 sort(quint32(nombre) * 2 + repeche);
            const essai::Melange melange{.clubs = 20, .pourcentHote = 30, .pourcentPanache = 10};
            essai::Concours concours(essai::inscrit(nombre, melange, sort), repeche, quint32(nombre));
            modele::Journal journal;
            int tours = 0;
            while (concours.joueTour({.pourcentMots = 5}, compareAuModele(journal))) {
                ++tours;
                if (tours == 1)
                    continue;
                ASSERT_NO_FATAL_FAILURE(verifieTour(concours));
                for (const modele::Rencontree &paire : repetitions(concours))
                    ASSERT_TRUE(journal.abandonnees.contains(paire) || journal.crees.contains(paire));
            }
            ASSERT_EQ(tours, std::max(1, int(std::log2(nombre))) + repeche);
            ASSERT_FALSE(HasFailure());
        }
    }
}

} // namespace
