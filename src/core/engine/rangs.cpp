#include "engine/rangs.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace moteur {

namespace {

/// What a match won weighs against the difference in the overall ranking.
constexpr int poidsVictoire = 1000;
constexpr int clefDeDepart = 100000;

int clefGenerale(const LigneClassement &ligne)
{
    return ligne.gagnées * poidsVictoire + ligne.ga.value_or(0);
}

} // namespace

std::vector<std::optional<int>> positionsParNiveau(std::span<const LigneClassement> lignes)
{
    std::vector<std::optional<int>> positions;
    positions.reserve(lignes.size());
    int niveau = std::numeric_limits<int>::max();
    int ga = 0;
    for (const LigneClassement &ligne : lignes) {
        const bool sansPoints = !ligne.pp || !ligne.pc;
        const bool descend = ligne.pt < niveau;
        const bool seDetache = descend || (ligne.pt == niveau && ga > (sansPoints ? 0 : ligne.ga.value_or(0)));
        const int position = int(positions.size()) + 1;
        positions.push_back(seDetache ? std::optional(position) : std::nullopt);
        if (seDetache) {
            niveau = ligne.pt;
            ga = sansPoints ? 0 : ligne.ga.value_or(0);
        }
    }
    return positions;
}

std::vector<PlaceGenerale> classementGeneral(std::span<const LigneClassement> lignes)
{
    std::vector<std::size_t> ordre(lignes.size());
    std::iota(ordre.begin(), ordre.end(), std::size_t(0));
    std::ranges::stable_sort(ordre, std::greater(), [&](std::size_t i) { return clefGenerale(lignes[i]); });

    std::vector<PlaceGenerale> places;
    places.reserve(ordre.size());
    int gardee = clefDeDepart;
    for (const std::size_t i : ordre) {
        PlaceGenerale place{.ligne = i};
        if (const int clef = clefGenerale(lignes[i]); clef < gardee) {
            gardee = clef;
            place.position = int(places.size()) + 1;
        }
        places.push_back(place);
    }
    return places;
}

} // namespace moteur
