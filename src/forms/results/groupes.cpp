#include "results/groupes.h"

#include "fenetres/formulaires.h"
#include "results/grille_resultats.h"
#include "socle/twips.h"
#include "ui_groupes.h"

#include <QTabBar>
#include <QToolButton>

namespace {

constexpr int gaucheGrille = 10; // twips
constexpr int margeOnglets = 4; // pixels

} // namespace

Groupes::Groupes(const Contexte &contexte, QWidget *parent)
    : VueResultats(contexte, parent)
    , m_ui(std::make_unique<Ui::Groupes>())
    , m_grilles(1)
{
    m_ui->setupUi(this);
    m_grilles.front() = m_ui->les_resultats_0;
    prepareControles();
    // The arrow keys change the tab; its two scroll buttons are for the mouse.
    const auto defilement = m_ui->TabStrip1->findChildren<QToolButton *>();
    for (QToolButton *bouton : defilement)
        bouton->setFocusPolicy(Qt::NoFocus);
    setFixedSize(size());
    connect(m_ui->TabStrip1, &QTabBar::currentChanged, this, [this] { execute([this] { TabStrip1_Click(); }); });
    connect(m_ui->TabStrip1, &QTabBar::tabBarClicked, this, [this] { rendClavier(); });
}

Groupes::~Groupes() = default;

std::vector<Infobulle> Groupes::infobulles() const
{
    return {{m_ui->les_resultats_0, mes(146)}};
}

void Groupes::Form_Load()
{
    m_ui->TabStrip1->setGeometry(margeOnglets, margeOnglets, width() - 2 * margeOnglets, m_ui->TabStrip1->height());
    m_ui->les_resultats_0->move(enPixels(gaucheGrille), m_ui->TabStrip1->geometry().bottom() + margeOnglets);
    prepareGrille(*m_ui->les_resultats_0);
    m_ui->les_resultats_0->hide();
}

void Groupes::placePres(const Formulaire &saisie)
{
    Move(saisie.Left() - Width(), haut);
    const int cadre = enPixels(Height()) - height();
    const int hauteur = formulaires().zoneLibre().bottom() + 1 - enPixels(haut) - cadre;
    if (hauteur == height())
        return;
    setFixedHeight(hauteur);
    m_ui->Frame1->resize(size());
    for (FlexGrid *grille : m_grilles)
        placeGrille(*grille);
}

int Groupes::onglets() const
{
    return m_ui->TabStrip1->count();
}

void Groupes::placeGrille(FlexGrid &grille) const
{
    const int gauche = enPixels(gaucheGrille);
    const int marge = grille.y();
    grille.setGeometry(gauche, marge, width() - 2 * gauche, height() - 2 * marge);
}

void Groupes::prepareGrille(FlexGrid &grille) const
{
    placeGrille(grille);
    grille.setRows(1);
    grille.setFormatString(u">Clt| Equ.| J | G| P| Pp | Pc |  Ga "_qs);
    grille::serreClassement(grille, 3);
}

FlexGrid *Groupes::chargeGrille()
{
    const FlexGrid &modele = *m_grilles.front();
    auto *grille = new FlexGrid(this);
    grille->setObjectName(u"les_resultats_"_qs + QString::number(m_grilles.size()));
    grille->setToolTip(modele.toolTip());
    grille->setStyleSheet(modele.styleSheet());
    grille->setAccessibleName(modele.accessibleName());
    grille->setHorizontalScrollBarPolicy(modele.horizontalScrollBarPolicy());
    grille->setVerticalScrollBarPolicy(modele.verticalScrollBarPolicy());
    grille->move(modele.pos());
    grille->ensurePolished();
    prepareGrille(*grille);
    surPression(grille, [](int, int, int) {});
    return grille;
}

void Groupes::fixeOnglets(int nombre)
{
    QTabBar &barre = *m_ui->TabStrip1;
    const QSignalBlocker silence(barre);
    while (barre.count() > nombre)
        barre.removeTab(barre.count() - 1);
    while (barre.count() < nombre) {
        barre.addTab({});
        if (int(m_grilles.size()) <= barre.count())
            m_grilles.push_back(chargeGrille());
    }
}

void Groupes::legende(int onglet, const QString &texte)
{
    m_ui->TabStrip1->setTabText(onglet - 1, texte);
    // Outside French the tab shows no text; its tip still tells it from the others.
    const QString victoires = mes(167) + QString::number(onglet - 1);
    m_ui->TabStrip1->setTabToolTip(onglet - 1, victoires);
    m_ui->TabStrip1->setAccessibleTabName(onglet - 1, texte.isEmpty() ? victoires : texte);
}

void Groupes::choisit(int onglet)
{
    const QSignalBlocker silence(m_ui->TabStrip1);
    m_ui->TabStrip1->setCurrentIndex(onglet - 1);
    TabStrip1_Click();
}

void Groupes::TabStrip1_Click()
{
    const int choisi = m_ui->TabStrip1->currentIndex() + 1;
    for (int i = 0; i < int(m_grilles.size()); ++i)
        m_grilles[std::size_t(i)]->setVisible(i == choisi && choisi > 0);
}
