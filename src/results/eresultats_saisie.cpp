#include "results/eresultats.h"

#include "app/routines.h"
#include "engine/rencontre.h"
#include "engine/routines_resultats.h"
#include "platform/formulaires.h"
#include "ui_eresultats.h"

using store::EstNumerique;
using store::Recordset;
using store::Val;

// From a key to a stored result.

namespace {

const QString nomDuTitre = u"Torvik"_qs;

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
    const QString deLEquipe = u"select * from scores where concours=%1 and (equipe_1=%2 or equipe_2=%2)"_qs
                                  .arg(store::Valeur(m_ui->listconcours->currentText()).entier())
                                  .arg(equipe);
    if (appelleRencontre(deLEquipe + u" and ((equipe_2<>0) and isnull(score_1) and isnull(score_2))"_qs)
        || appelleRencontre(deLEquipe + u"  order by tableau desc, tour desc"_qs) || chercheTableau2())
        return;
    MsgBox(mes(49), vbOKOnly, mes(4) + u" - "_qs + mes(1));
}

/// Brings up the first match of \p sql in its stored order; false when there is none.
bool EResultats::appelleRencontre(const QString &sql)
{
    const Recordset rencontre = partage().BaseDonnees.OpenRecordset(sql, store::dbOpenSnapshot);
    if (rencontre.Eof())
        return false;
    m_ui->Equipe1->setText(rencontre[u"equipe_1"].texte());
    m_ui->Equipe2->setText(rencontre[u"equipe_2"].texte());
    const bool tape = !rencontre[u"score_1"].estNull() && rencontre[u"score_reel"].booleen();
    m_ui->Score1->setText(tape ? rencontre[u"score_1"].texte() : QString());
    m_ui->Score2->setText(tape ? rencontre[u"score_2"].texte() : QString());
    SetFocus(m_ui->Score1);
    m_ui->Score1->selectAll();
    return true;
}

/// Looks for a match of bracket 2 in the current round, where a team can wait without an opponent.
bool EResultats::chercheTableau2()
{
    constexpr int tableau = 2;
    Recordset scores = partage().BaseDonnees.OpenRecordset(u"scores", store::dbOpenTable);
    const QString concours = m_ui->listconcours->currentText();
    scores.Index(u"Equipes");
    scores.Seek(u"=", {concours, tableau, partage().TourCourant, m_ui->Equipe1->text(), m_ui->Equipe2->text()});
    if (scores.NoMatch()) {
        scores.Index(u"EquipeKey2");
        scores.Seek(u"=", {concours, tableau, partage().TourCourant, m_ui->Equipe1->text()});
    }
    if (scores.NoMatch())
        return false;
    m_ui->Equipe1->setText(scores[u"equipe_1"].texte());
    const bool exempt = scores[u"equipe_2"].entier() == 0;
    m_ui->Equipe2->setText(exempt ? mes(42) : scores[u"equipe_2"].texte());
    m_ui->Score1->setReadOnly(exempt);
    m_ui->Score2->setReadOnly(exempt);
    SetFocus(m_ui->Score1);
    return true;
}

void EResultats::Equipe1_MouseDown(int Button, int)
{
    if (Button != Bouton::Gauche)
        return;
    partage().ModeListeEquipes = 1;
    montreVue(u"listeq"_qs);
}

/// A double click on a team makes it the winner: the score of a match won without points being told.
void EResultats::Equipe1_DblClick()
{
    m_ui->Score1->setText(QString::number(moteur::scoreGagnant));
    m_ui->Score2->setText(QString::number(moteur::scoreConcedeExempt));
    partage().ScoreReel = false;
    DoEvents();
    Score2_KeyDown(Touche::Entree, Maj::Majuscule);
}

void EResultats::Equipe2_DblClick()
{
    m_ui->Score1->setText(QString::number(moteur::scoreConcedeExempt));
    m_ui->Score2->setText(QString::number(moteur::scoreGagnant));
    partage().ScoreReel = false;
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
        partage().ScoreReel = true;
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
    if (numerique && Val(propre->text()) >= moteur::scoreGagnant) {
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
    if (EnregistreScore(partage(), {m_ui->listconcours->currentText(), m_ui->Equipe1->text(), m_ui->Equipe2->text(),
                                    m_ui->Score1->text(), m_ui->Score2->text()}))
        termineSaisie(cote, tour);
    videRencontre();
    DoEvents();
    SetFocus(m_ui->Equipe1);
}

/// Shows what the stored result has changed. The first field counts what is missing over all rounds, the second one in
/// the round of the match.
void EResultats::termineSaisie(Cote cote, qint64 tour)
{
    DoEvents();
    const qint64 attendus =
        cote == Cote::Premier ? compteAttendus() : compteAttendus(u" and tour = "_qs + QString::number(tour));
    m_ui->Tour_P->clear();
    m_ui->Label2->setText(u"Tour N° %1"_qs.arg(partage().TourCourant));
    afficheEnCours(attendus);
    rafraichitVues();
}

void EResultats::rafraichitVues()
{
    update();
    for (const QString &nom : {u"valresu"_qs, u"manqres"_qs}) {
        if (Formulaire *vue = formulaires().forme(nom); vue != nullptr && vue->isVisible())
            vue->Rafraichir();
    }
    partage().AttendusAJour = true;
    partage().JouesAJour = true;
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
