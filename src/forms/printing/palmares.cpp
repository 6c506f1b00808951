#include "printing/palmares.h"

#include "donnees/rencontres.h"
#include "fenetres/formulaires.h"
#include "fenetres/patience.h"
#include "grille/flexgrid.h"
#include "noms/formes.h"
#include "partage/routines.h"
#include "printing/imprime_detail.h"
#include "printing/imprime_palmares.h"
#include "printing/remplit_tour.h"
#include "printing/resusoc.h"
#include "socle/twips.h"
#include "ui_palmares.h"

#include <array>

namespace {

constexpr int debordChoix = 8; // pixels
constexpr int etroitesse = 90; // percent
constexpr int toursCharges = 14;
constexpr int toursReconstruits = 15; ///< By the right click on the list, which goes a round further than its loading.

// Twips
constexpr int hautGrille = 50;
constexpr int gaucheGrille = 300;
constexpr std::array largeursColonnes{800, 7000, 800};
constexpr int ascenseur = 300;
constexpr int autourGrille = 800;

/// Words with a capital and the rest small.
QString enCapitales(const QString &texte)
{
    QStringList mots = texte.toLower().split(u' ');
    for (QString &mot : mots)
        mot = mot.left(1).toUpper() + mot.mid(1);
    return mots.join(u' ');
}

QString feuille(const QString &texte, int largeur)
{
    return texte.leftJustified(largeur, u' ', true);
}

void effaceSelection(FlexGrid &grille)
{
    grille.setRow(0);
    grille.setCol(0);
}

/// Widest text of a column below its heading, reckoned by its letters: laying thousands of sentences out would be felt.
QString texteLePlusLarge(const FlexGrid &grille, int colonne)
{
    grille.ensurePolished();
    const QFontMetrics police = grille.fontMetrics();
    QHash<QChar, int> largeurs;
    QString lePlusLarge;
    int record = 0;
    for (int ligne = 1; ligne < grille.Rows(); ++ligne) {
        const QString texte = grille.TextMatrix(ligne, colonne);
        int largeur = 0;
        for (const QChar lettre : texte) {
            auto connue = largeurs.constFind(lettre);
            if (connue == largeurs.constEnd())
                connue = largeurs.insert(lettre, police.horizontalAdvance(lettre));
            largeur += *connue;
        }
        if (largeur > record) {
            record = largeur;
            lePlusLarge = texte;
        }
    }
    return lePlusLarge;
}

/// The texts of the two teams of a sentence; nothing when it tells of no match. They are parted at the first letters of
/// the word between them, wherever these stand.
std::optional<std::pair<QString, QString>> equipesDe(const QString &phrase)
{
    for (const QString &mot : {u"bat"_qs, u"vs"_qs}) {
        if (!phrase.contains(u' ' + mot + u' '))
            continue;
        const qsizetype place = phrase.indexOf(mot);
        return std::pair(phrase.left(place).trimmed(), phrase.mid(place + mot.size()).trimmed());
    }
    return std::nullopt;
}

} // namespace

palmares::palmares(const Contexte &contexte, QWidget *parent)
    : Formulaire(contexte, parent)
    , m_ui(std::make_unique<Ui::palmares>())
{
    m_ui->setupUi(this);
    prepareControles();
    // The choices stand in columns that are narrow for letters of a readable height.
    for (QWidget *choix : std::initializer_list<QWidget *>{m_ui->Option1, m_ui->detail, m_ui->typedit}) {
        QFont etroite = choix->font();
        etroite.setStretch(etroitesse);
        choix->setFont(etroite);
    }
    connect(m_ui->Thonneur_1, &FlexGrid::mousePresse, this,
            [this](Qt::MouseButton bouton, Qt::KeyboardModifiers touches) {
                execute([&] { Thonneur_MouseDown(1, CodeBouton(bouton), EtatMaj(touches)); });
            });
    surKeyDown(m_ui->Thonneur_1, [this](int touche, int) { Thonneur_KeyDown(1, touche); });
    surClick(m_ui->imprimer, [this] { imprimer_Click(); });
}

palmares::~palmares() = default;

std::vector<Infobulle> palmares::infobulles() const
{
    return {{m_ui->Thonneur_1, mes(147)}};
}

FlexGrid &palmares::Thonneur(int) const
{
    return *m_ui->Thonneur_1; // the only one of its array
}

void palmares::LegendesPalmares()
{
    FenetreDessus(*this, false);
    setWindowTitle(mes(33));
    m_ui->imprimer->setToolTip(mes(34));
    m_ui->titre_1->hide();
    m_ui->detail->show();
    m_ui->Option1->show();
    m_ui->detail_gagnant->hide();
    m_ui->detail_perdant->hide();
    m_ui->Option1->setChecked(true);
}

void palmares::Form_Load()
{
    LegendesPalmares();
    Move(Left(), Top(), 0, Height());
    charge();
}

/// The list from the first round on, without names.
void palmares::charge()
{
    FlexGrid &grille = Thonneur(1);
    grille.hide();
    grille.setRows(1);
    m_ui->aucune->hide();
    m_avecNoms = 0;
    PatienceTardive patience(contexte(), mes(130));
    // Also when a round cannot be read: what has been read so far stays on a form that can be seen.
    const auto mesure = qScopeGuard([&] {
        if (grille.isHidden())
            disAucuneRencontre();
        else
            elargit(grille);
    });
    for (int tour = 1; tour <= toursCharges && rencontres(tour) > 0; ++tour) {
        if (tour == 1) {
            effaceSelection(grille);
            grille.move(enPixels(gaucheGrille), enPixels(hautGrille));
            grille.setFormatString(u'<' + feuille(enCapitales(mes(98)), 15) + u"|<"_qs + feuille(mes(2), 20) + u"|<"_qs
                                   + feuille(mes(4), 10));
            prepareGrille(grille);
        }
        ajouteTour(grille, tour);
        patience.avance(grille.Rows() - 1);
    }
}

void palmares::Rafraichir()
{
    formulaires().Decharge(formes::Resusoc);
    execute([this] { charge(); });
}

/// Matches of a round; of bracket \p tableau alone where it is given.
qint64 palmares::rencontres(int tour, std::optional<int> tableau) const
{
    return donnees::CompteDuTour(partage().BaseDonnees, partage().ConcoursCourant, tour, tableau);
}

void palmares::prepareGrille(FlexGrid &grille) const
{
    for (int colonne = 0; colonne < int(largeursColonnes.size()); ++colonne)
        grille.setColWidth(colonne, largeursColonnes[std::size_t(colonne)]);
    grille.setRows(1);
    grille.setCols(int(largeursColonnes.size()));
}

void palmares::ajouteTour(FlexGrid &grille, int tour)
{
    grille.setRows(grille.Rows() + 1);
    grille.setRow(grille.Rows() - 1);
    grille.setCol(0);
    grille.setText(u"Tour "_qs + QString::number(tour));
    RemplitTour(partage(), grille, tour, avecNoms());
    grille.setRows(grille.Rows() - 1);
    effaceSelection(grille);
}

/// Columns have their usual widths unless a text would be cut; grid and form follow them as far as the screen goes.
void palmares::elargit(FlexGrid &grille)
{
    int voulue = ascenseur;
    for (int colonne = 0; colonne < grille.Cols(); ++colonne) {
        const int texte = std::max(grille.LargeurTexte(grille.TextMatrix(0, colonne).trimmed(), true),
                                   grille.LargeurTexte(texteLePlusLarge(grille, colonne)));
        if (texte > grille.ColWidth(colonne))
            grille.setColWidth(colonne, texte);
        voulue += grille.ColWidth(colonne);
    }
    const int largeur = std::min(voulue, Ecran::Width() - autourGrille);
    // The frame of the grid takes a few pixels of the last column: no reason to scroll sideways.
    grille.setHorizontalScrollBarPolicy(largeur < voulue ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    grille.resize(enPixels(largeur), grille.height());
    m_ui->titre_1->setGeometry(grille.x(), m_ui->titre_1->y(), grille.width(), m_ui->titre_1->height());
    fixeLargeur(largeur + autourGrille);
}

/// Gives the form \p interieure twips inside its frame; its middle stays where it is, and the form on the screen.
void palmares::fixeLargeur(int interieure)
{
    const int twips = interieure + Width() - enTwips(width());
    const int gauche = std::clamp(Left() + (Width() - twips) / 2, 0, std::max(Ecran::Width() - twips, 0));
    Move(gauche, Top(), twips, Height());
}

void palmares::disAucuneRencontre()
{
    fixeLargeur(enTwips(Thonneur(1).width()) + autourGrille);
    m_ui->aucune->setText(mes(106) + u"0 "_qs);
    m_ui->aucune->adjustSize();
    m_ui->aucune->move(width() / 2, height() / 2);
    m_ui->aucune->show();
}

/// The two rows of choices stand too close for a hurried hand: a press just above the upper row is one on it.
void palmares::Form_MouseDown(int bouton, int, int x, int y)
{
    const QPoint presse(enPixels(x), enPixels(y));
    for (QAbstractButton *choix : std::initializer_list<QAbstractButton *>{m_ui->Option1, m_ui->typedit}) {
        if (bouton == Bouton::Gauche && choix->geometry().adjusted(0, -debordChoix, 0, 0).contains(presse))
            choix->click();
    }
}

void palmares::Thonneur_MouseDown(int Index, int Button, int Shift)
{
    if (Shift == Maj::Controle && Thonneur(Index).RowSel() >= 1)
        montreFeuilles(Index);
    else if (Button == Bouton::Droit)
        reconstruit(Index);
    update();
}

void palmares::reconstruit(int Index)
{
    m_avecNoms ^= 1;
    FlexGrid &grille = Thonneur(Index);
    PatienceTardive patience(contexte(), mes(130));
    int tour = 1;
    for (; tour <= toursReconstruits && rencontres(tour, Index) > 0; ++tour) {
        if (tour == 1) {
            grille.setFormatString(QString());
            grille.move(grille.width() * (Index - 1) + enPixels(gaucheGrille), enPixels(hautGrille));
            prepareGrille(grille);
        }
        ajouteTour(grille, tour);
        patience.avance(grille.Rows() - 1);
    }
    if (tour > 1)
        elargit(grille);
}

/// Offers the sheets of the teams and clubs of the match that has been clicked.
void palmares::montreFeuilles(int Index)
{
    FlexGrid &grille = Thonneur(Index);
    grille.setRow(grille.RowSel());
    const auto equipes = equipesDe(grille.Text());
    if (!equipes)
        return;
    auto *feuilles = qobject_cast<Resusoc *>(formulaires().Charge(formes::Resusoc));
    if (feuilles == nullptr)
        return;
    feuilles->propose(Index, equipes->first, equipes->second);
    formulaires().Montre(formes::Resusoc);
}

void palmares::Thonneur_KeyDown(int Index, int KeyCode)
{
    if (KeyCode == Touche::Echap)
        effaceSelection(Thonneur(Index));
}

void palmares::imprimer_Click()
{
    FlexGrid &grille = Thonneur(1);
    if (grille.isVisible() && grille.RowSel() > 0) {
        if (imprimeZone(grille))
            effaceSelection(grille);
    } else {
        MsgBox(u"Vous devez sélectionner la zone à imprimer"_qs, vbExclamation);
    }
}

/// Prints the selected rows, whichever way they were selected; false when the operator has cancelled.
bool palmares::imprimeZone(const FlexGrid &grille) const
{
    const auto [premiere, derniere] = std::minmax({grille.Row(), grille.RowSel()});
    const ZonePalmares zone{grille, std::max(premiere, 1), derniere, m_ui->typedit->isChecked()};
    if (!m_ui->detail->isChecked())
        return ImprimePalmares(contexte(), zone);
    return ImprimeDetail(contexte(), zone, {m_ui->detail_gagnant->isChecked(), m_ui->detail_perdant->isChecked()});
}
