#include "app/torvik.h"

#include "app/formes.h"
#include "app/ouverture.h"
#include "aspect/apparence.h"
#include "fenetres/formulaires.h"
#include "fenetres/sablier.h"
#include "garde/niveau.h"
#include "garde/sauvegarde.h"
#include "maintenance/import_listes.h"
#include "maintenance/purge.h"
#include "noms/changement_base.h"
#include "noms/formes.h"
#include "outils/menu_outils.h"
#include "partage/base.h"
#include "partage/langue.h"
#include "partage/routines.h"
#include "ui/langues.h"
#include "ui_torvik.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFile>
#include <QLocale>
#include <QMouseEvent>
#include <QScreen>
#include <QToolButton>

#include <stdexcept>

Torvik::Torvik(const Contexte &contexte)
    : m_contexte(contexte)
    , m_ui(std::make_unique<Ui::Torvik>())
{
    m_ui->setupUi(this);
    m_ui->Menus->addMenu(new MenuOutils(contexte, m_ui->Menus));
    relie();
}

Torvik::~Torvik()
{
    Form_Unload();
}

void Torvik::relie()
{
    const auto relieBouton = [this](QToolButton *bouton, void (Torvik::*traitement)()) {
        connect(bouton, &QToolButton::clicked, this,
                [this, traitement] { Execute(m_contexte.boites, [&] { (this->*traitement)(); }); });
    };
    relieBouton(m_ui->f_concours, &Torvik::f_concours_Click);
    relieBouton(m_ui->f_equipes, &Torvik::f_equipes_Click);
    relieBouton(m_ui->f_resultats, &Torvik::f_resultats_Click);
    relieBouton(m_ui->f_accueil, &Torvik::f_accueil_Click);
    relieBouton(m_ui->chrono, &Torvik::chrono_Click);
    surClick(m_ui->Mnu_concours, &Torvik::f_concours_Click);
    surClick(m_ui->mnu_equipes, &Torvik::f_equipes_Click);
    surClick(m_ui->mnu_joueurs, &Torvik::mnu_joueurs_Click);
    surClick(m_ui->Mnu_resultats, &Torvik::f_resultats_Click);
    surClick(m_ui->apropo, &Torvik::f_accueil_Click);
    surClick(m_ui->traduction, &Torvik::traduction_Click);
    surClick(m_ui->mnu_iclub, &Torvik_mnu_iclub_Click);
    surClick(m_ui->mnu_ijoueur, &Torvik_mnu_ijoueur_Click);
    surClick(m_ui->mnu_base,
             [](const Contexte &contexte) { Torvik_mnu_base_Click(contexte, FormesDechargees(Entree::Purge)); });
}

void Torvik::surClick(QAction *action, void (Torvik::*traitement)())
{
    connect(action, &QAction::triggered, this,
            [this, traitement] { Execute(m_contexte.boites, [&] { (this->*traitement)(); }); });
}

void Torvik::surClick(QAction *action, void (*traitement)(const Contexte &))
{
    connect(action, &QAction::triggered, this,
            [this, traitement] { Execute(m_contexte.boites, [&] { traitement(m_contexte); }); });
}

/// A base serves for years: what this version counts on and what it lacks is added. Its language is spoken from now on.
void Torvik::metEnService()
{
    Partage &partage = m_contexte.partage;
    PrepareSauvegardes(partage);
    MetANiveau(partage);
    QFile complement(u":/complement.sql"_qs);
    if (!complement.open(QIODevice::ReadOnly))
        throw std::logic_error("The program was built without its messages.");
    CompleteBase(partage.BaseDonnees, QString::fromUtf8(complement.readAll()));
    ChargeLangue(partage);
    LegendesTorvik();
}

/// Nothing is lost by a start: without a copy the work goes on, and the operator knows.
void Torvik::copieDeDepart()
{
    const Sablier sablier;
    const BilanCopie bilan = SauveBase(m_contexte.partage, RaisonCopie::Depart);
    if (bilan.echouee())
        m_contexte.boites.MsgBox(u"La copie de sécurité n'a pas pu être faite : %1\r\nLe travail continue sans elle."_qs
                                     .arg(bilan.cause),
                                 vbExclamation);
}

void Torvik::Form_Load()
{
    OuvreBase(m_contexte);
    metEnService();
    changementBase(m_contexte.formulaires) = {FormesDechargees(Entree::Purge), [this] { metEnService(); }};
    copieDeDepart();
    m_garde = std::make_unique<GardeBase>(m_contexte);
    // A desktop keeps its bars and the window's own title in sight; without one the whole screen is taken.
    setGeometry(QGuiApplication::primaryScreen()->geometry());
    showMaximized();
    m_contexte.formulaires.Montre(formes::Accueil);
}

void Torvik::LegendesTorvik()
{
    const Partage &partage = m_contexte.partage;
    const QIcon icone(partage.IconeLangue);
    if (icone.availableSizes().isEmpty())
        throw store::Erreur(store::Erreur::FichierAbsent,
                            u"L'image %1 est introuvable ou illisible."_qs.arg(
                                QDir::toNativeSeparators(partage.IconeLangue)));
    m_ui->f_accueil->setIcon(icone);
    if (const QString &locale = partage.mes(128); !locale.isEmpty())
        parleLangue(*qApp, QLocale(locale));
    setWindowTitle(nomProgramme + versionProgramme);

    const auto legende = [](QToolButton *bouton, const QString &texte) {
        bouton->setToolTip(texte);
        bouton->setText(texte);
    };
    legende(m_ui->f_concours, partage.mes(1));
    legende(m_ui->f_equipes, partage.mes(2));
    legende(m_ui->f_resultats, partage.mes(4));
    legende(m_ui->f_accueil, partage.mes(0));
    m_ui->chrono->setToolTip(partage.mes(165));
    m_ui->Mnu_concours->setText(partage.mes(1));
    m_ui->apropo->setText(partage.mes(0));
    m_ui->traduction->setText(partage.mes(94));
    m_ui->mnu_equipes->setText(partage.mes(2));
    m_ui->Mnu_resultats->setText(partage.mes(4));
    m_ui->Mnu_concours->setVisible(true);
    m_ui->mnu_equipes->setVisible(true);
    m_ui->Mnu_resultats->setVisible(true);
    m_ui->Mnu_accueil->menuAction()->setVisible(true);
    update();
}

/// No error may leave through the signal that brings this about.
void Torvik::langueChangee()
{
    Execute(m_contexte.boites, [this] { LegendesTorvik(); });
}

QWidget *Torvik::fond() const
{
    return m_ui->Terrain;
}

void Torvik::f_accueil_Click()
{
    OuvreFamille(m_contexte.formulaires, Entree::Accueil);
}

void Torvik::f_concours_Click()
{
    m_contexte.formulaires.Cache(formes::Accueil);
    OuvreFamille(m_contexte.formulaires, Entree::Concours);
}

void Torvik::f_equipes_Click()
{
    m_contexte.formulaires.Cache(formes::Accueil);
    OuvreFamille(m_contexte.formulaires, Entree::Equipes);
    // Without a competition the registration has made way for the competition editor.
    if (m_contexte.formulaires.estVisible(formes::Eequipes))
        m_contexte.formulaires.MontreSansFocus(formes::Listesoc);
}

void Torvik::mnu_joueurs_Click()
{
    m_contexte.formulaires.Cache(formes::Accueil);
    OuvreFamille(m_contexte.formulaires, Entree::Joueurs);
}

void Torvik::f_resultats_Click()
{
    m_contexte.formulaires.Cache(formes::Accueil);
    OuvreFamille(m_contexte.formulaires, Entree::Resultats);
}

void Torvik::traduction_Click()
{
    const NomForme nom = formes::langues;
    if (auto *choix = qobject_cast<langues *>(m_contexte.formulaires.Charge(nom)))
        connect(choix, &langues::langueChargee, this, &Torvik::langueChangee, Qt::UniqueConnection);
    m_contexte.formulaires.Montre(nom);
}

void Torvik::chrono_Click()
{
    const NomForme nom = formes::FrmHorloge;
    if (m_contexte.formulaires.estChargee(nom)) {
        m_contexte.formulaires.Decharge(nom);
        return;
    }
    if (Formulaire *horloge = m_contexte.formulaires.Charge(nom)) {
        horloge->place([horloge] { horloge->Move(Ecran::Width() - horloge->Width(), 0); });
        m_contexte.formulaires.Montre(nom);
    }
}

void Torvik::Form_Click()
{
    m_contexte.formulaires.Decharge(formes::Accueil);
}

void Torvik::mousePressEvent(QMouseEvent *evenement)
{
    // A button hands on the presses that are not its own; they are no presses on the window.
    if (qobject_cast<QAbstractButton *>(childAt(evenement->position().toPoint())) != nullptr)
        return;
    if (evenement->button() == Qt::RightButton) {
        QAction *const menus[] = {m_ui->Mnu_concours, m_ui->Equipes->menuAction(), m_ui->Mnu_resultats,
                                  m_ui->Mnu_accueil->menuAction()};
        for (QAction *menu : menus)
            menu->setVisible(!menu->isVisible());
        update();
    } else if (evenement->button() == Qt::LeftButton) {
        Execute(m_contexte.boites, [this] { Form_Click(); });
    }
}

void Torvik::closeEvent(QCloseEvent *evenement)
{
    Form_Unload();
    evenement->accept();
}

void Torvik::seanceFinit()
{
    if (m_garde != nullptr)
        m_garde->consolide();
}

void Torvik::Form_Unload()
{
    if (std::exchange(m_dechargee, true))
        return;
    m_garde.reset();
    SauveAvantFermeture(m_contexte);
    // The base goes first: what the forms do when they are unloaded must not touch it any more.
    m_contexte.partage.BaseDonnees.Close();
    m_contexte.formulaires.Decharge(FormesDechargees(Entree::Fin));
    m_contexte.formulaires.DechargeTout();
}
