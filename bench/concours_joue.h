#pragma once

#include "commun/concours_en_base.h"
#include "engine/controle_tours.h"
#include "partage/alea.h"

#include <random>

/// Competitions played to the end with invented teams and results, the same for the same seed.
namespace essai {

/// How results come in.
struct Saisie
{
    int pourcentMots = 0; ///< Scores -1 to -3.
    int pourcentSansVainqueur = 0; ///< Matches without a 13.
};

class Concours
{
public:
    Concours(std::vector<moteur::EquipeInscrite> equipes, bool repeche, quint32 graine);

    /// Draws the next round and plays it; false when the competition is over.
    bool joueTour(const Saisie &saisie = {});

    int tourpri() const { return m_tourpri; }
    bool repeche() const { return m_repeche; }
    const std::vector<moteur::EquipeInscrite> &equipes() const { return m_equipes; }
    /// All matches, by round and first team.
    std::vector<moteur::Partie> rencontres() const;
    /// Ranking, clubs in its order and meetings, as a draw of the next round reads them.
    std::vector<moteur::LigneClassement> classement();
    std::vector<QString> clubs(const std::vector<moteur::LigneClassement> &classement) const;
    std::vector<moteur::PaireJouee> jouees() const;

private:
    void tireSuivant();
    void saisitResultat(moteur::Partie &rencontre, const Saisie &saisie);
    bool chance(int pourcent) { return int(m_sort() % 100) < pourcent; }

    std::vector<moteur::EquipeInscrite> m_equipes;
    bool m_repeche;
    AleaFixe m_alea;
    std::mt19937 m_sort;
    int m_tourpri = 0;
    std::vector<moteur::Partie> m_rencontres;
};

} // namespace essai
