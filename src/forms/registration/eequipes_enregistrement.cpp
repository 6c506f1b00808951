#include "registration/eequipes.h"

#include "fenetres/copie_prealable.h"
#include "fenetres/formulaires.h"
#include "noms/formes.h"
#include "noms/passation.h"
#include "partage/routines.h"
#include "store/passe_erreur.h"
#include "ui_eequipes.h"

// Storing, correcting and removing a team.

namespace {

constexpr int numeroLimite = 32768;
/// A number proposed behind a team just stored is one digit wider than all others.
constexpr int largeurApresAjout = 5;
const QString titreLancement = u"Torvik"_qs;

} // namespace

void Eequipes::Okc_Click()
{
    enregistre();
}

/// Stores the team on screen; false when it was refused or could not be written, which the operator has been told.
bool Eequipes::enregistre()
{
    if (!saisieRecevable())
        return false;
    const donnees::Equipe equipe = equipeSaisie();
    bool connue = false;
    std::optional<donnees::Retardataire> entree;
    const bool lu = PasseErreur([&] {
        connue = donnees::EquipeExiste(partage().BaseDonnees, equipe.concours, equipe.numero);
        entree = connue ? donnees::Retardataire::Aucun : demandeEntree();
    });
    if (!lu) {
        signaleEchec(equipe.numero);
        return false;
    }
    if (!entree)
        return false;
    const bool fait = connue ? corrige(equipe) : inscrit(equipe, *entree);
    if (!fait) {
        signaleEchec(equipe.numero);
        return false;
    }
    numeroConnu(false);
    SetFocus(m_LicenceJ[0]);
    return true;
}

bool Eequipes::saisieRecevable()
{
    if (numeroTape() > numeroLimite) {
        MsgBox(mes(89) + u"\r\n"_qs + mes(90) + u' ' + QString::number(numeroLimite) + u' ' + mes(73));
        m_ui->Société->clear();
        SetFocus(m_LicenceJ[0]);
        return false;
    }
    return !refuseSansClub();
}

donnees::Equipe Eequipes::equipeSaisie() const
{
    donnees::Equipe equipe{.concours = partage().ConcoursCourant,
                           .numero = numeroEquipe(),
                           .club = m_ui->Société->text(),
                           .membres = {}};
    for (int i = 0; i < nombreMembres(); ++i)
        equipe.membres.push_back({m_NomJ[i]->text(), m_PrénomJ[i]->text(), m_LicenceJ[i]->text()});
    return equipe;
}

/// How the new team enters the competition as far as it has got; nothing when it does not.
std::optional<donnees::Retardataire> Eequipes::demandeEntree()
{
    switch (donnees::EtatDuTirage(partage().BaseDonnees, partage().ConcoursCourant)) {
    case donnees::EtatTirage::PasTire:
        return donnees::Retardataire::Aucun;
    case donnees::EtatTirage::Exemption:
        return donnees::Retardataire::PrendExemption;
    case donnees::EtatTirage::Commence:
        MsgBox(mes(83));
        return std::nullopt;
    case donnees::EtatTirage::SansExemption:
        break;
    }
    if (MsgBox(u"Le concours est déjà lancé, \r\n"_qs + mes(126), vbYesNo, titreLancement) != ReponseBoite::Oui)
        return std::nullopt;
    return donnees::Retardataire::NouvelleExemption;
}

bool Eequipes::inscrit(const donnees::Equipe &equipe, donnees::Retardataire entree)
{
    qint64 adversaire = 0;
    if (!PasseErreur([&] { adversaire = donnees::AjouteEquipe(partage().BaseDonnees, equipe, entree); }))
        return false;
    m_ui->Equipe->addItem(m_ui->Equipe->currentText());
    poseNumero(ZeroPad(equipe.numero + 1, largeurApresAjout));
    afficheCompte(m_ui->Label7->text().toInt() + 1);
    videSaisie();
    if (entree == donnees::Retardataire::PrendExemption)
        MsgBox(u"La rencontre %1 contre %2 peut être lancée"_qs.arg(equipe.numero).arg(adversaire), vbOKOnly,
               titreLancement);
    return true;
}

bool Eequipes::corrige(const donnees::Equipe &equipe)
{
    if (!donnees::CorrigeEquipe(partage().BaseDonnees, equipe))
        return false;
    videSaisie();
    PasseErreur([&] { proposeSuivante(donnees::PlusHautNumero(partage().BaseDonnees, equipe.concours)); });
    return true;
}

/// An operator must never believe a team registered that is not: what he typed stays, to be stored again.
void Eequipes::signaleEchec(qint64 numero)
{
    MsgBox(u"L'équipe %1 n'a pas pu être enregistrée.\nSa saisie reste affichée : "
           "vérifiez-la, puis enregistrez-la de nouveau."_qs.arg(numero),
           vbCritical);
}

void Eequipes::SupprimerC_Click()
{
    const qint64 numero = numeroEquipe();
    if (!GardeUneCopie(contexte(), RaisonCopie::Suppression))
        return;
    const bool retiree = donnees::RetireEquipe(partage().BaseDonnees, partage().ConcoursCourant, numero);
    retireDeLaListe(numero);
    if (!retiree)
        return;
    afficheCompte(m_ui->Label7->text().toInt() - 1);
    videSaisie();
    proposeSuivante(donnees::PlusHautNumero(partage().BaseDonnees, partage().ConcoursCourant));
    numeroConnu(false);
    SetFocus(m_LicenceJ[0]);
}

void Eequipes::Command1_Click()
{
    passation(formulaires()).ModeListeEquipes = 0;
    formulaires().Montre(formes::listeq);
}

void Eequipes::Command2_Click()
{
    const NomForme liste = formes::listjo;
    passation(formulaires()).SelectionEnCours = false;
    passation(formulaires()).ClubFiltre.clear();
    passation(formulaires()).FormeAppelante = Name();
    if (Formulaire *joueurs = formulaires().Charge(liste)) {
        joueurs->Move(0, 0, Ecran::Width(), Ecran::Height());
        formulaires().Montre(liste);
    }
}
