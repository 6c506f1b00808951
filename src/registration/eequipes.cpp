#include "registration/eequipes.h"

#include "app/concours_courant.h"
#include "app/routines.h"
#include "platform/formulaires.h"
#include "ui_eequipes.h"

using store::EstNumerique;
using store::Recordset;
using store::Val;

namespace {

constexpr int largeurReference = 6;
constexpr int largeurNumero = 4;
// Twips
constexpr int margeBasse = 1500;
constexpr int margeGauche = 50;
constexpr int largeurListe = 4000;

/// Code and label of a competition type such as "2 - Triplettes".
std::pair<QString, QString> codeEtLibelle(const QString &type)
{
    const qsizetype tiret = type.indexOf(u'-');
    return {type.left(tiret).trimmed(), type.mid(tiret + 2)};
}

/// Shows \p texte in an editable list; the item of that text becomes the current one.
void poseTexte(QComboBox *combo, const QString &texte)
{
    combo->setCurrentIndex(combo->findText(texte));
    combo->setEditText(texte);
}

} // namespace

Eequipes::Eequipes(const Contexte &contexte, QWidget *parent)
    : Formulaire(contexte, parent)
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

void Eequipes::relie()
{
    const auto touche = [this](QWidget *controle, void (Eequipes::*traitement)(int, int)) {
        surKeyDown(controle, [this, traitement](int code, int maj) { (this->*traitement)(code, maj); });
    };
    const auto sortie = [this](QWidget *controle, void (Eequipes::*traitement)()) {
        surLostFocus(controle, [this, controle, traitement] {
            if (m_sortieFaite != controle)
                (this->*traitement)();
        });
    };
    touche(m_ui->référence, &Eequipes::référence_KeyDown);
    touche(m_ui->Equipe, &Eequipes::Equipe_KeyDown);
    touche(m_ui->Société, &Eequipes::Société_KeyDown);
    surGotFocus(m_ui->référence, [this] { référence_GotFocus(); });
    surGotFocus(m_ui->Equipe, [this] { Equipe_GotFocus(); });
    sortie(m_ui->référence, &Eequipes::référence_LostFocus);
    sortie(m_ui->Equipe, &Eequipes::Equipe_LostFocus);
    sortie(m_ui->Société, &Eequipes::Société_LostFocus);
    surChoix(m_ui->référence, [this] { référence_KeyDown(Touche::Entree, 0); });
    surChoix(m_ui->Equipe, [this] { Equipe_KeyDown(Touche::Entree, 0); });
    surMouseDown(m_ui->Label1, [this](int, int) { Label1_Click(); });
    surClick(m_ui->Okc, [this] { Okc_Click(); });
    surClick(m_ui->SupprimerC, [this] { SupprimerC_Click(); });
    surClick(m_ui->cImport, [this] { cImport_Click(); });
    surClick(m_ui->Command1, [this] { Command1_Click(); });
    surClick(m_ui->Command2, [this] { Command2_Click(); });
}

/// In the two lists of numbers, wheel and arrows would walk through competitions and teams under the operator's hand:
/// the arrows open the list instead.
bool Eequipes::eventFilter(QObject *objet, QEvent *evenement)
{
    auto *combo = qobject_cast<QComboBox *>(objet);
    if (combo != nullptr && evenement->type() == QEvent::Wheel)
        return true;
    if (combo != nullptr && evenement->type() == QEvent::KeyPress) {
        const int touche = static_cast<QKeyEvent *>(evenement)->key();
        if (touche == Qt::Key_Up || touche == Qt::Key_Down || touche == Qt::Key_PageUp || touche == Qt::Key_PageDown) {
            combo->showPopup();
            return true;
        }
    }
    return Formulaire::eventFilter(objet, evenement);
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
    m_ui->Command1->setToolTip(mes(11));
    m_ui->cImport->setToolTip(mes(22));
    m_ui->Okc->setToolTip(mes(13));
    partage().SelectionEnCours = false;
}

void Eequipes::Form_Load()
{
    LegendesEequipes();
    Move(margeGauche, Ecran::Height() - Height() - margeBasse);
}

void Eequipes::Form_Activate()
{
    partage().FormeAppelante = Name();
    if (!m_initialise)
        premiereActivation();
}

void Eequipes::Form_Unload()
{
    m_initialise = false;
    formulaires().Decharge({u"Listesoc"_qs, u"listjo"_qs});
}

void Eequipes::premiereActivation()
{
    const QStringList numeros = numerosDesConcours();
    m_ui->référence->clear();
    if (numeros.isEmpty()) {
        formulaires().Decharge({Name(), u"Listesoc"_qs});
        formulaires().Montre(u"Econcours"_qs);
        return;
    }
    choisitConcours(numeros);
    const Recordset concours = partage().BaseDonnees.OpenRecordset(
        u"SELECT * FROM [Concours] Where [concours] = %1"_qs.arg(partage().ConcoursCourant));
    afficheConcours(concours);
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

QStringList Eequipes::numerosDesConcours() const
{
    QStringList numeros;
    Recordset concours = partage().BaseDonnees.OpenRecordset(u"SELECT concours, lieu, date, type from [concours]");
    for (; !concours.Eof(); concours.MoveNext())
        numeros += ZeroPad(concours[u"concours"].entier(), largeurReference);
    return numeros;
}

void Eequipes::choisitConcours(const QStringList &numeros)
{
    m_ui->référence->addItems(numeros);
    if (partage().ConcoursCourant < 1) {
        partage().ConcoursCourant = numeros.last().toInt();
        ChargeConcours(partage(), partage().ConcoursCourant);
    }
    poseTexte(m_ui->référence, ZeroPad(partage().ConcoursCourant, largeurReference));
}

/// Shows the competition, and takes over its players a team.
void Eequipes::afficheConcours(const Recordset &concours)
{
    const auto [code, libelle] = codeEtLibelle(concours[u"type"].texte());
    m_ui->Lieuc->setText(concours[u"lieu"].texte());
    m_ui->datec->setText(FormateDate(partage(), concours[u"date"]));
    m_ui->typec->setText(libelle);
    m_ui->categorie->setText(concours[u"categorie"].texte());
    Recordset types = partage().BaseDonnees.OpenRecordset(u"typconcours", store::dbOpenTable);
    types.Index(u"PrimaryKey");
    types.Seek(u"=", {code});
    partage().NbJoueurs = types.NoMatch() ? qint16(0) : qint16(types[u"Nbjoueurs"].entierOu(0));
}

void Eequipes::memorise(const Recordset &concours)
{
    partage().ConcoursCourant = qint32(concours[u"concours"].entier());
    partage().DateConcours = FormateDate(partage(), concours[u"date"]);
    partage().LieuConcours = concours[u"lieu"].texte();
    partage().AvecRepechage = concours[u"repeche"].booleen();
    partage().TourCourant = qint16(concours[u"tourpri"].entierOu(0));
    partage().CategorieConcours = concours[u"categorie"].texte();
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
    const QString numero = ZeroPad(tape, largeurReference);
    poseTexte(m_ui->référence, numero);
    const Recordset concours = partage().BaseDonnees.OpenRecordset(
        u"SELECT * FROM [Concours] Where [concours] = %1"_qs.arg(EstNumerique(tape) ? qint64(Val(numero)) : 0));
    if (concours.Eof())
        refuseConcours();
    else
        changeConcours(concours);
}

void Eequipes::refuseConcours()
{
    MsgBox(mes(91) + u"\r\n"_qs + mes(82));
    SetFocus(m_ui->référence);
    m_ui->référence->lineEdit()->selectAll();
}

void Eequipes::changeConcours(const Recordset &concours)
{
    afficheConcours(concours);
    memorise(concours);
    montreControles(true);
    partage().PanacheeAutorisee = false;
    montreMembres();
    poseTexte(m_ui->Equipe, QString());
    remplitEquipes();
    if (m_ui->Equipe->currentText().isEmpty())
        poseTexte(m_ui->Equipe, ZeroPad(1, largeurNumero));
    libelleCompte(m_ui->Label7->text().toDouble());
    videSaisie();
    numeroConnu(false);
    m_initialise = true;
    // Not through SetFocus: an operator who has gone to another form stays there.
    m_LicenceJ[0]->setFocus(Qt::OtherFocusReason);
}

/// Fills the list with the teams of the competition, and proposes the number behind the last one.
void Eequipes::remplitEquipes()
{
    QString proposition = m_ui->Equipe->currentText();
    const std::vector<qint64> numeros = NumerosDesEquipes(partage(), partage().ConcoursCourant);
    QStringList lignes;
    for (const qint64 numero : numeros)
        lignes += ZeroPad(numero, largeurNumero);
    if (!numeros.empty())
        proposition = ZeroPad(numeros.back() + 1, largeurNumero);
    m_ui->Equipe->clear();
    m_ui->Equipe->addItems(lignes);
    poseTexte(m_ui->Equipe, proposition);
    m_ui->Label7->setText(QString::number(numeros.size()));
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

/// The number in `Equipe`, 0 when the text is none.
double Eequipes::numeroTape() const
{
    constexpr double borne = 1e9;
    const QString texte = m_ui->Equipe->currentText();
    return EstNumerique(texte) ? std::clamp(Val(texte), -borne, borne) : 0;
}

void Eequipes::poseNumero(const QString &texte)
{
    poseTexte(m_ui->Equipe, texte);
}

void Eequipes::proposeSuivante(std::optional<qint64> maxe)
{
    poseNumero(ZeroPad(maxe.value_or(0) + 1, largeurNumero));
}

void Eequipes::Equipe_GotFocus()
{
    videMembres();
    numeroConnu(false);
    m_ui->Equipe->lineEdit()->selectAll();
}

void Eequipes::Equipe_KeyDown(int KeyCode, int)
{
    if (!Touche::Avance(KeyCode))
        return;
    const auto faite = sortieFaite(m_ui->Equipe);
    Equipe_LostFocus();
}

void Eequipes::Equipe_LostFocus()
{
    std::optional<qint64> maxe;
    PasseErreur([&] { maxe = PlusHautNumero(partage(), partage().ConcoursCourant); });
    if (numeroTape() < 1 || (maxe && numeroTape() > double(*maxe + 1))) {
        refuseNumero(maxe);
        return;
    }
    bool lue = true;
    PasseErreur([&] { lue = litEquipe(maxe); });
    if (lue)
        SetFocus(m_ui->Société);
}

void Eequipes::refuseNumero(std::optional<qint64> maxe)
{
    MsgBox(mes(81) + u"\r\n"_qs + mes(82));
    poseNumero(ZeroPad(maxe.value_or(1), largeurNumero));
    SetFocus(m_ui->Equipe);
    m_ui->Equipe->lineEdit()->selectAll();
}

/// Shows the team of the number typed, or proposes the next free number instead of one that no team bears: gaps are
/// never filled. False for a team that the competition does not know.
bool Eequipes::litEquipe(std::optional<qint64> maxe)
{
    const qint64 numero = numeroEquipe();
    Recordset equipes = partage().BaseDonnees.OpenRecordset(RequeteEquipe(partage().ConcoursCourant, numero));
    if (equipes.Eof()) {
        proposeSuivante(maxe);
        return true;
    }
    Recordset evolution = partage().BaseDonnees.OpenRecordset(u"Evolution", store::dbOpenTable);
    evolution.Index(u"PrimaryKey");
    evolution.Seek(u"=", {partage().ConcoursCourant, numero});
    if (evolution.NoMatch())
        return false;
    poseNumero(ZeroPad(numero, largeurNumero));
    m_ui->Société->setText(equipes[u"societe"].texte());
    afficheMembres(equipes);
    numeroConnu(true);
    return true;
}
