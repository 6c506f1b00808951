#include "regles.h"

#include <algorithm>
#include <map>
#include <set>

namespace pilote {

using moteur::Partie;

namespace {

/// What stands before a round.
struct Avant
{
    std::map<int, int> niveaux; ///< Matches won, of every team that has been drawn.
    std::set<std::pair<int, int>> paires;
};

Avant litAvant(std::span<const Partie> parties, int tour)
{
    Avant avant;
    for (const Partie &r : parties) {
        if (r.tour >= tour)
            continue;
        avant.paires.insert(std::minmax(r.equipe1, r.equipe2));
        avant.niveaux[r.equipe1] += r.equipe2 == 0 || r.score1 == 13;
        if (r.equipe2 > 0)
            avant.niveaux[r.equipe2] += r.score1 != 13 && r.score2 == 13;
    }
    return avant;
}

/// \p ontRemonte: levels that have sent a team up already.
QString fauteDeNiveau(const Partie &r, const std::map<int, int> &niveaux, std::set<int> &ontRemonte,
                      const Indulgences &indulgences)
{
    const auto premiere = niveaux.find(r.equipe1);
    const auto seconde = r.equipe2 == 0 ? premiere : niveaux.find(r.equipe2);
    if (premiere == niveaux.end() || seconde == niveaux.end())
        return u"une équipe apparaît en cours de route"_qs;
    const auto [bas, haut] = std::minmax(premiere->second, seconde->second);
    const auto plusBas = [bas = bas](const auto &n) { return n.second < bas; };
    if (r.equipe2 == 0 && std::ranges::any_of(niveaux, plusBas))
        return u"l'équipe exempte n'est pas du niveau le plus bas"_qs;
    const std::optional<int> remontee = bas == haut ? std::nullopt : std::optional(premiere->second == bas ? 1 : 2);
    if (indulgences.marque && !indulgences.marque(r, remontee))
        return u"la marque n'est pas la bonne"_qs;
    if (remontee && !ontRemonte.insert(bas).second)
        return u"une deuxième équipe du même niveau est remontée"_qs;
    const auto entreEux = [bas = bas, haut = haut](const auto &n) { return n.second > bas && n.second < haut; };
    return std::ranges::any_of(niveaux, entreEux) ? u"un niveau est sauté"_qs : QString();
}

} // namespace

QString fauteDuTour(std::span<const Partie> parties, int tour, const Indulgences &indulgences)
{
    const Avant avant = litAvant(parties, tour);
    std::set<int> vues;
    std::set<int> ontRemonte;
    for (const Partie &r : parties) {
        if (r.tour != tour)
            continue;
        const QString paire = u"%1 - %2 : "_qs.arg(r.equipe1).arg(r.equipe2);
        if (!vues.insert(r.equipe1).second || !vues.insert(r.equipe2).second)
            return paire + u"une équipe joue deux fois"_qs;
        if (tour == 1)
            continue;
        if (avant.paires.contains(std::minmax(r.equipe1, r.equipe2)) && !indulgences.repetition(r))
            return paire + u"les équipes se sont déjà rencontrées"_qs;
        if (const QString faute = fauteDeNiveau(r, avant.niveaux, ontRemonte, indulgences); !faute.isEmpty())
            return paire + faute;
    }
    vues.erase(0);
    return tour == 1 || vues.size() == avant.niveaux.size() ? QString() : u"une équipe est oubliée"_qs;
}

} // namespace pilote
