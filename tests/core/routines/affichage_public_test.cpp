#include "bench/concours_joue.h"
#include "salle.h"

#include "engine/affichage_public.h"
#include "engine/rangs.h"
#include "engine/routines_resultats.h"

#include <gtest/gtest.h>

using donnees::Rencontre;
using moteur::OrdreDesResultats;

namespace {

Rencontre attendue(int tour, int equipe1, int equipe2, bool lancee = false)
{
    return {.tour = tour, .equipe1 = equipe1, .equipe2 = equipe2, .lancee = lancee};
}

Rencontre jouee(int tour, int equipe1, int equipe2)
{
    return {.tour = tour, .equipe1 = equipe1, .equipe2 = equipe2, .score1 = 13, .score2 = 7};
}

std::string paires(const std::vector<Rencontre> &rencontres)
{
    std::string texte;
    for (const Rencontre &rencontre : rencontres)
        texte += std::to_string(rencontre.equipe1) + '-' + std::to_string(rencontre.equipe2) + ' ';
    return texte;
}

} // namespace

TEST(AffichagePublic, MatchesStandAsThePublicLooksForThem)
{
    OrdreDesResultats ordre;
    ordre.note(1, 2, 6, 5);
    ordre.note(1, 1, 3, 4);
    ordre.note(1, 2, 6, 5); // mended: it is the last one now
    ordre.note(2, 2, 8, 7); // another competition
    const auto triees = moteur::trieRencontres({jouee(1, 1, 2), jouee(1, 3, 4), jouee(1, 9, 0), attendue(1, 5, 6),
                                                jouee(2, 10, 0), jouee(2, 8, 7), attendue(2, 9, 2), jouee(2, 6, 5),
                                                attendue(2, 3, 1, true), attendue(2, 1, 4)},
                                               1, ordre);
    EXPECT_EQ(triees.tour, 2);
    EXPECT_EQ(paires(triees.tirage), "8-7 9-2 6-5 3-1 1-4 10-0 ");
    EXPECT_EQ(paires(triees.attendues), "3-1 5-6 1-4 9-2 ");
    EXPECT_EQ(paires(triees.resultats), "6-5 3-4 8-7 1-2 ");
    EXPECT_EQ(moteur::trieRencontres({}, 1, ordre).tour, 0);
}

TEST(AffichagePublic, TheStateFollowsTheRoundsAndChangesNothing)
{
    Salle salle;
    OrdreDesResultats ordre;
    const auto lu = [&] { return LitEtatPublic(salle.partage, ordre); };
    EXPECT_EQ(lu().concours, 0);

    std::vector<moteur::EquipeInscrite> equipes;
    for (int numero = 1; numero <= 5; ++numero)
        equipes.push_back({numero, u"Club %1"_qs.arg(numero)});
    salle.inscrit({.repeche = true, .equipes = equipes});
    EXPECT_EQ(lu().equipes, 5);
    EXPECT_EQ(lu().tours, 3);
    EXPECT_EQ(lu().rencontres.tour, 0);
    EXPECT_FALSE(lu().termine());

    salle.clique();
    CalculClassement(salle.partage, QString::number(salle.partage.ConcoursCourant));
    const auto avant = salle.tbclass();
    const AleaFixe aleaAvant = salle.alea;
    EtatPublic etat = lu();
    EXPECT_EQ(salle.tbclass(), avant);
    EXPECT_EQ(AleaFixe(aleaAvant).suivant(), AleaFixe(salle.alea).suivant()) << "the next draw would be another one";
    EXPECT_EQ(etat.rencontres.tirage.size(), 3U);
    EXPECT_EQ(etat.rencontres.attendues.size(), 2U);
    EXPECT_EQ(etat.clubs.value(3), u"Club 3"_qs);

    for (int tour = 1; tour <= 3; ++tour) {
        EXPECT_EQ(etat.rencontres.tour, tour);
        EXPECT_EQ(etat.tours, 3);
        for (const Rencontre &rencontre : etat.rencontres.attendues) {
            EXPECT_FALSE(lu().termine());
            ASSERT_TRUE(salle.saisit(int(rencontre.equipe1), int(rencontre.equipe2), u"4"_qs, u"13"_qs));
            ordre.note(etat.concours, tour, rencontre.equipe1, rencontre.equipe2);
            EXPECT_EQ(lu().rencontres.resultats.front().equipe1, rencontre.equipe1);
            EXPECT_FALSE(lu().rencontres.resultats.front().premiereGagne());
        }
        EXPECT_EQ(lu().termine(), tour == 3);
        if (tour < 3)
            salle.clique();
        etat = lu();
    }
    AnnuleTour(salle.partage);
    EXPECT_EQ(lu().rencontres.tour, 2);
}

TEST(AffichagePublic, TheRankingIsThatOfTheProgram)
{
    std::mt19937 sort(3);
    essai::Concours concours(equipesMelangees(41, {}, sort), true, 3);
    for (int tour = 0; tour < 4; ++tour)
        concours.joueTour({.pourcentMots = 10, .pourcentSansVainqueur = 10});
    Salle salle;
    salle.inscrit({.equipes = concours.equipes()});
    poseRencontres(salle.partage.BaseDonnees, salle.partage.ConcoursCourant, concours.rencontres());
    CalculClassement(salle.partage, QString::number(salle.partage.ConcoursCourant));
    const std::vector<moteur::LigneClassement> lignes = LitClassement(salle.partage);
    const std::vector<moteur::PlaceGenerale> places = moteur::classementGeneral(lignes);
    const std::vector<moteur::PlacePublique> montrees = LitEtatPublic(salle.partage, {}).classement;
    ASSERT_EQ(montrees.size(), 41U);
    for (std::size_t i = 0; i < places.size(); ++i) {
        EXPECT_EQ(montrees[i].ligne.equipe, lignes[places[i].ligne].equipe);
        EXPECT_EQ(montrees[i].position, places[i].position);
    }
}
