#include "registration/eequipes.h"

#include "fenetres/formulaires.h"
#include "noms/formes.h"
#include "noms/passation.h"
#include "partage/concours_courant.h"
#include "partage/routines.h"
#include "ui_eequipes.h"

using store::EstNumerique;
using store::Val;

namespace {

constexpr int largeurListe = 4000; // twips

/// Code and label of a competition type such as "2 - Triplettes".
std::pair<QString, QString> codeEtLibelle(const QString &type)
{
    const qsizetype tiret = type.indexOf(u'-');
    return {type.left(tiret).trimmed(), type.mid(tiret + 2)};
}

} // namespace

Eequipes::Eequipes(const Contexte &contexte, QWidget *parent)
    : FormeInscription(contexte, parent)
    , m_ui(std::make_unique<Ui::Eequipes>())
{
    m_ui->setupUi(this);
    m_NomJ = {m_ui->NomJ_0, m_ui->NomJ_1, m_ui->NomJ_2, m_ui->NomJ_3};
    m_PrénomJ = {m_ui->PrénomJ_0, m_ui->PrénomJ_1, m_ui->PrénomJ_2, m_ui->PrénomJ_3};
    m_LicenceJ = {m_ui->LicenceJ_0, m_ui->LicenceJ_1, m_ui->LicenceJ_2, m_ui->LicenceJ_3};
    prepareControles();
    relie();
    relieMembres();
}

Eequipes::~Eequipes() = default;

std::vector<Infobulle> Eequipes::infobulles() const
{
    return {{m_ui->référence, mes(135)},  {m_ui->Equipe, mes(136)},     {m_ui->Label1, mes(138)},
            {m_ui->LicenceJ_0, mes(137)}, {m_ui->LicenceJ_1, mes(137)}, {m_ui->LicenceJ_2, mes(137)},
            {m_ui->SupprimerC, mes(131)}, {m_ui->Command2, mes(132)}};
}

void Eequipes::relie()
{
    FormeInscription::relie(
        {.Equipe = m_ui->Equipe, .Société = m_ui->Société, .premierNom = m_NomJ[0], .Label1 = m_ui->Label1});
    const auto touche = [this](QWidget *controle, void (Eequipes::*traitement)(int, int)) {
        surKeyDown(controle, [this, traitement](int code, int maj) { (this->*traitement)(code, maj); });
    };
    touche(m_ui->référence, &Eequipes::référence_KeyDown);
    touche(m_ui->Société, &Eequipes::Société_KeyDown);
    surGotFocus(m_ui->référence, [this] { référence_GotFocus(); });
    surGotFocus(m_ui->Equipe, [this] { Equipe_GotFocus(); });
    surSortie(m_ui->référence, [this] { référence_LostFocus(); });
    surChoix(m_ui->référence, [this] { référence_KeyDown(Touche::Entree, 0); });
    surClick(m_ui->Okc, [this] { Okc_Click(); });
    surClick(m_ui->SupprimerC, [this] { SupprimerC_Click(); });
    surClick(m_ui->cImport, [this] { cImport_Click(); });
    surClick(m_ui->Command1, [this] { Command1_Click(); });
    surClick(m_ui->Command2, [this] { Command2_Click(); });
}

void Eequipes::LegendesEequipes()
{
    FenetreDessus(*this, false);
    setWindowTitle(mes(14));
    m_ui->Lréférence->setText(mes(1));
    m_ui->Label2->setText(mes(17));
    m_ui->Label1->setText(mes(18));
    m_ui->Label3->setText(mes(19));
    m_ui->Label4->setText(mes(20));
    m_ui->Label5->setText(mes(21));
    for (std::size_t i = 0; i < m_LicenceJ.size(); ++i) {
        const QString rang = u' ' + QString::number(i + 1);
        m_LicenceJ[i]->setAccessibleName(mes(21) + rang);
        m_NomJ[i]->setAccessibleName(mes(19) + rang);
        m_PrénomJ[i]->setAccessibleName(mes(20) + rang);
    }
    m_ui->Command1->setToolTip(mes(11));
    m_ui->cImport->setToolTip(mes(22));
    m_ui->Okc->setToolTip(mes(13));
    passation(formulaires()).SelectionEnCours = false;
}

void Eequipes::Form_Load()
{
    LegendesEequipes();
    placeForme();
}

void Eequipes::Form_Activate()
{
    passation(formulaires()).FormeAppelante = Name();
    if (!m_initialise)
        premiereActivation();
}

void Eequipes::Form_Unload()
{
    m_initialise = false;
    formulaires().Decharge({formes::Listesoc, formes::listjo});
}

void Eequipes::premiereActivation()
{
    const QStringList numeros = RetrouveConcours(partage());
    m_ui->référence->clear();
    if (numeros.isEmpty()) {
        formulaires().Decharge({formes::Eequipes, formes::Listesoc});
        formulaires().Montre(formes::Econcours);
        return;
    }
    m_ui->référence->addItems(numeros);
    poseTexte(m_ui->référence, NumeroConcours(partage().ConcoursCourant));
    const donnees::Concours concours =
        donnees::TrouveConcours(partage().BaseDonnees, partage().ConcoursCourant).value();
    afficheConcours(concours);
    // A competition just created is not in the texts of the sheets yet.
    memorise(concours);
    videSaisie();
    montreMembres();
    poseTexte(m_ui->Equipe, u"00001"_qs);
    remplitEquipes();
    libelleCompte(numeroTape());
    numeroConnu(false);
    SetFocus(m_LicenceJ[0]);
    placeListesoc(largeurListe);
    m_initialise = true;
}

/// Shows the competition, and takes over its players a team.
void Eequipes::afficheConcours(const donnees::Concours &concours)
{
    const auto [code, libelle] = codeEtLibelle(concours.type);
    m_ui->Lieuc->setText(concours.lieu);
    m_ui->datec->setText(FormateDate(partage(), concours.date));
    m_ui->typec->setText(libelle);
    m_ui->categorie->setText(concours.categorie);
    const std::optional<donnees::TypeConcours> type = donnees::TrouveType(partage().BaseDonnees, code);
    partage().NbJoueurs = type ? qint16(type->joueurs) : qint16(0);
}

void Eequipes::memorise(const donnees::Concours &concours)
{
    partage().ConcoursCourant = concours.numero;
    RetientConcours(partage(), concours);
}

void Eequipes::montreControles(bool montres)
{
    const auto controles = findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *controle : controles) {
        if (controle != m_ui->référence && controle != m_ui->Lréférence)
            controle->setVisible(montres);
    }
}

void Eequipes::référence_GotFocus()
{
    montreControles(false);
    m_ui->référence->lineEdit()->selectAll();
}

void Eequipes::référence_KeyDown(int KeyCode, int)
{
    if (!Touche::Avance(KeyCode) && KeyCode != Touche::Tabulation)
        return;
    const auto faite = sortieFaite(m_ui->référence);
    référence_LostFocus();
}

void Eequipes::référence_LostFocus()
{
    const QString tape = m_ui->référence->currentText();
    const QString numero = ZeroPad(tape, chiffresConcours);
    poseTexte(m_ui->référence, numero);
    // Six characters with an exponent can stand for more than a whole number holds.
    const qint64 cherche = EstNumerique(tape) ? qint64(std::clamp(Val(numero), 0., 1e9)) : 0;
    if (const auto concours = donnees::TrouveConcours(partage().BaseDonnees, cherche))
        changeConcours(*concours);
    else
        refuseConcours();
}

void Eequipes::refuseConcours()
{
    MsgBox(mes(91) + u"\r\n"_qs + mes(82));
    SetFocus(m_ui->référence);
    m_ui->référence->lineEdit()->selectAll();
}

void Eequipes::changeConcours(const donnees::Concours &concours)
{
    afficheConcours(concours);
    memorise(concours);
    montreControles(true);
    passation(formulaires()).PanacheeAutorisee = false;
    montreMembres();
    poseTexte(m_ui->Equipe, QString());
    remplitEquipes();
    if (m_ui->Equipe->currentText().isEmpty())
        poseTexte(m_ui->Equipe, NumeroAffiche(1));
    libelleCompte(m_ui->Label7->text().toDouble());
    videSaisie();
    numeroConnu(false);
    m_initialise = true;
    // Not through SetFocus: an operator who has gone to another form stays there.
    m_LicenceJ[0]->setFocus(Qt::OtherFocusReason);
}

void Eequipes::remplitEquipes()
{
    m_ui->Label7->setText(QString::number(remplitNumeros()));
}

void Eequipes::libelleCompte(double nombre)
{
    m_ui->Label8->setText(mes(nombre > 1 ? 87 : 88));
}

void Eequipes::afficheCompte(qint64 nombre)
{
    m_ui->Label7->setText(QString::number(nombre));
    libelleCompte(double(nombre));
}

/// A known team can be removed; a new one can come from a file.
void Eequipes::numeroConnu(bool connu)
{
    m_ui->cImport->setVisible(!connu);
    m_ui->SupprimerC->setVisible(connu);
}

void Eequipes::Equipe_GotFocus()
{
    videMembres();
    numeroConnu(false);
    m_ui->Equipe->lineEdit()->selectAll();
}

/// Shows the team of the number typed. A team without its row of `evolution` does not count as one.
bool Eequipes::montreConnu(const std::vector<donnees::Membre> &membres)
{
    const qint64 numero = numeroEquipe();
    if (!donnees::EstEngagee(partage().BaseDonnees, partage().ConcoursCourant, numero))
        return false;
    poseNumero(NumeroAffiche(numero));
    m_ui->Société->setText(membres.front().club);
    afficheMembres(membres);
    numeroConnu(true);
    return true;
}
