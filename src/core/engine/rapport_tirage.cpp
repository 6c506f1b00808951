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

/// Fewest matches with a defect in any pairing of \p equipes, an even number, where `convient` tells of two places
/// whether they may meet.
int defautsAuMoins(std::size_t equipes, const std::function<bool(std::size_t, std::size_t)> &convient)
{
    using Graphe = boost::adjacency_list<boost::vecS, boost::vecS, boost::undirectedS>;
    Graphe graphe(equipes);
    for (std::size_t i = 0; i < equipes; ++i) {
        for (std::size_t j = i + 1; j < equipes; ++j) {
            if (convient(i, j))
                boost::add_edge(i, j, graphe);
        }
    }
    std::vector<boost::graph_traits<Graphe>::vertex_descriptor> compagne(equipes);
    boost::edmonds_maximum_cardinality_matching(graphe, compagne.data());
    return int(equipes / 2 - boost::matching_size(graphe, compagne.data()));
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
        ++niveau.rencontres;
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
        const auto nouvelle = [&](std::size_t i, std::size_t j) {
            return !passe.premiereRencontre(equipes[i], equipes[j]);
        };
        const auto deuxClubs = [&](std::size_t i, std::size_t j) { return !memeClub(clubs, equipes[i], equipes[j]); };
        if (niveau.repetitions > 0)
            niveau.repetitionsAuMoins = defautsAuMoins(equipes.size(), nouvelle);
        if (niveau.memeClub > 0)
            niveau.memeClubAuMoins = defautsAuMoins(equipes.size(), deuxClubs);
        niveau.defautsAuMoins = defautsAuMoins(equipes.size(), [&](std::size_t i, std::size_t j) {
            return nouvelle(i, j) && deuxClubs(i, j);
        });
    }
}

bool vautMieux(const RapportTour &un, const RapportTour &autre)
{
    return std::pair(un.repetitions(), un.memeClub()) < std::pair(autre.repetitions(), autre.memeClub());
}

} // namespace moteur
