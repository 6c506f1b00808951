#include "outils/affichage_public.h"

#include "outils/projection.h"
#include "ui_affichage_public.h"

#include <QScreen>
#include <QShortcut>
#include <QSignalBlocker>

/// As the operator knows his screens: by their place in the row, and by their size.
QString AffichagePublic::nomEcran(const QString &nom)
{
    const QList<QScreen *> ecrans = QGuiApplication::screens();
    const auto trouve = std::ranges::find(ecrans, nom, &QScreen::name);
    if (trouve == ecrans.end())
        return nom;
    const QSize taille = (*trouve)->size() * (*trouve)->devicePixelRatio();
    return tr("Ecran %1").arg(trouve - ecrans.begin() + 1) + u' ' + nom
        + u" (%1 x %2)"_qs.arg(taille.width()).arg(taille.height());
}

AffichagePublic::AffichagePublic(const Contexte &contexte, QWidget *parent)
    : FormeOutil(contexte, parent)
    , m_ui(std::make_unique<Ui::AffichagePublic>())
    , m_projection(projection(contexte, *parent))
{
    m_ui->setupUi(this);
    prepareControles();
    for (QCheckBox *page : pages())
        surClick(page, [this] { regle(); });
    surClick(m_ui->Sombre, [this] { regle(); });
    surClick(m_ui->Plein_ecran, [this] { regle(); });
    surChoix(m_ui->Ecran, [this] { regle(); });
    connect(m_ui->Secondes, &QSpinBox::valueChanged, this, [this] { execute([this] { regle(); }); });
    surClick(m_ui->Afficher, [this] { Afficher_Click(); });
    surClick(m_ui->Pause, [this] { m_projection.pause(m_ui->Pause->isChecked()); });
    surClick(m_ui->Suivante, [this] { m_projection.pageSuivante(); });
    surClick(m_ui->Fermer, [this] { close(); });
    const auto relie = [this](const QKeySequence &touche, QAbstractButton *bouton) {
        connect(new QShortcut(touche, this), &QShortcut::activated, bouton, &QAbstractButton::click);
    };
    relie(Qt::Key_F11, m_ui->Plein_ecran);
    relie(Qt::Key_F12, m_ui->Pause);
    relie(Qt::CTRL | Qt::Key_Right, m_ui->Suivante);
    connect(&m_projection, &Projection::changee, this, [this] { execute([this] { montreReglages(); }); });
}

AffichagePublic::~AffichagePublic() = default;

std::array<QCheckBox *, 5> AffichagePublic::pages() const
{
    return {m_ui->Page_tirage, m_ui->Page_attendues, m_ui->Page_resultats, m_ui->Page_classement, m_ui->Page_horloge};
}

void AffichagePublic::Form_Load()
{
    montreReglages();
    m_ui->Afficher->setFocus();
}

void AffichagePublic::traduit()
{
    m_ui->retranslateUi(this);
    montreReglages();
}

void AffichagePublic::montreReglages()
{
    const ReglagesPublics &reglages = m_projection.reglages();
    const PlaceVue place = m_projection.place();
    const QStringList ecrans = m_projection.ecrans();
    for (std::size_t i = 0; i < pages().size(); ++i)
        pages()[i]->setChecked(reglages.pages[i]);
    const QSignalBlocker sansEcho(m_ui->Secondes);
    m_ui->Secondes->setValue(reglages.secondes);
    m_ui->Sombre->setChecked(reglages.sombre);
    m_ui->Ecran->clear();
    for (const QString &ecran : ecrans)
        m_ui->Ecran->addItem(nomEcran(ecran), ecran);
    m_ui->Ecran->setCurrentIndex(int(ecrans.indexOf(place.ecran)));
    m_ui->Ecran->setEnabled(ecrans.size() > 1);
    m_ui->Plein_ecran->setChecked(place.pleinEcran);
    const bool ailleurs = QGuiApplication::screens().size() > 1;
    m_ui->Plein_ecran->setEnabled(ailleurs);
    m_ui->Explication->setText(ailleurs
                                   ? tr("L'affichage tourne seul sur l'autre écran pendant que vous travaillez ici.")
                                   : tr("Un seul écran est branché : l'affichage s'ouvre dans une fenêtre ordinaire."));
    const bool montree = m_projection.montree();
    m_ui->Afficher->setText(montree ? tr("Cacher") : tr("Afficher"));
    m_ui->Pause->setChecked(m_projection.enPause());
    m_ui->Suivante->setEnabled(montree);
}

void AffichagePublic::regle()
{
    ReglagesPublics reglages = m_projection.reglages();
    for (std::size_t i = 0; i < pages().size(); ++i)
        reglages.pages[i] = pages()[i]->isChecked();
    reglages.secondes = m_ui->Secondes->value();
    reglages.sombre = m_ui->Sombre->isChecked();
    reglages.place.ecran = m_ui->Ecran->currentData().toString();
    if (m_ui->Plein_ecran->isEnabled())
        reglages.place.pleinEcran = m_ui->Plein_ecran->isChecked();
    m_projection.regle(reglages);
}

void AffichagePublic::Afficher_Click()
{
    if (m_projection.montree())
        m_projection.cache();
    else
        m_projection.montre();
}
