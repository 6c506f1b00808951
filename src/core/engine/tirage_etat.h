#pragma once

#include "engine/tirage_suivant.h"

#include <span>
#include <vector>

/// The steps of a next-round draw, and the state they hand on to each other.
namespace moteur::tirage {

/// Stands for a row of the ranking where there is none: the empty side of a bye, no team pulled up.
inline constexpr int aucun = -1;

/// One side of a pair: a row of the ranking and the level under which it stands there.
struct Place
{
    int rang = aucun;
    int pt = 0;
};

struct Paire
{
    Place premiere;
    Place seconde;
};

/// State of a draw under way.
struct Etat
{
    std::span<LigneClassement> classement;
    bool repeche = false;
    StatutTirage statut = StatutTirage::RienASignaler;
    int remonte = aucun; ///< The team pulled up last.
    int essaisClub = 0; ///< Clashes of clubs met after the repeat check had moved a team.
    bool change = false; ///< The last repeat check has moved a team.
    std::vector<Paire> paires{1}; ///< Rows 1 to derniere(); row 0 is not used.

    int derniere() const { return static_cast<int>(paires.size()) - 1; }
    Paire &paire(int i) { return paires[static_cast<std::size_t>(i)]; }
    const Paire &paire(int i) const { return paires[static_cast<std::size_t>(i)]; }
    /// Level of row \p i, that of its first team.
    int niveau(int i) const { return paire(i).premiere.pt; }
    LigneClassement &ligne(int rang) const { return classement[static_cast<std::size_t>(rang)]; }
};

/// Lines the teams up in drawing order and pairs neighbours, pulling up where a level is odd.
void formePaires(Etat &etat);

/// Exchanges second teams in the top level and the one below until pairs of one club are gone, or can go no further.
/// The names are compared exactly; the empty side of a bye counts as a team without a club.
class SeparationClubs
{
public:
    SeparationClubs(Etat &etat, std::span<const QString> clubs, const SigneTirage &signe);

    void execute();

private:
    bool separeNiveauHaut(int &i);
    void separeNiveauBas(int premiere);
    bool echangeEnHaut(int i, int niveau);
    void echangeEnBas(int i, int premiere, int niveau);
    bool remplaceRemonte();
    int suivantAuRang(int rang) const;
    void permute(int rang, int autre);

    int club(const Place &place) const;
    bool seHeurtent(int i) const;
    bool convient(int i, int j) const;
    void echangeSecondes(int i, int j);

    Etat &m_etat;
    const SigneTirage &m_signe;
    std::vector<int> m_clubs;
    int m_sansClub = 0;
    int m_panache = 0;
};

/// Takes apart pairs that have already met, by exchanges inside their level.
class ControleRepetitions
{
public:
    ControleRepetitions(Etat &etat, std::span<const PaireJouee> jouees, const SigneTirage &signe);

    void execute();

private:
    struct PaireDeRangs
    {
        int rang1 = aucun;
        int rang2 = aucun;
    };

    void situeEquipes();
    int ligneDe(const PaireDeRangs &jouee) const;
    void corrige(int i);
    bool convient(int i);
    bool dejaRencontrees(int i) const;
    void croise(int i, int r);
    void echangeSecondes(int i, int r);
    void situe(int i);

    Etat &m_etat;
    const SigneTirage &m_signe;
    std::vector<PaireDeRangs> m_jouees;
    std::vector<quint64> m_cles;
    std::vector<int> m_lignes;
};

} // namespace moteur::tirage
