#include "app/torvik.h"

#include "app/base.h"
#include "app/langue.h"
#include "app/routines.h"
#include "app/sauvegarde.h"
#include "maintenance/import_listes.h"
#include "maintenance/purge.h"
#include "platform/formulaires.h"
#include "ui/apparence.h"
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

namespace {

/// What an entry of the main window does to the forms, in this order.
struct Famille
{
    QStringList decharge;
    QString charge;
    QString montre;
};

const Famille familleAccueil{{u"Econcours"_qs, u"Eequipes"_qs, u"EResultats"_qs, u"Listesoc"_qs, u"manqres"_qs,
                              u"palmares"_qs, u"valresu"_qs, u"Ejoueurs"_qs, u"listeq"_qs, u"Listco"_qs},
                             {},
                             u"Accueil"_qs};
const Famille familleConcours{
    {u"Eequipes"_qs, u"EResultats"_qs, u"Listesoc"_qs, u"manqres"_qs, u"palmares"_qs, u"valresu"_qs, u"Ejoueurs"_qs,
     u"listeq"_qs},
    {},
    u"Econcours"_qs};
const Famille familleEquipes{
    {u"Econcours"_qs, u"EResultats"_qs, u"manqres"_qs, u"palmares"_qs, u"valresu"_qs, u"Resusoc"_qs, u"Ejoueurs"_qs,
     u"listeq"_qs, u"Listco"_qs},
    u"Listesoc"_qs,
    u"Eequipes"_qs};
const Famille familleJoueurs{{u"Econcours"_qs, u"EResultats"_qs, u"Eequipes"_qs, u"Listesoc"_qs, u"manqres"_qs,
                              u"palmares"_qs, u"valresu"_qs, u"Resusoc"_qs, u"listeq"_qs, u"Listco"_qs},
                             {},
                             u"Ejoueurs"_qs};
const Famille familleResultats{{u"Econcours"_qs, u"Eequipes"_qs, u"Listesoc"_qs, u"manqres"_qs, u"palmares"_qs,
                                u"valresu"_qs, u"Resusoc"_qs, u"Ejoueurs"_qs, u"listeq"_qs, u"Listco"_qs},
                               {},
                               u"EResultats"_qs};

void ouvre(Formulaires &formulaires, const Famille &famille)
{
    formulaires.Decharge(famille.decharge);
    formulaires.Charge(famille.charge);
    formulaires.Montre(famille.montre);
}

} // namespace

Torvik::Torvik(const Contexte &contexte)
    : m_contexte(contexte)
    , m_ui(std::make_unique<Ui::Torvik>())
{
    m_ui->setupUi(this);
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
    surClick(m_ui->mnu_base, &Torvik_mnu_base_Click);
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

void Torvik::ouvreBase()
{
    Partage &partage = m_contexte.partage;
    partage.EspaceTravail = &partage.moteur.Workspaces(0);
    try {
        partage.BaseDonnees = partage.EspaceTravail->OpenDatabase(
            QDir(partage.DossierProgramme).filePath(nomBase), false, false, connexionBase);
    } catch (const store::Erreur &erreur) {
        const QString conseil = erreur.numero() == store::Erreur::FichierAbsent
            ? ConseilBaseTemporaire(partage.DossierProgramme)
            : QString();
        if (conseil.isEmpty())
            throw;
        throw store::Erreur(erreur.numero(), erreur.phrase() + u"\r\n\r\n"_qs + conseil);
    }
}

/// A base keeps its texts for years: those that this version reads and that it lacks are added.
void Torvik::completeMessages()
{
    QFile complement(u":/complement.sql"_qs);
    if (!complement.open(QIODevice::ReadOnly))
        throw std::logic_error("The program was built without its messages.");
    m_contexte.partage.BaseDonnees.native().executeScript(QString::fromUtf8(complement.readAll()));
}

void Torvik::Form_Load()
{
    Partage &partage = m_contexte.partage;
    ouvreBase();
    PrepareSauvegardes(partage);
    completeMessages();
    ChargeLangue(partage);
    LegendesTorvik();
    GardeUneCopie(m_contexte);
    // A desktop keeps its bars and the window's own title in sight; without one the whole screen is taken.
    setGeometry(QGuiApplication::primaryScreen()->geometry());
    showMaximized();
    m_contexte.formulaires.Montre(u"Accueil"_qs);
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

void Torvik::f_accueil_Click()
{
    ouvre(m_contexte.formulaires, familleAccueil);
}

void Torvik::f_concours_Click()
{
    m_contexte.formulaires.Cache(u"Accueil"_qs);
    ouvre(m_contexte.formulaires, familleConcours);
}

void Torvik::f_equipes_Click()
{
    m_contexte.formulaires.Cache(u"Accueil"_qs);
    ouvre(m_contexte.formulaires, familleEquipes);
    // Without a competition the registration has made way for the competition editor.
    if (m_contexte.formulaires.estVisible(u"Eequipes"_qs))
        m_contexte.formulaires.MontreSansFocus(u"Listesoc"_qs);
}

void Torvik::mnu_joueurs_Click()
{
    m_contexte.formulaires.Cache(u"Accueil"_qs);
    ouvre(m_contexte.formulaires, familleJoueurs);
}

void Torvik::f_resultats_Click()
{
    m_contexte.formulaires.Cache(u"Accueil"_qs);
    ouvre(m_contexte.formulaires, familleResultats);
}

void Torvik::traduction_Click()
{
    const QString nom = u"langues"_qs;
    if (auto *choix = qobject_cast<langues *>(m_contexte.formulaires.Charge(nom)))
        connect(choix, &langues::langueChargee, this, &Torvik::langueChangee, Qt::UniqueConnection);
    m_contexte.formulaires.Montre(nom);
}

void Torvik::chrono_Click()
{
    const QString nom = u"FrmHorloge"_qs;
    if (m_contexte.formulaires.estChargee(nom)) {
        m_contexte.formulaires.Decharge(nom);
        return;
    }
    if (Formulaire *horloge = m_contexte.formulaires.Charge(nom)) {
        horloge->Move(Ecran::Width() - horloge->Width(), 0);
        m_contexte.formulaires.Montre(nom);
    }
}

void Torvik::Form_Click()
{
    m_contexte.formulaires.Decharge(u"Accueil"_qs);
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

void Torvik::Form_Unload()
{
    if (std::exchange(m_dechargee, true))
        return;
    // The base goes first: what the forms do when they are unloaded must not touch it any more.
    m_contexte.partage.BaseDonnees.Close();
    m_contexte.formulaires.Decharge({u"Econcours"_qs, u"Eequipes"_qs, u"EResultats"_qs, u"Listesoc"_qs, u"manqres"_qs,
                                     u"palmares"_qs, u"valresu"_qs, u"Accueil"_qs, u"Resusoc"_qs});
    m_contexte.formulaires.DechargeTout();
}
