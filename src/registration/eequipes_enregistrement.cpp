#include "registration/eequipes.h"

#include "app/routines.h"
#include "platform/formulaires.h"
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
    if (!saisieRecevable())
        return;
    const EquipeSaisie equipe = equipeSaisie();
    bool connue = false;
    std::optional<Retardataire> entree;
    const bool lu = PasseErreur([&] {
        connue = EquipeExiste(partage(), equipe.concours, equipe.numero);
        entree = connue ? Retardataire::Aucun : demandeEntree();
    });
    if (!lu) {
        signaleEchec(equipe.numero);
        return;
    }
    if (!entree)
        return;
    const bool fait = connue ? corrige(equipe) : inscrit(equipe, *entree);
    if (!fait) {
        signaleEchec(equipe.numero);
        return;
    }
    numeroConnu(false);
    SetFocus(m_LicenceJ[0]);
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

EquipeSaisie Eequipes::equipeSaisie() const
{
    EquipeSaisie equipe{.concours = partage().ConcoursCourant,
                        .numero = numeroEquipe(),
                        .societe = m_ui->Société->text(),
                        .membres = {}};
    for (int i = 0; i < nombreMembres(); ++i)
        equipe.membres.push_back({m_NomJ[i]->text(), m_PrénomJ[i]->text(), m_LicenceJ[i]->text()});
    return equipe;
}

/// How the new team enters the competition as far as it has got; nothing when it does not.
std::optional<Retardataire> Eequipes::demandeEntree()
{
    switch (EtatDuTirage(partage(), partage().ConcoursCourant)) {
    case EtatTirage::PasTire:
        return Retardataire::Aucun;
    case EtatTirage::Exemption:
        return Retardataire::PrendExemption;
    case EtatTirage::Commence:
        MsgBox(mes(83));
        return std::nullopt;
    case EtatTirage::SansExemption:
        break;
    }
    if (MsgBox(u"Le concours est déjà lancé, \r\n"_qs + mes(126), vbYesNo, titreLancement) != ReponseBoite::Oui)
        return std::nullopt;
    return Retardataire::NouvelleExemption;
}

bool Eequipes::inscrit(const EquipeSaisie &equipe, Retardataire entree)
{
    const std::optional<qint64> adversaire = AjouteEquipe(partage(), equipe, entree);
    if (!adversaire)
        return false;
    m_ui->Equipe->addItem(m_ui->Equipe->currentText());
    poseNumero(ZeroPad(equipe.numero + 1, largeurApresAjout));
    afficheCompte(m_ui->Label7->text().toInt() + 1);
    videSaisie();
    if (entree == Retardataire::PrendExemption)
        MsgBox(u"La rencontre %1 contre %2 peut être lancée"_qs.arg(equipe.numero).arg(*adversaire), vbOKOnly,
               titreLancement);
    return true;
}

bool Eequipes::corrige(const EquipeSaisie &equipe)
{
    if (!CorrigeEquipe(partage(), equipe))
        return false;
    videSaisie();
    PasseErreur([&] { proposeSuivante(PlusHautNumero(partage(), equipe.concours)); });
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
    GardeUneCopie(contexte());
    const bool retiree = RetireEquipe(partage(), partage().ConcoursCourant, numero);
    retireDeLaListe(numero);
    if (!retiree)
        return;
    afficheCompte(m_ui->Label7->text().toInt() - 1);
    videSaisie();
    proposeSuivante(PlusHautNumero(partage(), partage().ConcoursCourant));
    numeroConnu(false);
    SetFocus(m_LicenceJ[0]);
}

void Eequipes::Command1_Click()
{
    partage().ModeListeEquipes = 0;
    formulaires().Montre(u"listeq"_qs);
}

void Eequipes::Command2_Click()
{
    const QString liste = u"listjo"_qs;
    partage().SelectionEnCours = false;
    partage().ClubFiltre.clear();
    partage().FormeAppelante = Name();
    if (Formulaire *joueurs = formulaires().Charge(liste)) {
        joueurs->Move(0, 0, Ecran::Width(), Ecran::Height());
        formulaires().Montre(liste);
    }
}
