#include "results/eresultats.h"

#include "donnees/equipes.h"
#include "donnees/rencontres.h"
#include "engine/controle_tours.h"
#include "partage/routines.h"
#include "ui_eresultats.h"

// The state of the competition: what is missing, whether a round is left to draw, whether it is over.

qint64 EResultats::compteAttendus(std::optional<int> tour) const
{
    return donnees::CompteAttendus(partage().BaseDonnees, partage().ConcoursCourant, tour);
}

qint64 EResultats::compteJoueurs() const
{
    return donnees::CompteMembres(partage().BaseDonnees, partage().ConcoursCourant);
}

bool EResultats::resteUnTour() const
{
    return moteur::resteUnTour(int(compteJoueurs()), partage().NbJoueurs, partage().TourCourant,
                               partage().AvecRepechage);
}

void EResultats::afficheEtat(Moment moment)
{
    if (partage().TourCourant <= 0) {
        afficheAvantDepart(moment);
    } else {
        m_ui->Tour_P->clear();
        m_ui->tour_P1->clear();
        m_ui->Label2->setText(u"Tour N° %1"_qs.arg(partage().TourCourant));
        afficheEnCours(compteAttendus());
    }
    if (donnees::CompteRencontres(partage().BaseDonnees, partage().ConcoursCourant) == 0) {
        m_ui->tirage_suivant->setText(u"Lancer le concours"_qs);
        m_ui->tirage_suivant->show();
    }
}

void EResultats::afficheAvantDepart(Moment moment)
{
    const qint64 joueurs = compteJoueurs();
    const double equipes = double(joueurs) / std::max<int>(partage().NbJoueurs, 1);
    m_ui->tirage_suivant->setText(u"Lancer le concours"_qs);
    m_ui->tirage_suivant->setVisible(joueurs > 1);
    m_ui->tour_P1->clear();
    if (moment == Moment::Chargement)
        m_ui->Label2->setText(LibellePluriel(partage(), equipes, u" équipe"_qs));
    else
        m_ui->Label2->setText(FormateNombre(equipes) + (joueurs > 1 ? u" équipe(s)"_qs : u" équipes inscrites"_qs));
}

/// What a round under way shows, with \p attendus results to come.
void EResultats::afficheEnCours(qint64 attendus)
{
    // Message 108 brings the blank in front of its word, message 4 does not.
    const QString mot = attendus > 1 ? mes(4) : mes(108);
    const QString blanc = mot.startsWith(u' ') ? QString() : u" "_qs;
    m_ui->tour_P1->setText(u' ' + mes(109) + u' ' + QString::number(attendus) + blanc + mot + u' ');
    const bool complet = attendus == 0;
    const bool encoreUn = resteUnTour();
    m_ui->tirage_suivant->setText(u"Tirage tour N°%1"_qs.arg(partage().TourCourant + 1));
    m_ui->tirage_suivant->setVisible(complet && encoreUn);
    if (complet && !encoreUn)
        m_ui->tour_P1->setText(u"Concours terminé"_qs);
}
