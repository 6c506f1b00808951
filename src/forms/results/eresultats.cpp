#include "results/eresultats.h"

#include "donnees/rencontres.h"
#include "engine/routines_resultats.h"
#include "fenetres/copie_prealable.h"
#include "fenetres/formulaires.h"
#include "fenetres/sablier.h"
#include "noms/apres_tirage.h"
#include "noms/formes.h"
#include "noms/passation.h"
#include "partage/concours_courant.h"
#include "partage/routines.h"
#include "results/etat_resultats.h"
#include "socle/twips.h"
#include "ui_eresultats.h"

#include <stdexcept>

using store::EstNumerique;

namespace {

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

std::vector<Infobulle> EResultats::infobulles() const
{
    const QString score = mes(141) + mes(43) + u", "_qs + mes(44) + u", "_qs + mes(45);
    return {{m_ui->listconcours, mes(135)}, {m_ui->Equipe1, mes(140)}, {m_ui->Equipe2, mes(140)},
            {m_ui->Score1, score},          {m_ui->Score2, score},     {m_ui->imprimer, mes(142)}};
}

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
    surLostFocus(m_ui->listconcours, [this] { listconcours_LostFocus(); });
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
    passation(formulaires()).SelectionEnCours = false;
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
    const QStringList numeros = RetrouveConcours(partage());
    if (numeros.isEmpty()) {
        hide();
        formulaires().Montre(formes::Econcours);
        formulaires().Decharge(formes::EResultats);
        return;
    }
    m_ui->listconcours->clear();
    m_ui->listconcours->addItems(numeros);
    afficheConcours(partage().ConcoursCourant);
    prendConcours(partage().ConcoursCourant);
    afficheEtat(Moment::Chargement);
    videRencontre();
    placeForme();
    m_ui->Equipe1->setFocus();
}

void EResultats::placeForme()
{
    place([this] { Move(Ecran::Width() - margeDroite - Width(), (Ecran::Height() - Height()) / 2); });
}

void EResultats::Form_GotFocus()
{
    formulaires().Cache(formes::valresu);
    formulaires().Cache(formes::I_tirage);
}

void EResultats::Form_Unload()
{
    formulaires().Decharge({formes::manqres, formes::valresu, formes::I_tirage});
}

/// Shows what the competition \p numero is; false when there is none.
bool EResultats::afficheConcours(qint64 numero)
{
    const std::optional<donnees::Concours> concours = donnees::TrouveConcours(partage().BaseDonnees, numero);
    if (!concours)
        return false;
    m_ui->datet->setText(FormateDate(partage(), concours->date));
    m_ui->lieut->setText(concours->lieu);
    m_ui->typet->setText(concours->type.mid(3).trimmed());
    m_ui->categorie->setText(concours->categorie);
    return true;
}

/// The competition \p numero becomes the current one, at the round that it has got to. Date, place
/// and category, which the sheets print, are loaded with it: those of one just created are not there yet.
void EResultats::prendConcours(qint32 numero)
{
    partage().ConcoursCourant = numero;
    ChargeConcours(partage(), partage().ConcoursCourant);
    ReprendTour(partage());
    poseTexte(m_ui->listconcours, NumeroConcours(numero));
}

void EResultats::listconcours_KeyDown(int KeyCode, int)
{
    if (!Touche::Avance(KeyCode))
        return;
    formulaires().Cache(formes::manqres);
    formulaires().Cache(formes::valresu);
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
    prendConcours(qint32(numero));
    verrouille(false);
    afficheEtat(Moment::ChangementConcours);
    rafraichitPalmares();
}

/// Results go into the competition that the list shows: a number that was typed and not validated does not stay there.
void EResultats::listconcours_LostFocus()
{
    const bool verrouillee = m_ui->Equipe1->isReadOnly();
    poseTexte(m_ui->listconcours, verrouillee ? QString() : NumeroConcours(partage().ConcoursCourant));
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
    const NomForme nom = formes::I_tirage;
    if (Formulaire *dialogue = formulaires().Charge(nom)) {
        dialogue->Move(Left() + Width() - dialogue->Width(), Top() + Height() - dialogue->Height());
        formulaires().Montre(nom);
    }
}

void EResultats::hit_Click()
{
    rafraichitPalmares();
    formulaires().Montre(formes::palmares);
}

/// An honours list that is open shows the current competition as it stands now.
void EResultats::rafraichitPalmares()
{
    if (Formulaire *liste = formulaires().forme(formes::palmares))
        liste->Rafraichir();
}

void EResultats::manquants_Click()
{
    etatResultats(formulaires()).AttendusAJour = false;
    montreVue(formes::manqres);
}

void EResultats::VALIDATION_Click()
{
    etatResultats(formulaires()).JouesAJour = false;
    montreVue(formes::valresu);
}

/// A view comes up beside the form and the operator types on: the keyboard stays here, in the field that has it.
void EResultats::montreVue(NomForme nom)
{
    listconcours_LostFocus();
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
    formulaires().Decharge(formes::Groupes);
    m_signes = m_ui->tour_P1->text();
    const BilanLancement bilan =
        LanceTourSuivant(partage(), {[this] { montreEssai(); }, [this](QStringView signe) { montreSigne(signe); }});
    if (bilan.obstacle != ObstacleAuTirage::Aucun && !recommenceTirage(bilan.obstacle)) {
        afficheEtat(Moment::ChangementConcours);
        return;
    }
    avertitSelonStatut(bilan.statut);
    m_ui->tirage_suivant->hide();
    m_ui->Label2->setText(u"Tour N° %1"_qs.arg(partage().TourCourant));
    const qint64 attendus =
        donnees::CompteOpposees(partage().BaseDonnees, partage().ConcoursCourant, partage().TourCourant);
    m_ui->tour_P1->setText(u" manque "_qs + LibellePluriel(partage(), double(attendus), u" Résultat"_qs));
    for (const NomForme vue : {formes::manqres, formes::valresu, formes::Groupes})
        formulaires().Cache(vue);
    SetFocus(m_ui->Equipe1);
    if (const auto &traite = apresTirage(formulaires()).traite)
        traite();
}

/// Tells the operator why round 1 has not been drawn, and draws it anew where he wants so. False when the old draw
/// stays for want of a safety copy.
bool EResultats::recommenceTirage(ObstacleAuTirage obstacle)
{
    if (obstacle == ObstacleAuTirage::ResultatsTombes) {
        MsgBox(u"Tirage Impossible, Il y a déjà des résultats de tombés"_qs);
        return true;
    }
    if (obstacle == ObstacleAuTirage::DejaTire) {
        MsgBox(mes(114) + u' ' + mes(15) + u' ' + mes(115));
        PasseAuTour1(partage());
        return true;
    }
    if (MsgBox(u"ATTENTION, le tirage a déjà été fait. Voulez vous recommencer?"_qs, vbYesNo | vbExclamation)
        != ReponseBoite::Oui)
        return true;
    if (!GardeUneCopie(contexte(), RaisonCopie::Tirage))
        return false;
    RefaitTirage(partage());
    return true;
}

void EResultats::avertitSelonStatut(moteur::StatutTirage statut)
{
    if (statut == moteur::StatutTirage::MemeClub)
        MsgBox(u"Attention il y a une rencontre opposant deux équipes d'un même club"_qs, vbExclamation);
    else if (statut == moteur::StatutTirage::DejaRencontrees)
        MsgBox(u"Attention deux équipes se sont déjà rencontrées"_qs, vbExclamation);
}

void EResultats::montreEssai()
{
    m_signes = u"Tirage en cours"_qs;
    m_ui->tour_P1->setText(m_signes);
    m_dernierSigne.start();
    DoEvents();
}

/// The draw tells a sign for every pair; the screen follows often enough to show that the program is at work.
void EResultats::montreSigne(QStringView signe)
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
    const bool dansLaZone =
        pixelY >= zone.top() && pixelY <= zone.top() + zone.height() && pixelX >= zone.left() + zone.width();
    if (bouton != Bouton::Droit || !dansLaZone)
        return;
    if (maj == Maj::Majuscule + Maj::Controle)
        annuleTirage();
    else if (maj == Maj::Controle)
        annuleTour();
}

/// Each view is filled anew when it is next shown.
void EResultats::perimeVues()
{
    EtatResultats &etat = etatResultats(formulaires());
    etat.AttendusAJour = etat.JouesAJour = false;
}

void EResultats::annuleTirage()
{
    if (!GardeUneCopie(contexte(), RaisonCopie::Annulation))
        return;
    formulaires().Decharge({formes::Groupes, formes::manqres});
    AnnuleTirage(partage());
    perimeVues();
    m_ui->tour_P1->clear();
    m_ui->tirage_suivant->setText(u"Tirage annulé Relancer"_qs);
    m_ui->tirage_suivant->show();
}

void EResultats::annuleTour()
{
    if (!GardeUneCopie(contexte(), RaisonCopie::Annulation))
        return;
    AnnuleTour(partage());
    perimeVues();
    m_ui->tour_P1->setText(u"annulé"_qs);
    m_ui->tirage_suivant->setText(u"Tour %1 annulé Relancer"_qs.arg(partage().TourCourant + 1));
    m_ui->tirage_suivant->show();
}
