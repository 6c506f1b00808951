#include "engine/classement.h"

#include "partage/alea.h"

#include <algorithm>
#include <unordered_map>

namespace moteur {

namespace {

constexpr int aleaMin = 10000;
constexpr int aleaMax = 100000;

/// An absent total counts as 0 once points come in: a team whose first match is still open and which has played
/// since shows the points of its finished matches, not a blank.
void ajoute(std::optional<int> &total, std::optional<int> points)
{
    if (points)
        total = total.value_or(0) + *points;
}

void ajoutePoints(LigneClassement &ligne, std::optional<int> marques, std::optional<int> concedes)
{
    ajoute(ligne.pp, marques);
    ajoute(ligne.pc, concedes);
    if (ligne.pp && ligne.pc)
        ligne.ga = *ligne.pp - *ligne.pc;
}

void gagne(LigneClassement &ligne)
{
    ++ligne.gagnées;
    ++ligne.pt;
}

/// Side that has won, 1 or 2; 0 when no side stands at 13. With both at 13 the first has won.
int vainqueur(const Partie &partie)
{
    if (partie.score1 == scoreGagnant)
        return 1;
    return partie.score2 == scoreGagnant ? 2 : 0;
}

void compteResultat(LigneClassement &ligne, int cote, int gagnant)
{
    if (gagnant == cote)
        gagne(ligne);
    else if (gagnant != 0)
        ++ligne.perdues;
}

class Classeur
{
public:
    explicit Classeur(SourceAleatoire &alea)
        : m_alea(alea)
    {
    }

    void compte(const Partie &partie)
    {
        comptePremiere(partie);
        if (partie.equipe2 > 0)
            compteSeconde(partie);
    }

    std::vector<LigneClassement> lignes() &&
    {
        std::ranges::sort(m_lignes, {}, &LigneClassement::equipe);
        return std::move(m_lignes);
    }

private:
    void comptePremiere(const Partie &partie)
    {
        const std::size_t connues = m_lignes.size();
        LigneClassement &ligne = ligneDe(partie.equipe1);
        if (partie.equipe2 > 0) {
            compteResultat(ligne, 1, vainqueur(partie));
            ajoutePoints(ligne, partie.score1, partie.score2);
        } else {
            gagne(ligne);
            ajoutePoints(ligne, scoreGagnant, scoreConcedeExempt);
        }
        if (m_lignes.size() > connues) {
            ligne.alea = AleaEntre(m_alea, aleaMin, aleaMax);
            if (partie.repechage == 1)
                ligne.repechage = 1;
        }
    }

    void compteSeconde(const Partie &partie)
    {
        LigneClassement &ligne = ligneDe(partie.equipe2);
        compteResultat(ligne, 2, vainqueur(partie));
        ajoutePoints(ligne, partie.score2, partie.score1);
        ligne.alea = AleaEntre(m_alea, aleaMin, aleaMax);
    }

    LigneClassement &ligneDe(int equipe)
    {
        const auto [place, nouvelle] = m_rangs.try_emplace(equipe, m_lignes.size());
        if (nouvelle)
            m_lignes.push_back({.equipe = equipe});
        return m_lignes[place->second];
    }

    SourceAleatoire &m_alea;
    std::vector<LigneClassement> m_lignes;
    std::unordered_map<int, std::size_t> m_rangs;
};

} // namespace

std::vector<LigneClassement> etablitClassement(std::span<const Partie> parties, SourceAleatoire &alea)
{
    Classeur classeur(alea);
    for (const Partie &partie : parties)
        classeur.compte(partie);
    return std::move(classeur).lignes();
}

bool avantAuRang(const LigneClassement &gauche, const LigneClassement &droite)
{
    if (gauche.pt != droite.pt)
        return gauche.pt > droite.pt;
    if (gauche.ga != droite.ga)
        return gauche.ga > droite.ga; // an absent optional is below any number
    return gauche.equipe < droite.equipe;
}

bool avantAuTirage(const LigneClassement &gauche, const LigneClassement &droite)
{
    if (gauche.pt != droite.pt)
        return gauche.pt > droite.pt;
    if (gauche.alea != droite.alea)
        return gauche.alea > droite.alea;
    return gauche.equipe < droite.equipe;
}

} // namespace moteur
