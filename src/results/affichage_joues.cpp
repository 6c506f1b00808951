#include "results/affichage_joues.h"

#include "app/routines.h"
#include "engine/rencontre.h"
#include "platform/formulaires.h"
#include "platform/garde_defilement.h"
#include "results/grille_resultats.h"
#include "results/valresu.h"

using store::Recordset;

namespace {

constexpr int largeurTitre = 8; // blanks behind a team's heading, as the column widths are told below
constexpr int largeurTour = 540; // twips
constexpr int largeurEquipe1 = 600;
constexpr int largeurEquipe2 = 650;

/// What one row of the grid shows.
struct LigneJouee
{
    QString textes[5];
    bool premiereGagne = false;
};

LigneJouee lit(const Partage &partage, const Recordset &rencontre)
{
    const qint64 equipe2 = rencontre[u"Equipe_2"].entierOu(0);
    const bool exempt = equipe2 == 0;
    const store::Valeur score1 = rencontre[u"score_1"];
    const store::Valeur score2 = rencontre[u"score_2"];
    LigneJouee ligne;
    ligne.premiereGagne = exempt || (!score2.estNull() && score1.reel() > score2.reel());
    ligne.textes[0] = rencontre[u"tour"].texte();
    ligne.textes[1] = rencontre[u"Equipe_1"].texte();
    ligne.textes[2] = exempt ? partage.mes(42) : QString::number(equipe2);
    if (exempt) {
        ligne.textes[3] = QString::number(moteur::scoreGagnant);
        ligne.textes[4] = QString::number(moteur::scoreConcedeExempt);
    } else if (rencontre[u"score_reel"].booleen()) {
        ligne.textes[3] = TexteScore(partage, score1);
        ligne.textes[4] = TexteScore(partage, score2);
    }
    return ligne;
}

void prepareGrille(FlexGrid &grille)
{
    const QString blancs(largeurTitre, u' ');
    grille.setRows(1);
    grille.setCols(5);
    grille.setFormatString(u"<Tour|Equ 1"_qs + blancs + u"|Equ 2"_qs + blancs + u"|    |    "_qs);
    grille.setColWidth(0, largeurTour);
    grille.setColWidth(1, largeurEquipe1);
    grille.setColWidth(2, largeurEquipe2);
    for (const int score : {3, 4})
        grille.setColWidth(score, grille.LargeurTexte(QString::number(moteur::scoreGagnant)));
}

} // namespace

void AfficheJoues(Partage &partage, const Formulaires &formulaires)
{
    auto *vue = qobject_cast<valresu *>(formulaires.forme(u"valresu"_qs));
    if (vue == nullptr || !vue->isVisible())
        return;
    vue->LegendesValresu();
    FlexGrid &grille = vue->grille();
    const GardeDefilement defilement(grille);
    prepareGrille(grille);
    grille::LargeursUtiles largeurs;
    Recordset scores = partage.BaseDonnees.OpenRecordset(
        u"select * from scores where tableau = 1 and (not isnull(score_1) or Equipe_2=0) and concours = "_qs
        + QString::number(grille::concoursAffiche(partage, formulaires)) + u" order by tour desc, Equipe_1"_qs);
    for (; !scores.Eof(); scores.MoveNext()) {
        const LigneJouee ligne = lit(partage, scores);
        grille.AddItem({});
        const int rang = grille.Rows() - 1;
        const int gagnante = ligne.premiereGagne ? 1 : 2;
        for (int colonne = 0; colonne < 5; ++colonne) {
            grille.setTextMatrix(rang, colonne, ligne.textes[colonne]);
            largeurs.note(colonne, ligne.textes[colonne], colonne == gagnante);
        }
        grille.setCellBackColor(rang, 1, ligne.premiereGagne ? grille::vert : grille::rouge);
        grille.setCellBackColor(rang, 2, ligne.premiereGagne ? grille::rouge : grille::vert);
        grille.setCellFontBold(rang, gagnante, true);
    }
    largeurs.applique(grille);
    vue->ajusteLargeur();
    grille.show();
}
