#include "engine/rapport_tirage.h"

#include <boost/graph/adjacency_list.hpp>
#include <boost/graph/max_cardinality_matching.hpp>

#include <algorithm>
#include <functional>
#include <map>
#include <set>

namespace moteur {

namespace {

using Deux = std::pair<int, int>;

Deux deux(int equipe1, int equipe2)
{
    return std::minmax(equipe1, equipe2);
}

/// What the rounds before one have left.
struct Passe
{
    Passe(std::span<const Partie> parties, int tour)
    {
        for (const Partie &partie : parties) {
            if (partie.tour >= tour)
                continue;
            compte(partie);
        }
    }

    int niveau(int equipe) const
    {
        const auto trouve = gagnees.find(equipe);
        return trouve == gagnees.end() ? 0 : trouve->second;
    }
    std::optional<int> premiereRencontre(int equipe1, int equipe2) const
    {
        const auto trouve = rencontres.find(deux(equipe1, equipe2));
        return trouve == rencontres.end() ? std::nullopt : std::optional(trouve->second);
    }

    std::map<int, int> gagnees;
    std::map<Deux, int> rencontres; ///< Round of the first meeting.
    std::set<int> exempts;

private:
    void compte(const Partie &partie)
    {
        const bool exempt = partie.equipe2 == 0;
        const bool premiereGagne = exempt || partie.score1 == scoreGagnant;
        gagnees[partie.equipe1] += premiereGagne;
        if (exempt) {
            exempts.insert(partie.equipe1);
            return;
        }
        gagnees[partie.equipe2] += !premiereGagne && partie.score2 == scoreGagnant;
        const auto [place, nouvelle] = rencontres.emplace(deux(partie.equipe1, partie.equipe2), partie.tour);
        place->second = std::min(place->second, partie.tour);
    }
};

bool memeClub(const QHash<int, QString> &clubs, int equipe1, int equipe2)
{
    const auto premier = clubs.constFind(equipe1);
    return premier != clubs.cend() && !premier->isEmpty() && *premier == clubs.value(equipe2);
}

PaireRapportee rapporte(const Partie &partie, const Passe &passe, const QHash<int, QString> &clubs)
{
    PaireRapportee paire{.equipe1 = partie.equipe1, .equipe2 = partie.equipe2};
    paire.niveau = passe.niveau(partie.equipe1);
    if (paire.exempt()) {
        paire.encoreExempt = passe.exempts.contains(partie.equipe1);
        return paire;
    }
    const int autre = passe.niveau(partie.equipe2);
    if (autre != paire.niveau) {
        paire.remontee = autre < paire.niveau ? partie.equipe2 : partie.equipe1;
        paire.niveauRemontee = std::min(autre, paire.niveau);
        paire.niveau = std::max(autre, paire.niveau);
    }
    paire.dejaAuTour = passe.premiereRencontre(partie.equipe1, partie.equipe2);
    paire.memeClub = memeClub(clubs, partie.equipe1, partie.equipe2);
    return paire;
}

using Graphe = boost::adjacency_list<boost::vecS, boost::vecS, boost::undirectedS>;
using Sommet = boost::graph_traits<Graphe>::vertex_descriptor;

/// Begins the search with the matching that the map of mates already holds.
template<typename G, typename Compagnes>
struct CouplageDonne
{
    static void find_matching(const G & /*graphe*/, Compagnes /*compagnes*/) {}
};

/// The teams of a level by their places in it, and the pairings without a defect that they allow.
class Niveau
{
public:
    Niveau(std::vector<int> equipes, const Passe &passe, const QHash<int, QString> &clubs);

    /// Fewest matches with a defect in any pairing, where repeats and pairs of one club are defects or not.
    int defautsAuMoins(bool repetitions, bool memesClubs) const;

private:
    inline static const Sommet seule = boost::graph_traits<Graphe>::null_vertex();

    bool convient(std::size_t i, std::size_t j, bool repetitions, bool memesClubs) const
    {
        return !(memesClubs && m_clubs[i] != 0 && m_clubs[i] == m_clubs[j]) && !(repetitions && m_deja[i].contains(j));
    }
    template<typename Convient>
    std::vector<Sommet> essaie(Convient convient) const;

    std::vector<int> m_clubs; ///< Numbers that stand for the clubs, 0 for none.
    std::vector<std::set<std::size_t>> m_deja; ///< Places of the teams that each has met.
    std::vector<std::size_t> m_parClub; ///< All places, the largest club first.
    std::size_t m_plusGrand = 0; ///< Teams of that club.
};

Niveau::Niveau(std::vector<int> equipes, const Passe &passe, const QHash<int, QString> &clubs)
    : m_clubs(equipes.size())
    , m_deja(equipes.size())
{
    QHash<QString, int> numeros;
    std::map<int, std::size_t> tailles;
    std::map<int, std::size_t> places;
    for (std::size_t i = 0; i < equipes.size(); ++i) {
        const QString club = clubs.value(equipes[i]);
        if (!club.isEmpty()) {
            const int nouveau = int(numeros.size()) + 1;
            m_clubs[i] = *numeros.insert(club, numeros.value(club, nouveau));
            m_plusGrand = std::max(m_plusGrand, ++tailles[m_clubs[i]]);
        }
        places[equipes[i]] = i;
        m_parClub.push_back(i);
    }
    for (const auto &[paire, tour] : passe.rencontres) {
        const auto un = places.find(paire.first);
        const auto autre = places.find(paire.second);
        if (un == places.end() || autre == places.end())
            continue;
        m_deja[un->second].insert(autre->second);
        m_deja[autre->second].insert(un->second);
    }
    std::ranges::stable_sort(m_parClub, [&](std::size_t i, std::size_t j) {
        const auto rang = [&](std::size_t place) {
            const int club = m_clubs[place];
            return std::pair(club == 0 ? 0 : -int(tailles[club]), club);
        };
        return rang(i) < rang(j);
    });
}

/// A good matching, found at once: clubs side by side, each team is given the one that stands half of the level
/// further, and pairs are broken up for those that are left.
template<typename Convient>
std::vector<Sommet> Niveau::essaie(Convient convient) const
{
    const std::size_t moitie = m_parClub.size() / 2;
    std::vector<Sommet> compagnes(m_parClub.size(), seule);
    const auto marie = [&](std::size_t i, std::size_t j) {
        compagnes[i] = j;
        compagnes[j] = i;
    };
    std::vector<std::size_t> restent;
    for (std::size_t rang = 0; rang < moitie; ++rang) {
        const std::size_t i = m_parClub[rang];
        const std::size_t j = m_parClub[rang + moitie];
        if (convient(i, j))
            marie(i, j);
        else
            restent.insert(restent.end(), {i, j});
    }
    for (const std::size_t i : restent) {
        const auto j = std::ranges::find_if(restent, [&](std::size_t autre) {
            return autre != i && compagnes[i] == seule && compagnes[autre] == seule && convient(i, autre);
        });
        if (j != restent.end())
            marie(i, *j);
    }
    std::erase_if(restent, [&](std::size_t i) { return compagnes[i] != seule; });
    for (std::size_t rang = 0; rang + 1 < restent.size(); rang += 2) {
        const std::size_t i = restent[rang];
        const std::size_t j = restent[rang + 1];
        for (const std::size_t k : m_parClub) {
            if (compagnes[k] == seule || !convient(i, k) || !convient(j, compagnes[k]))
                continue;
            const std::size_t liberee = compagnes[k];
            marie(i, k);
            marie(j, liberee);
            break;
        }
    }
    return compagnes;
}

int Niveau::defautsAuMoins(bool repetitions, bool memesClubs) const
{
    const std::size_t equipes = m_parClub.size();
    const auto tient = [&](std::size_t i, std::size_t j) { return convient(i, j, repetitions, memesClubs); };
    std::vector<Sommet> compagnes = essaie(tient);
    const auto seules = std::size_t(std::ranges::count(compagnes, seule));
    // Of a club that is more than half of the level, so many find no team of another one.
    const std::size_t forcement = memesClubs && 2 * m_plusGrand > equipes ? 2 * m_plusGrand - equipes : 0;
    if (seules <= forcement)
        return int(seules / 2);
    Graphe graphe(equipes);
    for (std::size_t i = 0; i < equipes; ++i) {
        for (std::size_t j = i + 1; j < equipes; ++j) {
            if (tient(i, j))
                boost::add_edge(i, j, graphe);
        }
    }
    const auto indices = boost::get(boost::vertex_index, graphe);
    boost::matching<Graphe, Sommet *, decltype(indices), boost::edmonds_augmenting_path_finder, CouplageDonne,
                    boost::no_matching_verifier>(graphe, compagnes.data(), indices);
    return int(equipes / 2 - boost::matching_size(graphe, compagnes.data()));
}

} // namespace

int RapportTour::repetitions() const
{
    return int(std::ranges::count_if(paires, [](const PaireRapportee &p) { return p.dejaAuTour.has_value(); }));
}

int RapportTour::memeClub() const
{
    return int(std::ranges::count_if(paires, &PaireRapportee::memeClub));
}

bool RapportTour::aSignaler() const
{
    return std::ranges::any_of(paires,
                               [](const PaireRapportee &p) { return p.dejaAuTour || p.memeClub || p.encoreExempt; });
}

const NiveauRapporte *RapportTour::niveau(int lequel) const
{
    const auto trouve = std::ranges::find(niveaux, lequel, &NiveauRapporte::niveau);
    return trouve == niveaux.end() ? nullptr : &*trouve;
}

RapportTour etablitRapport(std::span<const Partie> parties, int tour, const QHash<int, QString> &clubs)
{
    const Passe passe(parties, tour);
    RapportTour rapport{.tour = tour};
    for (const Partie &partie : parties) {
        if (partie.tour == tour)
            rapport.paires.push_back(rapporte(partie, passe, clubs));
    }
    std::ranges::stable_sort(rapport.paires, [](const PaireRapportee &un, const PaireRapportee &autre) {
        return un.exempt() != autre.exempt() ? autre.exempt() : un.niveau > autre.niveau;
    });
    for (const PaireRapportee &paire : rapport.paires) {
        if (paire.exempt())
            continue;
        if (rapport.niveaux.empty() || rapport.niveaux.back().niveau != paire.niveau)
            rapport.niveaux.push_back({.niveau = paire.niveau});
        NiveauRapporte &niveau = rapport.niveaux.back();
        niveau.repetitionsAuMoins = niveau.repetitions += paire.dejaAuTour.has_value();
        niveau.memeClubAuMoins = niveau.memeClub += paire.memeClub;
        niveau.defautsAuMoins = niveau.defauts += paire.dejaAuTour || paire.memeClub;
    }
    return rapport;
}

void calculeMinimums(RapportTour &rapport, std::span<const Partie> parties, const QHash<int, QString> &clubs)
{
    const Passe passe(parties, rapport.tour);
    for (NiveauRapporte &niveau : rapport.niveaux) {
        if (niveau.defauts == 0)
            continue;
        std::vector<int> equipes;
        for (const PaireRapportee &paire : rapport.paires) {
            if (paire.niveau == niveau.niveau && !paire.exempt())
                equipes.insert(equipes.end(), {paire.equipe1, paire.equipe2});
        }
        const Niveau paires(std::move(equipes), passe, clubs);
        if (niveau.repetitions > 0)
            niveau.repetitionsAuMoins = paires.defautsAuMoins(true, false);
        if (niveau.memeClub > 0)
            niveau.memeClubAuMoins = paires.defautsAuMoins(false, true);
        niveau.defautsAuMoins = paires.defautsAuMoins(true, true);
    }
}

bool vautMieux(const RapportTour &un, const RapportTour &autre)
{
    return std::pair(un.repetitions(), un.memeClub()) < std::pair(autre.repetitions(), autre.memeClub());
}

} // namespace moteur
