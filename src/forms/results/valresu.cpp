#include "results/valresu.h"

#include "fenetres/formulaires.h"
#include "noms/formes.h"
#include "results/affichage_joues.h"
#include "results/etat_resultats.h"
#include "results/grille_resultats.h"
#include "socle/twips.h"
#include "ui_valresu.h"

#include <QLineEdit>
#include <QScopeGuard>
#include <QScrollBar>

namespace {

constexpr int gaucheGrille = 10; // pixels
constexpr int largeurGrille = 155; // pixels, at least
constexpr int largeurLibre = 3200; // twips that the results form leaves on its right
constexpr int margeSaisie = 12; // pixels inside the results form that may be covered: its empty margin

} // namespace

valresu::valresu(const Contexte &contexte, QWidget *parent)
    : VueResultats(contexte, parent)
    , m_ui(std::make_unique<Ui::valresu>())
{
    m_ui->setupUi(this);
    m_ui->les_resultats->setTitresEntiers(true);
    prepareControles();
    m_ui->les_resultats->setSensCouleur(grille::vert, u"gagne"_qs);
    m_ui->les_resultats->setSensCouleur(grille::rouge, u"perd"_qs);
    for (const int equipe : {1, 2})
        m_ui->les_resultats->setTitreLu(equipe + 2, u"Score %1"_qs.arg(equipe));
    surPression(m_ui->les_resultats,
                [this](int bouton, int ligne, int colonne) { les_resultats_MouseDown(bouton, ligne, colonne); });
}

valresu::~valresu() = default;

std::vector<Infobulle> valresu::infobulles() const
{
    return {{m_ui->les_resultats, mes(145)}};
}

FlexGrid &valresu::grille() const
{
    return *m_ui->les_resultats;
}

void valresu::LegendesValresu()
{
    FenetreDessus(*this, false);
}

void valresu::Form_Load()
{
    ajusteLargeur();
}

void valresu::Form_Activate()
{
    if (!etatResultats(formulaires()).JouesAJour) {
        AfficheJoues(partage(), formulaires());
        etatResultats(formulaires()).JouesAJour = true;
    }
    placeForme();
}

void valresu::Rafraichir()
{
    AfficheJoues(partage(), formulaires());
    placeForme();
}

void valresu::ajusteLargeur()
{
    FlexGrid &grille = *m_ui->les_resultats;
    int colonnes = 0;
    for (int colonne = 0; colonne < grille.Cols(); ++colonne)
        colonnes += grille.LargeurAffichee(colonne);
    const int bords = 2 * grille.frameWidth() + grille.verticalScrollBar()->sizeHint().width();
    const int largeur = std::max(largeurGrille, colonnes + bords);
    const int libre = enPixels(largeurLibre) - formulaires().tailleCadre(*this).width();
    const int marge = std::clamp((libre - largeur) / 2, 0, gaucheGrille);
    grille.setGeometry(marge, marge, largeur, height() - 2 * marge);
    if (minimumWidth() != largeur + 2 * marge) {
        setFixedWidth(largeur + 2 * marge);
        perdPlace();
    }
}

/// To the right of the results form, which leaves room there, as high up as that form: above it the toolbox has its
/// place. To its left when words have made the columns too wide; the other views then keep their upper half in sight.
void valresu::placePres(const Formulaire &saisie)
{
    const QRect zone = formulaires().zoneLibre();
    // The size that was asked for: the desktop may still be carrying out an earlier one.
    const QSize cadre = formulaires().tailleCadre(*this);
    const int largeur = enTwips(minimumWidth() + cadre.width());
    const int droite = std::min(saisie.Left() + saisie.Width(), Ecran::Width() - largeur);
    const bool tient = droite >= saisie.Left() + saisie.Width() - enTwips(margeSaisie + cadre.width() / 2);
    const bool partage = !tient && formulaires().estVisible(formes::Groupes);
    const int haut = partage ? enTwips(zone.center().y()) : std::max(saisie.Top(), enTwips(zone.top()));
    Move(tient ? droite : gaucheLibre(saisie, saisie.Left() - largeur), haut);
    setFixedHeight(zone.bottom() + 1 - enPixels(haut) - cadre.height());
    m_ui->les_resultats->resize(m_ui->les_resultats->width(), height() - 2 * m_ui->les_resultats->y());
}

void valresu::les_resultats_MouseDown(int Button, int ligne, int colonne)
{
    if (Button == Bouton::Gauche && etatResultats(formulaires()).ClicGrille && ligne >= 1)
        recopie(ligne);
    if (Button == Bouton::Droit)
        trie(colonne);
}

/// Puts a match back into the entry form, ready for correction. A bye has nothing to correct.
void valresu::recopie(int ligne)
{
    const FlexGrid &grille = *m_ui->les_resultats;
    const QString equipe2 = grille.TextMatrix(ligne, 2);
    const Formulaire *saisie = formulaires().forme(formes::EResultats);
    if (saisie == nullptr || equipe2 == mes(42) || equipe2 == u"attente")
        return;
    recopieEquipe(*saisie->controle<QLineEdit>(u"Equipe2"_qs), ligne, 2);
    recopieEquipe(*saisie->controle<QLineEdit>(u"Equipe1"_qs), ligne, 1);
    auto *score1 = saisie->controle<QLineEdit>(u"Score1"_qs);
    score1->setText(grille.TextMatrix(ligne, 3));
    saisie->controle<QLineEdit>(u"Score2"_qs)->setText(grille.TextMatrix(ligne, 4));
    SetFocus(score1);
    score1->selectAll();
}

/// The field bears the colour of the team's cell as long as it shows that team.
void valresu::recopieEquipe(QLineEdit &equipe, int ligne, int colonne)
{
    const FlexGrid &grille = *m_ui->les_resultats;
    equipe.setText(grille.TextMatrix(ligne, colonne));
    const QColor fond = couleurEcran(grille.CellBackColor(ligne, colonne));
    equipe.setStyleSheet(u"background: %1; color: %2;"_qs.arg(fond.name(), encreSur(fond).name()));
    connect(
        &equipe, &QLineEdit::textChanged, &equipe, [&equipe] { equipe.setStyleSheet({}); }, Qt::SingleShotConnection);
}

/// Sorts by the column under the mouse and those behind it. The round alone is no order: left of the first team's right
/// edge, it is the first team that counts.
void valresu::trie(int colonne)
{
    etatResultats(formulaires()).ClicGrille = false;
    const auto fin = qScopeGuard([this] { etatResultats(formulaires()).ClicGrille = true; });
    FlexGrid &grille = *m_ui->les_resultats;
    grille.setCol(colonne < 0 ? grille.Cols() - 1 : std::max(colonne, 1));
    grille.setColSel(grille.Cols() - 1);
    grille.setSort(FlexGrid::GeneriqueCroissant);
}
