#include "engine/affichage_public.h"

#include "donnees/equipes.h"
#include "engine/controle_tours.h"
#include "engine/rangs.h"
#include "engine/routines_tirage.h"

#include <algorithm>

using donnees::Rencontre;

namespace moteur {

void OrdreDesResultats::note(qint32 concours, int tour, qint64 equipe1, qint64 equipe2)
{
    m_rangs[{concours, tour, equipe1, equipe2}] = ++m_dernier;
}

qint64 OrdreDesResultats::rang(qint32 concours, const Rencontre &rencontre) const
{
    const auto trouve = m_rangs.find({concours, rencontre.tour, rencontre.equipe1, rencontre.equipe2});
    return trouve == m_rangs.end() ? 0 : trouve->second;
}

RencontresPubliques trieRencontres(std::vector<Rencontre> rencontres, qint32 concours, const OrdreDesResultats &ordre)
{
    RencontresPubliques triees;
    for (const Rencontre &rencontre : rencontres)
        triees.tour = std::max(triees.tour, rencontre.tour);
    for (Rencontre &rencontre : rencontres) {
        if (!rencontre.exempt())
            (rencontre.score1.estNull() ? triees.attendues : triees.resultats).push_back(rencontre);
        if (rencontre.tour == triees.tour)
            triees.tirage.push_back(std::move(rencontre));
    }
    std::ranges::stable_sort(triees.tirage, {}, &Rencontre::exempt);
    std::ranges::stable_sort(triees.attendues, {}, [](const Rencontre &rencontre) {
        return std::tuple(!rencontre.lancee, rencontre.tour, rencontre.equipe1);
    });
    std::ranges::stable_sort(triees.resultats, {}, [&](const Rencontre &rencontre) {
        return std::tuple(-ordre.rang(concours, rencontre), -rencontre.tour, rencontre.equipe1);
    });
    return triees;
}

std::vector<PlacePublique> classementPublic(std::span<const Partie> parties)
{
    AleaFixe sansEffet(0); // the order of the next draw, which nobody is told
    std::vector<LigneClassement> lignes = etablitClassement(parties, sansEffet);
    std::ranges::sort(lignes, avantAuRang);
    std::vector<PlacePublique> places;
    places.reserve(lignes.size());
    for (const PlaceGenerale &place : classementGeneral(lignes))
        places.push_back({place.position, lignes[place.ligne]});
    return places;
}

} // namespace moteur

EtatPublic LitEtatPublic(Partage &partage, const moteur::OrdreDesResultats &ordre)
{
    EtatPublic etat{.concours = partage.ConcoursCourant};
    if (etat.concours == 0)
        return etat;
    etat.date = partage.DateConcours;
    etat.lieu = partage.LieuConcours;
    etat.clubs = LitClubs(partage);
    etat.equipes = int(etat.clubs.size());
    etat.rencontres =
        moteur::trieRencontres(donnees::RencontresDuTableau1(partage.BaseDonnees, etat.concours), etat.concours, ordre);
    etat.tours = moteur::toursPrevus(int(donnees::CompteMembres(partage.BaseDonnees, etat.concours)), partage.NbJoueurs,
                                     etat.rencontres.tour, partage.AvecRepechage);
    etat.classement = moteur::classementPublic(LitParties(partage, etat.concours));
    return etat;
}
