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

void Eequipes::relie()
{
    FormeInscription::relie({.Equipe = m_ui->Equipe,
                             .Société = m_ui->Société,
                             .premierNom = m_NomJ[0],
                             .Label1 = m_ui->Label1});
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
    partage().SelectionEnCours = false;
}

void Eequipes::Form_Load()
{
    LegendesEequipes();
    placeForme();
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
    // The current competition may have been removed since.
    if (!numeros.contains(ZeroPad(partage().ConcoursCourant, largeurReference))) {
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
    // An exponent makes six characters more than a whole number holds.
    const qint64 cherche = EstNumerique(tape) ? qint64(std::clamp(Val(numero), 0., 1e9)) : 0;
    const Recordset concours =
        partage().BaseDonnees.OpenRecordset(u"SELECT * FROM [Concours] Where [concours] = %1"_qs.arg(cherche));
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

/// A team without its row of `evolution` is none that the competition knows.
bool Eequipes::montreConnu(Recordset &equipes)
{
    const qint64 numero = numeroEquipe();
    Recordset evolution = partage().BaseDonnees.OpenRecordset(u"Evolution", store::dbOpenTable);
    evolution.Index(u"PrimaryKey");
    evolution.Seek(u"=", {partage().ConcoursCourant, numero});
    if (evolution.NoMatch())
        return false;
    poseNumero(NumeroAffiche(numero));
    m_ui->Société->setText(equipes[u"societe"].texte());
    afficheMembres(equipes);
    numeroConnu(true);
    return true;
}
