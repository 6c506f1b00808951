#include "engine/tirage_suivant.h"

#include "engine/tirage_etat.h"

#include <optional>

namespace moteur {

namespace {

/// Bound on going back from the repeat check to the clubs, which the count of clashes alone does not give: moves
/// that cause no clash are not counted.
constexpr int retoursMax = 10;
constexpr int essaisClubMax = 10;

TabTirage enTable(const tirage::Etat &etat, std::span<const QString> clubs)
{
    TabTirage table{etat.statut, {}};
    table.lignes.reserve(static_cast<std::size_t>(etat.derniere()));
    for (int i = 1; i <= etat.derniere(); ++i) {
        const auto &[premiere, seconde] = etat.paire(i);
        LigneTirage &ligne = table.lignes.emplace_back();
        ligne.pt1 = premiere.pt;
        ligne.equipe1 = etat.ligne(premiere.rang).equipe;
        ligne.club1 = clubs[static_cast<std::size_t>(premiere.rang)];
        ligne.pt2 = seconde.pt;
        if (seconde.rang == tirage::aucun)
            continue;
        ligne.equipe2 = etat.ligne(seconde.rang).equipe;
        ligne.club2 = clubs[static_cast<std::size_t>(seconde.rang)];
    }
    return table;
}

} // namespace

TabTirage tireTourSuivant(const DonneesTirage &donnees, const SigneTirage &signe)
{
    const SigneTirage signal = signe ? signe : [](QStringView) {};
    const bool separe = donnees.tourpri == 1;

    tirage::Etat etat{.classement = donnees.classement, .repeche = donnees.repeche};
    tirage::formePaires(etat);
    std::optional<tirage::SeparationClubs> clubs;
    if (separe)
        clubs.emplace(etat, donnees.clubs, signal);
    tirage::ControleRepetitions repetitions(etat, donnees.jouees, signal);

    int retours = 0;
    while (true) {
        if (clubs)
            clubs->execute();
        repetitions.execute();
        if (!separe || !etat.change || etat.essaisClub >= essaisClubMax || retours == retoursMax)
            break;
        ++retours;
    }
    return enTable(etat, donnees.clubs);
}

} // namespace moteur
