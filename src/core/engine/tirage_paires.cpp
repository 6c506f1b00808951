#include "engine/tirage_etat.h"

#include <algorithm>
#include <numeric>

namespace moteur::tirage {

namespace {

using Ordre = std::vector<int>;

/// Pulls the best team of the level that begins at \p courant up by one level and puts it there. It changes `alea`
/// with the team that stood first; the others of the level follow in drawing order.
void remonteMeilleure(Etat &etat, Ordre::iterator courant, Ordre::iterator fin)
{
    const auto auTirage = [&etat](int a, int b) { return avantAuTirage(etat.ligne(a), etat.ligne(b)); };
    const auto auRang = [&etat](int a, int b) { return avantAuRang(etat.ligne(a), etat.ligne(b)); };
    const int pt = etat.ligne(*courant).pt;
    const auto finNiveau = std::find_if(courant, fin, [&](int rang) { return etat.ligne(rang).pt != pt; });
    const auto meilleure = std::min_element(courant, finNiveau, auRang);

    LigneClassement &premiere = etat.ligne(*courant);
    LigneClassement &remontee = etat.ligne(*meilleure);
    std::swap(premiere.alea, remontee.alea);
    if (etat.repeche) {
        premiere.repechage = 0;
        remontee.repechage = 1; // last: the team that stood first may be the best itself
    }
    ++remontee.pt;
    etat.remonte = *meilleure;

    std::iter_swap(courant, meilleure);
    std::sort(courant + 1, finNiveau, auTirage); // the exchange of places can disturb teams of equal `alea`
}

} // namespace

void formePaires(Etat &etat)
{
    Ordre ordre(etat.classement.size());
    std::iota(ordre.begin(), ordre.end(), 0);
    std::ranges::sort(ordre, [&etat](int a, int b) { return avantAuTirage(etat.ligne(a), etat.ligne(b)); });

    const auto place = [&etat](int rang) { return Place{rang, etat.ligne(rang).pt}; };
    for (auto courant = ordre.begin(); courant != ordre.end();) {
        Paire paire{place(*courant), {}};
        ++courant;
        if (courant != ordre.end()) {
            if (etat.ligne(*courant).pt != paire.premiere.pt)
                remonteMeilleure(etat, courant, ordre.end());
            paire.seconde = place(*courant);
            ++courant;
        }
        etat.paires.push_back(paire);
    }
}

} // namespace moteur::tirage
