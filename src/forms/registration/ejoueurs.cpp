#include "registration/ejoueurs.h"

#include "donnees/inscription.h"
#include "fenetres/copie_prealable.h"
#include "fenetres/formulaires.h"
#include "noms/formes.h"
#include "noms/passation.h"
#include "partage/routines.h"
#include "store/passe_erreur.h"
#include "ui_ejoueurs.h"

using store::LireDate;

namespace {

/// A number proposed behind a player just stored is one digit wider than all others.
constexpr int largeurApresAjout = 5;

} // namespace

Ejoueurs::Ejoueurs(const Contexte &contexte, QWidget *parent)
    : FormeInscription(contexte, parent)
    , m_ui(std::make_unique<Ui::Ejoueurs>())
{
    m_ui->setupUi(this);
    prepareControles();
    relie();
}

Ejoueurs::~Ejoueurs() = default;

std::vector<Infobulle> Ejoueurs::infobulles() const
{
    return {{m_ui->SupprimerC, mes(133)}, {m_ui->Label1, mes(138)}, {m_ui->ne, mes(139)}};
}

void Ejoueurs::relie()
{
    FormeInscription::relie(
        {.Equipe = m_ui->Equipe, .Société = m_ui->Société, .premierNom = m_ui->NomJ_0, .Label1 = m_ui->Label1});
    surGotFocus(m_ui->Equipe, [this] { Equipe_GotFocus(); });
    surKeyDown(m_ui->Société, [this](int code, int maj) { Société_KeyDown(code, maj); });
    surKeyDown(m_ui->LicenceJ_0, [this](int code, int maj) { LicenceJ_KeyDown(0, code, maj); });
    surKeyDown(m_ui->NomJ_0, [this](int code, int maj) { NomJ_KeyDown(0, code, maj); });
    surKeyDown(m_ui->PrénomJ_0, [this](int code, int maj) { PrénomJ_KeyDown(0, code, maj); });
    surKeyDown(m_ui->ne, [this](int code, int maj) { ne_KeyDown(code, maj); });
    surSortie(m_ui->LicenceJ_0, [this] { LicenceJ_LostFocus(0); });
    surClick(m_ui->Okc, [this] { Okc_Click(); });
    surClick(m_ui->SupprimerC, [this] { SupprimerC_Click(); });
    surClick(m_ui->Command1, [this] { Command1_Click(); });
}

qint32 Ejoueurs::concoursSaisi() const
{
    return donnees::fichierJoueurs;
}

void Ejoueurs::LegendesEjoueurs()
{
    FenetreDessus(*this, false);
    setWindowTitle(u"Gestion des joueurs"_qs);
    m_ui->Label1->setText(mes(18));
    m_ui->Label3->setText(mes(19));
    m_ui->Label4->setText(mes(20));
    m_ui->Label5->setText(mes(21));
    m_ui->Command1->setToolTip(mes(11));
    m_ui->Okc->setToolTip(mes(13));
}

void Ejoueurs::Form_Load()
{
    LegendesEjoueurs();
    placeForme();
}

void Ejoueurs::Form_Activate()
{
    passation(formulaires()).FormeAppelante = Name();
    if (!m_initialise)
        premiereActivation();
}

void Ejoueurs::premiereActivation()
{
    passation(formulaires()).SelectionEnCours = false;
    placeListe();
    partage().NbJoueurs = 1;
    videSaisie();
    poseNumero(ZeroPad(1, largeurApresAjout));
    remplitNumeros();
    m_ui->SupprimerC->hide();
    SetFocus(m_ui->Société);
    m_initialise = true;
}

/// The list takes the room that the form leaves at its right.
void Ejoueurs::placeListe()
{
    if (Formulaire *liste = formulaires().Charge(formes::listjo))
        liste->Move(Left() + Width(), Top(), Ecran::Width() - Left() - Width(), Height());
}

void Ejoueurs::Form_Unload()
{
    m_initialise = false;
    formulaires().Decharge({formes::Listesoc, formes::listjo});
}

void Ejoueurs::videSaisie()
{
    for (QLineEdit *champ : {m_ui->Société, m_ui->LicenceJ_0, m_ui->NomJ_0, m_ui->PrénomJ_0, m_ui->ne})
        champ->clear();
    m_ui->Masculin->setChecked(true);
}

void Ejoueurs::Equipe_GotFocus()
{
    videSaisie();
    m_ui->SupprimerC->hide();
    m_ui->Equipe->lineEdit()->selectAll();
}

bool Ejoueurs::montreConnu(const std::vector<donnees::Membre> &membres)
{
    const donnees::Membre &joueur = membres.front();
    poseNumero(NumeroAffiche(numeroEquipe()));
    m_ui->Société->setText(joueur.club);
    m_ui->NomJ_0->setText(joueur.nom);
    m_ui->PrénomJ_0->setText(joueur.prenom);
    m_ui->LicenceJ_0->setText(joueur.licence);
    m_ui->ne->setText(joueur.ne.texte());
    const bool masculin = joueur.sexe.toUpper() == u"M";
    (masculin ? m_ui->Masculin : m_ui->Feminin)->setChecked(true);
    m_ui->SupprimerC->show();
    return true;
}

void Ejoueurs::Société_KeyDown(int KeyCode, int)
{
    if (Touche::Avance(KeyCode))
        SetFocus(m_ui->LicenceJ_0);
}

void Ejoueurs::LicenceJ_KeyDown(int, int KeyCode, int)
{
    if (!Touche::Avance(KeyCode) || sansBlancs(m_ui->LicenceJ_0).isEmpty())
        return;
    const auto faite = sortieFaite(m_ui->LicenceJ_0);
    verifieLicence();
    if (!m_ui->LicenceJ_0->text().isEmpty())
        SetFocus(m_ui->NomJ_0);
}

void Ejoueurs::LicenceJ_LostFocus(int)
{
    if (!sansBlancs(m_ui->LicenceJ_0).isEmpty())
        verifieLicence();
}

void Ejoueurs::verifieLicence()
{
    std::optional<donnees::Membre> connu;
    PasseErreur([&] { connu = donnees::JoueurConnu(partage().BaseDonnees, m_ui->LicenceJ_0->text().trimmed()); });
    if (connu)
        signaleEngagement(*connu, 0, {m_ui->LicenceJ_0, m_ui->NomJ_0, m_ui->PrénomJ_0});
}

void Ejoueurs::NomJ_KeyDown(int, int KeyCode, int)
{
    if (KeyCode == Touche::Entree)
        SetFocus(m_ui->PrénomJ_0);
}

void Ejoueurs::PrénomJ_KeyDown(int, int KeyCode, int)
{
    if (KeyCode == Touche::Entree)
        SetFocus(m_ui->ne);
}

void Ejoueurs::ne_KeyDown(int KeyCode, int)
{
    if (Touche::Avance(KeyCode))
        SetFocus(m_ui->Masculin);
}

void Ejoueurs::Okc_Click()
{
    if (refuseSansClub())
        return;
    if (donnees::EquipeExiste(partage().BaseDonnees, donnees::fichierJoueurs, numeroEquipe()))
        corrige();
    else
        ajoute();
    m_ui->SupprimerC->hide();
}

/// The player on screen, but for the date of birth: new and known players take it differently.
donnees::Membre Ejoueurs::joueurSaisi() const
{
    return {.nom = m_ui->NomJ_0->text(),
            .prenom = m_ui->PrénomJ_0->text(),
            .licence = m_ui->LicenceJ_0->text(),
            .club = m_ui->Société->text(),
            .equipe = numeroEquipe(),
            .sexe = m_ui->Masculin->isChecked() ? u"M"_qs : u"F"_qs};
}

void Ejoueurs::ajoute()
{
    const QString tapee = m_ui->ne->text().trimmed();
    const QDate ne = LireDate(tapee, partage().horloge.jour().year());
    donnees::Membre joueur = joueurSaisi();
    if (ne.isValid())
        joueur.ne = ne;
    donnees::AjouteJoueur(partage().BaseDonnees, joueur);
    if (!tapee.isEmpty() && !ne.isValid())
        signaleDate(tapee, u"vide"_qs);
    m_ui->Equipe->addItem(NumeroAffiche(joueur.equipe));
    poseNumero(ZeroPad(joueur.equipe + 1, largeurApresAjout));
    videSaisie();
    SetFocus(m_ui->Société);
}

/// The number proposed next follows the teams of the current competition, so it may be too high here, or another
/// player's: the keyboard goes to it, and leaving it puts that right or shows whose it is.
void Ejoueurs::corrige()
{
    const QString ne = m_ui->ne->text().trimmed();
    donnees::Membre joueur = joueurSaisi();
    if (!ne.isEmpty())
        joueur.ne = ne;
    const bool dateAcceptee = donnees::CorrigeJoueur(partage().BaseDonnees, joueur);
    if (!dateAcceptee)
        signaleDate(ne, u"la même"_qs);
    videSaisie();
    proposeSuivante(donnees::PlusHautNumero(partage().BaseDonnees, partage().ConcoursCourant));
    SetFocus(m_ui->Equipe);
}

void Ejoueurs::signaleDate(const QString &tapee, const QString &reste) const
{
    MsgBox(u"« %1 » n'est pas une date : la date de naissance reste %2."_qs.arg(tapee, reste), vbExclamation);
}

void Ejoueurs::SupprimerC_Click()
{
    const qint64 numero = numeroEquipe();
    if (!GardeUneCopie(contexte(), RaisonCopie::Suppression))
        return;
    donnees::RetireJoueur(partage().BaseDonnees, numero);
    retireDeLaListe(numero);
    videSaisie();
    proposeSuivante(donnees::PlusHautNumero(partage().BaseDonnees, donnees::fichierJoueurs));
    m_ui->SupprimerC->hide();
    SetFocus(m_ui->Société);
}

void Ejoueurs::Command1_Click()
{
    passation(formulaires()).SelectionEnCours = false;
    formulaires().Montre(formes::listjo);
}
