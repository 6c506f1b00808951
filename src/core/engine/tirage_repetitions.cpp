#include "engine/tirage_etat.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace moteur::tirage {

namespace {

/// One number for two rows of the ranking (or a row and none), whichever comes first.
quint64 cle(int rang1, int rang2)
{
    const auto [bas, haut] = std::minmax(rang1, rang2);
    return (quint64(quint32(haut)) << 32) | quint32(bas);
}

} // namespace

ControleRepetitions::ControleRepetitions(Etat &etat, std::span<const PaireJouee> jouees, const SigneTirage &signe)
    : m_etat(etat)
    , m_signe(signe)
    , m_lignes(etat.classement.size())
{
    std::unordered_map<int, int> rangs;
    rangs.reserve(etat.classement.size() + 1);
    rangs.emplace(0, aucun);
    for (int rang = 0; rang < static_cast<int>(etat.classement.size()); ++rang)
        rangs.emplace(etat.ligne(rang).equipe, rang);

    m_jouees.reserve(jouees.size());
    m_cles.reserve(jouees.size());
    for (const PaireJouee &jouee : jouees) {
        const auto premiere = rangs.find(jouee.equipe1);
        const auto seconde = rangs.find(jouee.equipe2);
        const bool connues = premiere != rangs.end() && seconde != rangs.end();
        // A team without a ranking row stands in no pair: its meeting is read, and matches nothing.
        m_jouees.push_back(connues ? PaireDeRangs{premiere->second, seconde->second} : PaireDeRangs{});
        if (connues)
            m_cles.push_back(cle(premiere->second, seconde->second));
    }
    std::ranges::sort(m_cles);
}

void ControleRepetitions::execute()
{
    m_etat.change = false;
    situeEquipes();
    for (const PaireDeRangs &jouee : m_jouees) {
        m_signe(u".");
        if (const int i = ligneDe(jouee); i > 0)
            corrige(i);
    }
}

void ControleRepetitions::situeEquipes()
{
    for (int i = 1; i <= m_etat.derniere(); ++i)
        situe(i);
}

void ControleRepetitions::situe(int i)
{
    for (const Place &place : {m_etat.paire(i).premiere, m_etat.paire(i).seconde}) {
        if (place.rang != aucun)
            m_lignes[static_cast<std::size_t>(place.rang)] = i;
    }
}

/// Row in which the two teams stand against each other again, 0 when they do not. Each team stands in one row only,
/// so no second row can hold the pair.
int ControleRepetitions::ligneDe(const PaireDeRangs &jouee) const
{
    const int equipe = jouee.rang1 != aucun ? jouee.rang1 : jouee.rang2;
    if (equipe == aucun)
        return 0;
    const int i = m_lignes[static_cast<std::size_t>(equipe)];
    const Paire &paire = m_etat.paire(i);
    return cle(paire.premiere.rang, paire.seconde.rang) == cle(jouee.rang1, jouee.rang2) ? i : 0;
}

/// Looks for another opponent for the first team of row \p i: in the rows after it, then from the first row of the
/// table, as long as they are of its level; the last row of a level tries the row before it and no other.
///
/// Nothing is reported when the search ends on a row of another level; DejaRencontrees is reported when it has come
/// round to row \p i itself.
void ControleRepetitions::corrige(int i)
{
    const auto horsNiveau = [this, i](int r) { return r > m_etat.derniere() || m_etat.niveau(r) != m_etat.niveau(i); };
    int d = horsNiveau(i + 1) ? -1 : 1;
    if (i + d < 1)
        return;
    bool repris = false;
    while (m_etat.niveau(i + d) == m_etat.niveau(i)) {
        m_etat.change = true;
        croise(i, i + d);
        if (convient(i))
            return;
        echangeSecondes(i, i + d);
        if (convient(i))
            return;
        ++d;
        if (d != 0 && horsNiveau(i + d)) {
            // Coming back a second time would go round for ever.
            d = repris ? 0 : 1 - i;
            repris = true;
        }
        if (d == 0) {
            m_etat.statut = StatutTirage::DejaRencontrees;
            return;
        }
    }
}

/// Whether row \p i holds a new meeting now; the success is what the draw reports, until something else happens.
bool ControleRepetitions::convient(int i)
{
    if (dejaRencontrees(i))
        return false;
    m_etat.statut = StatutTirage::RienASignaler;
    return true;
}

bool ControleRepetitions::dejaRencontrees(int i) const
{
    const Paire &paire = m_etat.paire(i);
    return std::ranges::binary_search(m_cles, cle(paire.premiere.rang, paire.seconde.rang));
}

/// The second team of row \p i and the first of row \p r change places; an empty side that would come first goes
/// second.
void ControleRepetitions::croise(int i, int r)
{
    Paire &autre = m_etat.paire(r);
    std::swap(m_etat.paire(i).seconde, autre.premiere);
    if (autre.premiere.rang == aucun)
        std::swap(autre.premiere, autre.seconde);
    situe(i);
    situe(r);
}

void ControleRepetitions::echangeSecondes(int i, int r)
{
    std::swap(m_etat.paire(i).seconde, m_etat.paire(r).seconde);
    situe(i);
    situe(r);
}

} // namespace moteur::tirage
