#include "concours_joue.h"

#include <algorithm>
#include <tuple>

namespace essai {

using moteur::LigneClassement;
using moteur::Partie;

Concours::Concours(std::vector<moteur::EquipeInscrite> equipes, bool repeche, quint32 graine)
    : m_equipes(std::move(equipes))
    , m_repeche(repeche)
    , m_alea(graine)
    , m_sort(graine + 1)
{
}

bool Concours::joueTour(const Saisie &saisie)
{
    if (m_tourpri == 0) {
        m_rencontres = moteur::tireTour1(m_equipes, moteur::pasDExempt, m_alea);
        m_tourpri = 1;
    } else {
        if (!moteur::resteUnTour(int(m_equipes.size()) * 3, 3, m_tourpri, m_repeche))
            return false;
        tireSuivant();
    }
    for (Partie &rencontre : m_rencontres) {
        if (rencontre.tour == m_tourpri && rencontre.equipe2 > 0)
            saisitResultat(rencontre, saisie);
    }
    return true;
}

void Concours::tireSuivant()
{
    std::vector<LigneClassement> lignes;
    moteur::TabTirage table;
    int essais = 0;
    do {
        ++essais;
        lignes = classement();
        const std::vector<QString> nomsClubs = clubs(lignes);
        const std::vector<moteur::PaireJouee> dejaJouees = jouees();
        table = moteur::tireTourSuivant({lignes, nomsClubs, dejaJouees, m_tourpri, m_repeche});
    } while (moteur::tirageARefaire(table.statut, m_tourpri, essais));
    ++m_tourpri;
    std::ranges::copy(moteur::partiesDuTour(table, lignes, m_tourpri), std::back_inserter(m_rencontres));
}

void Concours::saisitResultat(Partie &rencontre, const Saisie &saisie)
{
    int gagnant = 13;
    int perdant = int(m_sort() % 13);
    if (chance(saisie.pourcentMots))
        perdant = -1 - int(m_sort() % 3);
    if (chance(saisie.pourcentSansVainqueur))
        gagnant = int(m_sort() % 12);
    const bool premiere = m_sort() % 2 == 0;
    rencontre.score1 = premiere ? gagnant : perdant;
    rencontre.score2 = premiere ? perdant : gagnant;
}

std::vector<Partie> Concours::rencontres() const
{
    std::vector<Partie> triees = m_rencontres;
    std::ranges::stable_sort(triees, {}, [](const Partie &r) { return std::tuple(r.tour, r.equipe1); });
    return triees;
}

std::vector<LigneClassement> Concours::classement()
{
    return moteur::etablitClassement(rencontres(), m_alea);
}

std::vector<QString> Concours::clubs(const std::vector<LigneClassement> &classement) const
{
    std::vector<QString> noms;
    for (const LigneClassement &ligne : classement)
        noms.push_back(m_equipes[std::size_t(ligne.equipe) - 1].club);
    return noms;
}

std::vector<moteur::PaireJouee> Concours::jouees() const
{
    std::vector<moteur::PaireJouee> paires;
    for (const Partie &rencontre : m_rencontres)
        paires.push_back({rencontre.equipe1, rencontre.equipe2});
    return paires;
}

} // namespace essai
