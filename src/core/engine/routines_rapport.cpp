#include "engine/routines_rapport.h"

#include "donnees/clubs.h"
#include "partage/routines.h"

namespace {

/// \p matiere with \p propose in the place of the matches of its round.
std::vector<moteur::Partie> avec(const MatiereRapport &matiere, int tour, const std::vector<moteur::Partie> &propose)
{
    std::vector<moteur::Partie> parties = matiere.parties;
    std::erase_if(parties, [tour](const moteur::Partie &partie) { return partie.tour >= tour; });
    parties.insert(parties.end(), propose.begin(), propose.end());
    return parties;
}

} // namespace

MatiereRapport LitMatiere(Partage &partage)
{
    const QHash<int, QString> clubs = LitClubs(partage);
    MatiereRapport matiere{LitParties(partage, partage.ConcoursCourant), clubs, clubs};
    erase_if(matiere.clubs,
             [](const std::pair<const int &, QString &> &club) { return donnees::EstPanache(club.second); });
    return matiere;
}

bool PeutRefaireTour(Partage &partage)
{
    const auto compte = [&](const QString &condition) {
        return ValeurUnique(partage,
                            u"select count(*) from scores where concours=%1 and tableau=1 and tour=%2"_qs
                                    .arg(partage.ConcoursCourant)
                                    .arg(partage.TourCourant)
                                + condition)
            .entier();
    };
    return compte({}) > 0 && compte(u" and equipe_2>0 and (not isnull(score_1) or not isnull(score_2))"_qs) == 0;
}

MeilleurTour CherchePlusieursTours(Partage &partage, int essais, const std::function<bool(int)> &continuer)
{
    const MatiereRapport matiere = LitMatiere(partage);
    const int tour = partage.TourCourant;
    MeilleurTour meilleur;
    for (int essai = 1; essai <= essais; ++essai) {
        TourPropose propose = ProposeTour(partage, tour);
        moteur::RapportTour rapport = moteur::etablitRapport(avec(matiere, tour, propose.parties), tour, matiere.clubs);
        if (essai == 1 || moteur::vautMieux(rapport, meilleur.rapport))
            meilleur = {std::move(propose), std::move(rapport), 0};
        meilleur.essais = essai;
        const bool sansDefaut = meilleur.rapport.repetitions() == 0 && meilleur.rapport.memeClub() == 0;
        if (sansDefaut || (continuer && !continuer(essai)))
            break;
    }
    return meilleur;
}
