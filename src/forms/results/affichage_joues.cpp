#include "results/affichage_joues.h"

#include "donnees/rencontres.h"
#include "engine/partie.h"
#include "fenetres/formulaires.h"
#include "fenetres/garde_defilement.h"
#include "noms/formes.h"
#include "partage/routines.h"
#include "results/grille_resultats.h"
#include "results/valresu.h"

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

LigneJouee redige(const Partage &partage, const donnees::Rencontre &rencontre)
{
    const store::Valeur &score1 = rencontre.score1;
    const store::Valeur &score2 = rencontre.score2;
    LigneJouee ligne;
    ligne.premiereGagne = rencontre.premiereGagne();
    ligne.textes[0] = QString::number(rencontre.tour);
    ligne.textes[1] = QString::number(rencontre.equipe1);
    ligne.textes[2] = rencontre.exempt() ? partage.mes(42) : QString::number(rencontre.equipe2);
    if (rencontre.exempt()) {
        ligne.textes[3] = QString::number(moteur::scoreGagnant);
        ligne.textes[4] = QString::number(moteur::scoreConcedeExempt);
    } else if (rencontre.scoreReel) {
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
    auto *vue = qobject_cast<valresu *>(formulaires.forme(formes::valresu));
    if (vue == nullptr || !vue->isVisible())
        return;
    vue->LegendesValresu();
    FlexGrid &grille = vue->grille();
    const GardeDefilement defilement(grille);
    prepareGrille(grille);
    grille::LargeursUtiles largeurs;
    const qint64 concours = grille::concoursAffiche(partage, formulaires);
    for (const donnees::Rencontre &rencontre : donnees::RencontresJouees(partage.BaseDonnees, concours)) {
        const LigneJouee ligne = redige(partage, rencontre);
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
