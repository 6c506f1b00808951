#include "engine/clubs.h"
#include "engine/tirage_etat.h"

#include <utility>

namespace moteur::tirage {

SeparationClubs::SeparationClubs(Etat &etat, std::span<const QString> clubs, const SigneTirage &signe)
    : m_etat(etat)
    , m_signe(signe)
{
    NumerosClubs numeros;
    m_sansClub = numeros.numero(QString());
    m_panache = numeros.numero(clubPanache.toString());
    m_clubs.reserve(clubs.size());
    for (const QString &nom : clubs)
        m_clubs.push_back(numeros.numero(nom));
}

void SeparationClubs::execute()
{
    if (m_etat.derniere() < 1)
        return;
    int i = 1;
    while (!separeNiveauHaut(i)) {}
    if (i <= m_etat.derniere())
        separeNiveauBas(i);
}

/// Looks at the rows of the top level; \p i becomes the row where the next level begins, or lies behind the table when
/// an exchange has stepped over its end. False when another team has been pulled up: all rows are to be looked at anew.
bool SeparationClubs::separeNiveauHaut(int &i)
{
    const int derniere = m_etat.derniere();
    const int niveau = m_etat.niveau(1);
    i = 1;
    while (m_etat.paire(i).seconde.pt == niveau || m_etat.niveau(i) == niveau) {
        m_signe(u" .");
        if (seHeurtent(i)) {
            if (m_etat.change)
                ++m_etat.essaisClub;
            if (echangeEnHaut(i, niveau))
                ++i; // the row after an exchange is not looked at
            else if (remplaceRemonte())
                return false;
            else
                m_etat.statut = StatutTirage::MemeClub;
        }
        if (i >= derniere)
            break;
        ++i;
    }
    return true;
}

bool SeparationClubs::echangeEnHaut(int i, int niveau)
{
    for (int j = 1; j <= m_etat.derniere(); ++j) {
        if (m_etat.paire(j).seconde.pt != niveau && m_etat.niveau(j) != niveau)
            return false;
        if (convient(i, j)) {
            echangeSecondes(i, j);
            return true;
        }
    }
    return false;
}

void SeparationClubs::separeNiveauBas(int premiere)
{
    const int niveau = m_etat.niveau(premiere);
    for (int i = premiere; i <= m_etat.derniere() && m_etat.niveau(i) == niveau; ++i) {
        m_signe(u" .");
        if (seHeurtent(i))
            echangeEnBas(i, premiere, niveau);
    }
}

/// Looks for a row of the level, from its first one, that row \p i can exchange second teams with. The empty side of
/// the bye stands at level 0: among the teams without a win the row of the bye takes part, and its empty side can
/// change places too. A clash that stays is reported only when the search has come to the last row of the table.
void SeparationClubs::echangeEnBas(int i, int premiere, int niveau)
{
    const int derniere = m_etat.derniere();
    for (int j = premiere; m_etat.paire(j).seconde.pt == niveau && m_etat.niveau(j) == niveau; ++j) {
        if (convient(i, j)) {
            echangeSecondes(i, j);
            return;
        }
        if (j == derniere) {
            m_etat.statut = StatutTirage::MemeClub;
            return;
        }
    }
}

/// Lets the team behind it in the ranking take the place of the team pulled up; false when none of its level stands
/// there. Always further down, so that it comes to an end.
bool SeparationClubs::remplaceRemonte()
{
    if (m_etat.remonte == aucun)
        return false;
    const int autre = suivantAuRang(m_etat.remonte);
    if (autre == aucun)
        return false;
    if (m_etat.repeche) {
        m_etat.ligne(m_etat.remonte).repechage.reset();
        m_etat.ligne(autre).repechage = 1;
    }
    permute(m_etat.remonte, autre);
    m_etat.remonte = autre;
    return true;
}

int SeparationClubs::suivantAuRang(int rang) const
{
    const LigneClassement &depart = m_etat.ligne(rang);
    int trouve = aucun;
    for (int r = 0; r < static_cast<int>(m_etat.classement.size()); ++r) {
        const LigneClassement &ligne = m_etat.ligne(r);
        if (ligne.pt == depart.pt && avantAuRang(depart, ligne)
            && (trouve == aucun || avantAuRang(ligne, m_etat.ligne(trouve))))
            trouve = r;
    }
    return trouve;
}

void SeparationClubs::permute(int rang, int autre)
{
    Place *place = nullptr;
    for (Paire &paire : m_etat.paires) {
        for (Place *candidate : {&paire.premiere, &paire.seconde}) {
            if (candidate->rang != rang && candidate->rang != autre)
                continue;
            if (place) {
                std::swap(*place, *candidate);
                return;
            }
            place = candidate;
        }
    }
}

int SeparationClubs::club(const Place &place) const
{
    return place.rang == aucun ? m_sansClub : m_clubs[static_cast<std::size_t>(place.rang)];
}

bool SeparationClubs::seHeurtent(int i) const
{
    const Paire &paire = m_etat.paire(i);
    return club(paire.seconde) != m_panache && club(paire.seconde) == club(paire.premiere);
}

/// Whether the second team of row \p i may go to row \p j: no team of its club stands there.
bool SeparationClubs::convient(int i, int j) const
{
    const int cherche = club(m_etat.paire(i).seconde);
    return cherche != club(m_etat.paire(j).seconde) && cherche != club(m_etat.paire(j).premiere);
}

/// The teams change places, the levels of the places stay.
void SeparationClubs::echangeSecondes(int i, int j)
{
    std::swap(m_etat.paire(i).seconde.rang, m_etat.paire(j).seconde.rang);
}

} // namespace moteur::tirage
