#include "modele_concours.h"

#include "pilote/regles.h"

#include "partage/alea.h"

#include <algorithm>
#include <cmath>

namespace modele {

using moteur::LigneClassement;
using moteur::Partie;
using moteur::StatutTirage;

namespace {

/// Side that has won a match of two teams.
int vainqueur(const Partie &r)
{
    return r.score1 == 13 ? 1 : r.score2 == 13 ? 2 : 0;
}

void compte(LigneClassement &ligne, bool gagne, bool perd, std::optional<int> marque, std::optional<int> concede)
{
    ligne.gagnées += gagne;
    ligne.pt += gagne;
    ligne.perdues += perd;
    if (marque)
        ligne.pp = ligne.pp.value_or(0) + *marque;
    if (concede)
        ligne.pc = ligne.pc.value_or(0) + *concede;
    if (ligne.pp && ligne.pc)
        ligne.ga = *ligne.pp - *ligne.pc;
}

} // namespace

std::vector<LigneClassement> parRang(std::vector<LigneClassement> lignes)
{
    std::ranges::sort(lignes, [](const LigneClassement &a, const LigneClassement &b) {
        return std::tuple(-a.pt, -a.ga.value_or(-1'000'000), a.equipe)
            < std::tuple(-b.pt, -b.ga.value_or(-1'000'000), b.equipe);
    });
    return lignes;
}

std::vector<LigneClassement> Concours::classement(SourceAleatoire &alea) const
{
    std::vector<Partie> feuilles = rencontres;
    std::ranges::stable_sort(feuilles, {}, [](const Partie &r) { return std::pair(r.tour, r.equipe1); });
    std::map<int, LigneClassement> lignes;
    for (const Partie &r : feuilles) {
        const auto [premiere, nouvelle] = lignes.try_emplace(r.equipe1, LigneClassement{.equipe = r.equipe1});
        if (nouvelle) {
            premiere->second.alea = AleaEntre(alea, 10000, 100000);
            if (r.repechage == 1)
                premiere->second.repechage = 1;
        }
        if (r.equipe2 == 0) {
            compte(premiere->second, true, false, 13, 7);
            continue;
        }
        compte(premiere->second, vainqueur(r) == 1, vainqueur(r) == 2, r.score1, r.score2);
        LigneClassement &seconde = lignes.try_emplace(r.equipe2, LigneClassement{.equipe = r.equipe2}).first->second;
        compte(seconde, vainqueur(r) == 2, vainqueur(r) == 1, r.score2, r.score1);
        seconde.alea = AleaEntre(alea, 10000, 100000);
    }
    std::vector<LigneClassement> rangs;
    for (const auto &[equipe, ligne] : lignes)
        rangs.push_back(ligne);
    return parRang(rangs);
}

Concours::Clic Concours::clique(SourceAleatoire &alea, bool reponse)
{
    Clic clic;
    if (tourCourant <= 0 || rencontres.empty()) {
        confirme(alea, reponse, clic);
        return clic;
    }
    moteur::TabTirage table;
    bool encore = true;
    while (encore) {
        ++clic.essais;
        table = tire(alea, clic);
        encore = clic.essais < 10
            && (table.statut == StatutTirage::DejaRencontrees
                || (table.statut == StatutTirage::MemeClub && tourCourant == 1));
    }
    clic.bilan.statut = table.statut;
    tourpri = ++tourCourant;
    ecritTour(table, clic.classement);
    return clic;
}

void Concours::confirme(SourceAleatoire &alea, bool reponse, Clic &clic)
{
    if (ferme()) {
        clic.bilan.obstacle = ObstacleAuTirage::ResultatsTombes;
        return;
    }
    if (!rencontres.empty()) {
        clic.bilan.obstacle = ObstacleAuTirage::TirageSansResultat;
        if (!reponse)
            return;
    }
    std::vector<moteur::EquipeInscrite> jouent;
    for (const auto &[equipe, inscrite] : equipes) {
        if (inscrite.joue)
            jouent.push_back({equipe, inscrite.club});
    }
    rencontres = tirageTour1(jouent, alea);
    tourpri = tourCourant = 1;
}

moteur::TabTirage Concours::tire(SourceAleatoire &alea, Clic &clic) const
{
    clic.classement = classement(alea);
    clic.journal = {};
    std::vector<QString> clubs;
    for (const LigneClassement &ligne : clic.classement) {
        const auto inscrite = equipes.find(ligne.equipe);
        clubs.push_back(inscrite == equipes.end() ? QString() : inscrite->second.club);
    }
    std::vector<moteur::PaireJouee> jouees;
    for (const Partie &r : rencontres)
        jouees.push_back({r.equipe1, r.equipe2});
    return tirageSuivant({clic.classement, clubs, jouees, tourCourant, repeche}, clic.journal);
}

void Concours::ecritTour(const moteur::TabTirage &table, const std::vector<LigneClassement> &classement)
{
    const auto marquee = [&](int equipe) {
        return std::ranges::any_of(classement, [&](const auto &l) { return l.equipe == equipe && l.repechage == 1; });
    };
    for (const moteur::LigneTirage &paire : table.lignes) {
        Partie r{.tour = tourCourant, .equipe1 = paire.equipe1, .equipe2 = paire.equipe2};
        if (marquee(r.equipe1))
            r.repechage = 1;
        if (r.equipe2 == 0) {
            r.score1 = 13;
            r.score2 = 7;
        } else if (marquee(r.equipe2)) {
            r.repechage = 2;
        }
        rencontres.push_back(r);
    }
}

Partie *Concours::rencontre(int equipe1, int equipe2)
{
    const auto place = std::ranges::find_if(rencontres, [&](const Partie &r) {
        return r.tour == tourCourant && r.equipe1 == equipe1 && r.equipe2 == equipe2;
    });
    return place == rencontres.end() ? nullptr : &*place;
}

/// The file ends one round lower than the program.
void Concours::annuleTour()
{
    std::erase_if(rencontres, [this](const Partie &r) { return r.tour == tourCourant; });
    --tourCourant;
    tourpri = tourCourant - 1;
}

void Concours::rouvre()
{
    for (const Partie &r : rencontres)
        tourpri = std::max(tourpri, r.tour);
    tourCourant = tourpri;
}

void Concours::annuleTirage()
{
    rencontres.clear();
    tourpri = tourCourant = 0;
}

bool Concours::ferme() const
{
    return std::ranges::any_of(rencontres, [](const Partie &r) { return r.score1 && r.score2; });
}

bool Concours::tour1Tire() const
{
    return std::ranges::count(rencontres, 1, &Partie::tour) > 0;
}

Partie *Concours::exemption()
{
    const auto place = std::ranges::find_if(rencontres, [](const Partie &r) { return r.tour == 1 && r.equipe2 == 0; });
    return place == rencontres.end() ? nullptr : &*place;
}

void Concours::ajoute(int equipe, const QString &club)
{
    equipes[equipe] = {club};
    if (!tour1Tire())
        return;
    if (Partie *libre = exemption()) {
        libre->equipe2 = equipe;
        libre->score1 = libre->score2 = std::nullopt;
        return;
    }
    int derniere = 0;
    for (const Partie &r : rencontres)
        derniere = r.tour == 1 ? std::max(derniere, r.rencontre) : derniere;
    rencontres.push_back({.tour = 1, .rencontre = derniere + 1, .equipe1 = equipe});
}

int Concours::attendus() const
{
    return int(std::ranges::count_if(rencontres, [](const Partie &r) { return r.equipe2 > 0 && !r.score1; }));
}

bool Concours::resteUnTour() const
{
    return double(equipes.size()) >= std::pow(2, tourCourant + (repeche ? 0 : 1));
}

bool Concours::boutonVisible() const
{
    if (rencontres.empty())
        return true;
    return tourCourant <= 0 ? int(equipes.size()) * joueurs > 1 : attendus() == 0 && resteUnTour();
}

QString fauteDuTour(const Concours &concours, const Journal &journal)
{
    const auto repetition = [&](const Partie &r) {
        const Paire paire = normee(r.equipe1, r.equipe2);
        return journal.abandonnees.contains(paire) || journal.crees.contains(paire);
    };
    // A team that gives way for the sake of clubs hands its mark on, to one that may stand where it has won to.
    const auto marque = [&](const Partie &r, std::optional<int> remontee) {
        return journal.remplacees > 0 || r.repechage == (concours.repeche ? remontee : std::nullopt);
    };
    return pilote::fauteDuTour(concours.rencontres, concours.tourCourant, {repetition, marque});
}

} // namespace modele
