#include "results/eresultats.h"

#include "app/concours_courant.h"
#include "app/routines.h"
#include "engine/routines_resultats.h"
#include "engine/routines_tirage.h"
#include "platform/formulaires.h"
#include "platform/sablier.h"
#include "platform/twips.h"
#include "ui_eresultats.h"

#include <stdexcept>

using store::EstNumerique;
using store::Recordset;

namespace {

constexpr int largeurNumero = 6;
constexpr int margeDroite = 3200; // twips left free on the right of the form
constexpr int largeurEquipe1 = 22; // characters of the first heading
constexpr int signeDeVieMs = 40;

} // namespace

EResultats::EResultats(const Contexte &contexte, QWidget *parent)
    : Formulaire(contexte, parent)
    , m_ui(std::make_unique<Ui::EResultats>())
{
    m_ui->setupUi(this);
    prepareControles();
    relie();
}

EResultats::~EResultats() = default;

void EResultats::relie()
{
    const auto touche = [this](QWidget *controle, void (EResultats::*traitement)(int, int)) {
        surKeyDown(controle, [this, traitement](int code, int maj) { (this->*traitement)(code, maj); });
    };
    touche(m_ui->listconcours, &EResultats::listconcours_KeyDown);
    touche(m_ui->Equipe1, &EResultats::Equipe1_KeyDown);
    touche(m_ui->Score1, &EResultats::Score1_KeyDown);
    touche(m_ui->Score2, &EResultats::Score2_KeyDown);
    surChoix(m_ui->listconcours, [this] { listconcours_KeyDown(Touche::Entree, 0); });
    surGotFocus(m_ui->Score1, [this] { Score1_GotFocus(); });
    surGotFocus(m_ui->Score2, [this] { Score2_GotFocus(); });
    surMouseDown(m_ui->Equipe1, [this](int bouton, int maj) { Equipe1_MouseDown(bouton, maj); });
    surMouseDown(m_ui->Equipe2, [this](int bouton, int maj) { Equipe1_MouseDown(bouton, maj); });
    surDblClick(m_ui->Equipe1, [this] { Equipe1_DblClick(); });
    surDblClick(m_ui->Equipe2, [this] { Equipe2_DblClick(); });
    surClick(m_ui->imprimer, [this] { imprimer_Click(); });
    surClick(m_ui->hit, [this] { hit_Click(); });
    // A click on these leaves the focus in the field that is being typed in.
    for (QPushButton *vue : {m_ui->manquants, m_ui->VALIDATION, m_ui->imprimer, m_ui->hit})
        vue->setFocusPolicy(Qt::TabFocus);
    surClick(m_ui->manquants, [this] { manquants_Click(); });
    surClick(m_ui->VALIDATION, [this] { VALIDATION_Click(); });
    surClick(m_ui->tirage_suivant, [this] { tirage_suivant_Click(); });
}

void EResultats::LegendesResultats()
{
    const QString &equipe1 = mes(24);
    if (equipe1.size() > largeurEquipe1)
        throw std::length_error("Le message 24 a plus de 22 signes.");
    FenetreDessus(*this, false);
    partage().SelectionEnCours = false;
    setWindowTitle(mes(23));
    m_ui->Label1->setText(mes(1));
    m_ui->Label4->setText(equipe1 + QString(largeurEquipe1 - equipe1.size(), u' ') + u'-' + mes(25));
    m_ui->Equipe1->setAccessibleName(mes(24));
    m_ui->Equipe2->setAccessibleName(mes(25));
    m_ui->Score1->setAccessibleName(mes(24) + u',' + mes(108));
    m_ui->Score2->setAccessibleName(mes(25) + u',' + mes(108));
    m_ui->manquants->setToolTip(mes(26));
    m_ui->VALIDATION->setToolTip(mes(27));
    m_ui->hit->setToolTip(mes(33));
}

void EResultats::Form_Load()
{
    LegendesResultats();
    Recordset concours = partage().BaseDonnees.OpenRecordset(u"concours", store::dbOpenTable);
    if (concours.RecordCount() == 0) {
        hide();
        formulaires().Montre(u"Econcours"_qs);
        formulaires().Decharge(Name());
        return;
    }
    m_ui->listconcours->clear();
    if (partage().ConcoursCourant == 0)
        partage().ConcoursCourant =
            qint32(ValeurUnique(partage(), u"SELECT max(concours)as maxc from [concours]"_qs).entier());
    // A competition just created is not in the texts of the sheets yet.
    ChargeConcours(partage(), partage().ConcoursCourant);
    for (; !concours.Eof(); concours.MoveNext())
        m_ui->listconcours->addItem(ZeroPad(concours[u"concours"].entier(), largeurNumero));
    afficheConcours(partage().ConcoursCourant);
    poseTexte(m_ui->listconcours, ZeroPad(partage().ConcoursCourant, largeurNumero));
    afficheEtat(Moment::Chargement);
    videRencontre();
    placeForme();
    m_ui->Equipe1->setFocus();
}

void EResultats::placeForme()
{
    Move(Ecran::Width() - margeDroite - Width(), (Ecran::Height() - Height()) / 2);
}

void EResultats::Form_GotFocus()
{
    formulaires().Cache(u"valresu"_qs);
    formulaires().Cache(u"I_tirage"_qs);
}

void EResultats::Form_Unload()
{
    formulaires().Decharge({u"manqres"_qs, u"valresu"_qs, u"I_tirage"_qs});
}

/// Shows what the competition \p numero is, and takes over its round and options; false when there is none.
bool EResultats::afficheConcours(qint64 numero)
{
    Recordset concours = partage().BaseDonnees.OpenRecordset(u"concours", store::dbOpenTable);
    concours.Index(u"primarykey");
    concours.Seek(u"=", {numero});
    if (concours.NoMatch())
        return false;
    const QString type = concours[u"type"].texte();
    m_ui->datet->setText(FormateDate(partage(), concours[u"date"]));
    m_ui->lieut->setText(concours[u"Lieu"].texte());
    m_ui->typet->setText(type.mid(3).trimmed());
    m_ui->categorie->setText(concours[u"categorie"].texte());
    partage().TourCourant = qint16(concours[u"tourpri"].entierOu(0));
    partage().AvecRepechage = concours[u"repeche"].booleen();
    partage().NbJoueurs = JoueursDuType(type, partage().NbJoueurs);
    return true;
}

void EResultats::listconcours_KeyDown(int KeyCode, int)
{
    if (!Touche::Avance(KeyCode))
        return;
    formulaires().Cache(u"manqres"_qs);
    formulaires().Cache(u"valresu"_qs);
    const QString texte = m_ui->listconcours->currentText();
    if (!EstNumerique(texte)) {
        m_ui->listconcours->clearEditText();
        return;
    }
    const qint64 numero = store::Valeur(texte).entier();
    if (!afficheConcours(numero)) {
        refuseConcours();
        return;
    }
    partage().ConcoursCourant = qint32(numero);
    ChargeConcours(partage(), partage().ConcoursCourant);
    verrouille(false);
    poseTexte(m_ui->listconcours, ZeroPad(numero, largeurNumero));
    afficheEtat(Moment::ChangementConcours);
}

void EResultats::refuseConcours()
{
    MsgBox(mes(91));
    show();
    verrouille(true);
    m_ui->listconcours->clearEditText();
    m_ui->datet->clear();
    m_ui->lieut->clear();
    m_ui->typet->clear();
    videRencontre();
}

void EResultats::verrouille(bool verrouillees)
{
    QLineEdit *const champs[] = {m_ui->Equipe1, m_ui->Equipe2, m_ui->Score1, m_ui->Score2};
    for (QLineEdit *champ : champs)
        champ->setReadOnly(verrouillees);
}

void EResultats::videRencontre()
{
    QLineEdit *const champs[] = {m_ui->Equipe1, m_ui->Equipe2, m_ui->Score1, m_ui->Score2};
    for (QLineEdit *champ : champs)
        champ->clear();
}

void EResultats::imprimer_Click()
{
    const QString nom = u"I_tirage"_qs;
    if (Formulaire *dialogue = formulaires().Charge(nom)) {
        dialogue->Move(Left() + Width() - dialogue->Width(), Top() + Height() - dialogue->Height());
        formulaires().Montre(nom);
    }
}

void EResultats::hit_Click()
{
    formulaires().Montre(u"palmares"_qs);
}

void EResultats::manquants_Click()
{
    partage().AttendusAJour = false;
    montreVue(u"manqres"_qs);
}

void EResultats::VALIDATION_Click()
{
    partage().JouesAJour = false;
    montreVue(u"valresu"_qs);
}

/// A view comes up beside the form and the operator types on: the keyboard stays here, in the field that has it.
void EResultats::montreVue(const QString &nom)
{
    formulaires().MontreSansFocus(nom);
    if (Formulaire *vue = formulaires().forme(nom))
        vue->Form_Activate();
    QWidget *champ = focusWidget();
    SetFocus(qobject_cast<QLineEdit *>(champ) != nullptr ? champ : m_ui->Equipe1);
}

void EResultats::tirage_suivant_Click()
{
    if (m_tirageEnCours)
        return;
    m_tirageEnCours = true;
    const auto fin = qScopeGuard([this] { m_tirageEnCours = false; });
    const Sablier sablier;
    formulaires().Decharge(u"Groupes"_qs);
    m_signes = m_ui->tour_P1->text();
    if (!LanceTourSuivant(partage(), *this)) {
        afficheEtat(Moment::ChangementConcours);
        return;
    }
    m_ui->tirage_suivant->hide();
    m_ui->Label2->setText(u"Tour N° %1"_qs.arg(partage().TourCourant));
    const qint64 attendus =
        ValeurUnique(partage(), u"select count(equipe_2) from scores where concours=%1 and tour=%2 and equipe_2>0"_qs
                                    .arg(partage().ConcoursCourant)
                                    .arg(partage().TourCourant))
            .entier();
    m_ui->tour_P1->setText(u" manque "_qs + LibellePluriel(partage(), double(attendus), u" Résultat"_qs));
    for (const QString &vue : {u"manqres"_qs, u"valresu"_qs, u"Groupes"_qs})
        formulaires().Cache(vue);
    SetFocus(m_ui->Equipe1);
}

bool EResultats::demande(const QString &question)
{
    return MsgBox(question, vbYesNo | vbExclamation) == ReponseBoite::Oui;
}

void EResultats::informe(const QString &texte)
{
    MsgBox(texte);
}

void EResultats::avertit(const QString &texte)
{
    MsgBox(texte, vbExclamation);
}

void EResultats::annonce(const QString &texte)
{
    m_signes = texte;
    m_ui->tour_P1->setText(texte);
    m_dernierSigne.start();
    DoEvents();
}

/// The draw tells a sign for every pair; the screen follows often enough to show that the program is at work.
void EResultats::progresse(QStringView signe)
{
    m_signes += signe;
    if (m_dernierSigne.isValid() && m_dernierSigne.elapsed() < signeDeVieMs)
        return;
    m_dernierSigne.start();
    m_ui->tour_P1->setText(m_signes);
    DoEvents();
}

/// Cancelling is hidden: a right press on the bare form, to the right of the draw button and at its height, with Ctrl
/// for the round and with Shift and Ctrl for the whole draw.
void EResultats::Form_MouseDown(int bouton, int maj, int x, int y)
{
    const QRect zone = m_ui->tirage_suivant->geometry();
    const int pixelX = enPixels(x);
    const int pixelY = enPixels(y);
    const bool dansLaZone = pixelY >= zone.top() && pixelY <= zone.top() + zone.height()
        && pixelX >= zone.left() + zone.width();
    if (bouton != Bouton::Droit || !dansLaZone)
        return;
    if (maj == Maj::Majuscule + Maj::Controle)
        annuleTirage();
    else if (maj == Maj::Controle)
        annuleTour();
}

void EResultats::annuleTirage()
{
    formulaires().Decharge({u"Groupes"_qs, u"manqres"_qs});
    GardeUneCopie(contexte());
    AnnuleTirage(partage());
    m_ui->tour_P1->clear();
    m_ui->tirage_suivant->setText(u"Tirage annulé Relancer"_qs);
    m_ui->tirage_suivant->show();
}

void EResultats::annuleTour()
{
    GardeUneCopie(contexte());
    AnnuleTour(partage());
    m_ui->tour_P1->setText(u"annulé"_qs);
    m_ui->tirage_suivant->setText(u"Tour %1 annulé Relancer"_qs.arg(partage().TourCourant + 1));
    m_ui->tirage_suivant->show();
}
