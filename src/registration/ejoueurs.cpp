#include "registration/ejoueurs.h"

#include "app/routines.h"
#include "platform/formulaires.h"
#include "registration/equipe_inscrite.h"
#include "ui_ejoueurs.h"

using store::LireDate;
using store::Recordset;

namespace {

/// The known players stand under this competition.
constexpr qint32 fichierJoueurs = 0;
constexpr int longueurNom = 20;
constexpr int longueurLicence = 15;
/// A number proposed behind a player just stored is one digit wider than all others.
constexpr int largeurApresAjout = 5;
const QString listeJoueurs = u"listjo"_qs;

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

void Ejoueurs::relie()
{
    FormeInscription::relie({.Equipe = m_ui->Equipe,
                             .Société = m_ui->Société,
                             .premierNom = m_ui->NomJ_0,
                             .Label1 = m_ui->Label1});
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
    return fichierJoueurs;
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
    partage().FormeAppelante = Name();
    if (!m_initialise)
        premiereActivation();
}

void Ejoueurs::premiereActivation()
{
    partage().SelectionEnCours = false;
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
    if (Formulaire *liste = formulaires().Charge(listeJoueurs))
        liste->Move(Left() + Width(), Top(), Ecran::Width() - Left() - Width(), Height());
}

void Ejoueurs::Form_Unload()
{
    m_initialise = false;
    formulaires().Decharge({u"Listesoc"_qs, listeJoueurs});
}

void Ejoueurs::videSaisie()
{
    for (QLineEdit *champ : {m_ui->Société, m_ui->LicenceJ_0, m_ui->NomJ_0, m_ui->PrénomJ_0, m_ui->ne})
        champ->clear();
}

void Ejoueurs::Equipe_GotFocus()
{
    videSaisie();
    m_ui->SupprimerC->hide();
    m_ui->Equipe->lineEdit()->selectAll();
}

bool Ejoueurs::montreConnu(Recordset &equipes)
{
    poseNumero(NumeroAffiche(numeroEquipe()));
    m_ui->Société->setText(equipes[u"societe"].texte());
    m_ui->NomJ_0->setText(equipes[u"nom"].texte());
    m_ui->PrénomJ_0->setText(equipes[u"prenom"].texte());
    m_ui->LicenceJ_0->setText(equipes[u"Licence"].texte());
    m_ui->ne->setText(equipes[u"ne"].texte());
    const bool masculin = equipes[u"sexe"].texte().toUpper() == u"M";
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
    if (!Touche::Avance(KeyCode) || m_ui->LicenceJ_0->text().trimmed().isEmpty())
        return;
    const auto faite = sortieFaite(m_ui->LicenceJ_0);
    verifieLicence();
    if (!m_ui->LicenceJ_0->text().isEmpty())
        SetFocus(m_ui->NomJ_0);
}

void Ejoueurs::LicenceJ_LostFocus(int)
{
    if (!m_ui->LicenceJ_0->text().trimmed().isEmpty())
        verifieLicence();
}

void Ejoueurs::verifieLicence()
{
    std::optional<Engagement> engagement;
    PasseErreur([&] { engagement = chercheEngagement(m_ui->LicenceJ_0->text().trimmed(), fichierJoueurs); });
    if (engagement)
        signaleEngagement(*engagement, 0, {m_ui->LicenceJ_0, m_ui->NomJ_0, m_ui->PrénomJ_0});
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
    Recordset joueurs = partage().BaseDonnees.OpenRecordset(RequeteEquipe(fichierJoueurs, numeroEquipe()));
    if (joueurs.Eof())
        ajoute(joueurs);
    else
        corrige(joueurs);
    m_ui->SupprimerC->hide();
}

/// A new player's texts are cut to what the file holds; a corrected player's stay as typed.
void Ejoueurs::ajoute(Recordset &joueurs)
{
    const qint64 numero = numeroEquipe();
    const QDate ne = LireDate(m_ui->ne->text(), partage().horloge.jour().year());
    joueurs.AddNew();
    joueurs[u"concours"] = fichierJoueurs;
    joueurs[u"equipe"] = numero;
    joueurs[u"nom"] = m_ui->NomJ_0->text().left(longueurNom);
    joueurs[u"prenom"] = m_ui->PrénomJ_0->text().left(longueurNom);
    joueurs[u"Licence"] = m_ui->LicenceJ_0->text().left(longueurLicence);
    joueurs[u"societe"] = m_ui->Société->text();
    joueurs[u"ne"] = ne.isValid() ? store::Valeur(ne) : store::Valeur();
    ecritSexe(joueurs);
    joueurs.Update();
    m_ui->Equipe->addItem(NumeroAffiche(numero));
    poseNumero(ZeroPad(numero + 1, largeurApresAjout));
    videSaisie();
    m_ui->Masculin->setChecked(true);
    SetFocus(m_ui->Société);
}

/// The number proposed next follows the teams of the current competition, so it may be too high here, or another
/// player's: the keyboard goes to it, and leaving it puts that right or shows whose it is.
void Ejoueurs::corrige(Recordset &joueurs)
{
    const QString ne = m_ui->ne->text().trimmed();
    joueurs.Edit();
    joueurs[u"nom"] = m_ui->NomJ_0->text();
    joueurs[u"prenom"] = m_ui->PrénomJ_0->text();
    joueurs[u"Licence"] = m_ui->LicenceJ_0->text();
    joueurs[u"societe"] = m_ui->Société->text();
    const bool dateAcceptee =
        PasseErreur([&] { joueurs[u"ne"] = ne.isEmpty() ? store::Valeur() : store::Valeur(ne); });
    ecritSexe(joueurs);
    joueurs.Update();
    if (!dateAcceptee)
        MsgBox(u"« %1 » n'est pas une date : la date de naissance reste la même."_qs.arg(ne), vbExclamation);
    videSaisie();
    m_ui->Masculin->setChecked(true);
    proposeSuivante(PlusHautNumero(partage(), partage().ConcoursCourant));
    SetFocus(m_ui->Equipe);
}

void Ejoueurs::ecritSexe(Recordset &joueurs) const
{
    joueurs[u"sexe"] = m_ui->Masculin->isChecked() ? u"M"_qs : u"F"_qs;
}

void Ejoueurs::SupprimerC_Click()
{
    const qint64 numero = numeroEquipe();
    GardeUneCopie(contexte());
    partage().BaseDonnees.Execute(
        u"delete * from equipes where concours = %1 and equipe = %2"_qs.arg(fichierJoueurs).arg(numero));
    retireDeLaListe(numero);
    videSaisie();
    proposeSuivante(PlusHautNumero(partage(), fichierJoueurs));
    m_ui->SupprimerC->hide();
    SetFocus(m_ui->Société);
}

void Ejoueurs::Command1_Click()
{
    partage().SelectionEnCours = false;
    formulaires().Montre(listeJoueurs);
}
