#include "results/eresultats.h"

#include "donnees/rencontres.h"
#include "engine/partie.h"
#include "engine/routines_resultats.h"
#include "fenetres/formulaires.h"
#include "noms/formes.h"
#include "noms/ordre_resultats.h"
#include "noms/passation.h"
#include "partage/routines.h"
#include "results/etat_resultats.h"
#include "ui_eresultats.h"

#include <cmath>

using store::EstNumerique;
using store::Val;

// From a key to a stored result.

namespace {

const QString nomDuTitre = u"Torvik"_qs;

/// \p texte as the score that the file will hold, which is whole.
double scoreStocke(const QString &texte)
{
    return std::nearbyint(Val(texte));
}

void poseTexte(QLineEdit *champ, const QString &texte)
{
    if (champ->text() != texte)
        champ->setText(texte);
}

} // namespace

void EResultats::Equipe1_KeyDown(int KeyCode, int)
{
    if (!Touche::Avance(KeyCode))
        return;
    const qint64 equipe = store::Valeur(m_ui->Equipe1->text()).entier();
    if (equipe == 0) {
        m_ui->Equipe1->clear();
        return;
    }
    if (!appelleRencontre(equipe) && !chercheTableau2())
        MsgBox(mes(49), vbOKOnly, mes(4) + u" - "_qs + mes(1));
}

/// Brings up the match of a team that waits for its result, or else its latest; false when there is none.
bool EResultats::appelleRencontre(qint64 equipe)
{
    const qint64 concours = store::Valeur(m_ui->listconcours->currentText()).entier();
    const std::optional<donnees::Rencontre> rencontre =
        donnees::RencontreAppelee(partage().BaseDonnees, concours, equipe);
    if (!rencontre)
        return false;
    m_ui->Equipe1->setText(QString::number(rencontre->equipe1));
    m_ui->Equipe2->setText(QString::number(rencontre->equipe2));
    const bool tape = !rencontre->score1.estNull() && rencontre->scoreReel;
    m_ui->Score1->setText(tape ? rencontre->score1.texte() : QString());
    m_ui->Score2->setText(tape ? rencontre->score2.texte() : QString());
    SetFocus(m_ui->Score1);
    m_ui->Score1->selectAll();
    return true;
}

/// Looks for a match of bracket 2 in the current round, where a team can wait without an opponent.
bool EResultats::chercheTableau2()
{
    const std::optional<donnees::Rencontre> rencontre =
        donnees::RencontreDuTableau2(partage().BaseDonnees, m_ui->listconcours->currentText(), partage().TourCourant,
                                     m_ui->Equipe1->text(), m_ui->Equipe2->text());
    if (!rencontre)
        return false;
    m_ui->Equipe1->setText(QString::number(rencontre->equipe1));
    const bool exempt = rencontre->exempt();
    m_ui->Equipe2->setText(exempt ? mes(42) : QString::number(rencontre->equipe2));
    m_ui->Score1->setReadOnly(exempt);
    m_ui->Score2->setReadOnly(exempt);
    SetFocus(m_ui->Score1);
    return true;
}

void EResultats::Equipe1_MouseDown(int Button, int)
{
    if (Button != Bouton::Gauche)
        return;
    passation(formulaires()).ModeListeEquipes = 1;
    montreVue(formes::listeq);
}

/// A double click on a team makes it the winner: the score of a match won without points being told.
void EResultats::Equipe1_DblClick()
{
    m_ui->Score1->setText(QString::number(moteur::scoreGagnant));
    m_ui->Score2->setText(QString::number(moteur::scoreConcedeExempt));
    etatResultats(formulaires()).ScoreReel = false;
    DoEvents();
    Score2_KeyDown(Touche::Entree, Maj::Majuscule);
}

void EResultats::Equipe2_DblClick()
{
    m_ui->Score1->setText(QString::number(moteur::scoreConcedeExempt));
    m_ui->Score2->setText(QString::number(moteur::scoreGagnant));
    etatResultats(formulaires()).ScoreReel = false;
    DoEvents();
    Score1_KeyDown(Touche::Entree, Maj::Majuscule);
}

void EResultats::Score1_KeyDown(int KeyCode, int)
{
    DoEvents();
    saisieScore(Cote::Premier, KeyCode);
}

void EResultats::Score2_KeyDown(int KeyCode, int)
{
    saisieScore(Cote::Second, KeyCode);
}

void EResultats::saisieScore(Cote cote, int KeyCode)
{
    if (!Touche::Avance(KeyCode)) {
        etatResultats(formulaires()).ScoreReel = true;
        return;
    }
    TextesGardes gardes{m_ui->Score1->text(), m_ui->Score2->text()};
    traduitMots();
    validationScore(cote, gardes);
    poseTexte(m_ui->Score1, gardes.score1);
    poseTexte(m_ui->Score2, gardes.score2);
}

/// Puts the stored codes -1 to -3 in the place of the words that stand for them.
void EResultats::traduitMots()
{
    for (QLineEdit *score : {m_ui->Score1, m_ui->Score2}) {
        for (int code = 1; code <= 3; ++code) {
            const QString mot = mes(42 + code);
            if (!mot.isEmpty() && score->text().toUpper() == mot.toUpper()) {
                score->setText(QString::number(-code));
                break;
            }
        }
    }
}

/// Enter in a score field: a winner's score sends the operator to the other field, a loser's score completes the match
/// and stores it.
void EResultats::validationScore(Cote cote, TextesGardes &gardes)
{
    const bool premier = cote == Cote::Premier;
    QLineEdit *propre = premier ? m_ui->Score1 : m_ui->Score2;
    QLineEdit *autre = premier ? m_ui->Score2 : m_ui->Score1;
    const auto abandonne = [&](QString &efface) {
        efface.clear();
        if (!premier)
            rafraichitVues();
    };

    const bool numerique = EstNumerique(propre->text());
    if (numerique && scoreStocke(propre->text()) >= moteur::scoreGagnant) {
        abandonne(premier ? gardes.score2 : gardes.score1);
        SetFocus(autre);
        return;
    }
    if (numerique)
        autre->setText(QString::number(moteur::scoreGagnant));
    const bool partiePerdue = premier && propre->text() == u"P";
    if ((!numerique && !partiePerdue) || !EstNumerique(m_ui->Equipe1->text()) || !EstNumerique(m_ui->Equipe2->text())) {
        abandonne(premier ? gardes.score1 : gardes.score2);
        return;
    }
    gardes = {};
    const qint64 tour = partage().TourCourant;
    const ScoreSaisi saisi{m_ui->listconcours->currentText(),
                           m_ui->Equipe1->text(),
                           m_ui->Equipe2->text(),
                           m_ui->Score1->text(),
                           m_ui->Score2->text(),
                           etatResultats(formulaires()).ScoreReel};
    if (EnregistreScore(partage(), saisi)) {
        ordreDesResultats(formulaires())
            .note(qint32(store::Valeur(saisi.concours).entier()), int(tour), store::Valeur(saisi.equipe1).entier(),
                  store::Valeur(saisi.equipe2).entier());
        termineSaisie(cote, tour);
    }
    videRencontre();
    DoEvents();
    SetFocus(m_ui->Equipe1);
}

/// Shows what the stored result has changed. The first field counts what is missing over all rounds, the second one in
/// the round of the match.
void EResultats::termineSaisie(Cote cote, qint64 tour)
{
    DoEvents();
    const qint64 attendus = cote == Cote::Premier ? compteAttendus() : compteAttendus(int(tour));
    m_ui->Tour_P->clear();
    m_ui->Label2->setText(u"Tour N° %1"_qs.arg(partage().TourCourant));
    afficheEnCours(attendus);
    rafraichitVues();
}

void EResultats::rafraichitVues()
{
    update();
    for (const NomForme nom : {formes::valresu, formes::manqres}) {
        if (Formulaire *vue = formulaires().forme(nom); vue != nullptr && vue->isVisible())
            vue->Rafraichir();
    }
    etatResultats(formulaires()).AttendusAJour = true;
    etatResultats(formulaires()).JouesAJour = true;
}

void EResultats::Score1_GotFocus()
{
    refuseScoreSansRencontre(m_ui->Score1->text());
}

void EResultats::Score2_GotFocus()
{
    refuseScoreSansRencontre(m_ui->Score2->text());
}

/// A score waits for its teams to be called up; each of the two is looked at in turn.
void EResultats::refuseScoreSansRencontre(const QString &score)
{
    for (const QLineEdit *equipe : {m_ui->Equipe1, m_ui->Equipe2}) {
        if (!EstNumerique(score) || EstNumerique(equipe->text()))
            continue;
        MsgBox(u"Validez votre saisie avec la touche entrée"_qs, vbOKOnly, nomDuTitre);
        SetFocus(m_ui->Equipe1);
    }
}
