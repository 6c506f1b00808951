#include "outils/projection.h"

#include "noms/ordre_resultats.h"
#include "partage/concours_courant.h"

#include <QApplication>
#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

namespace {

constexpr int battementMs = 50;
constexpr int silenceMs = 200; // of the keyboard, before the base is read
constexpr int attenteMaxMs = 600; // a result is on the screen within a second, however much is typed
constexpr QSize fenetreSeule(960, 540);

QScreen *ecranNomme(const QString &nom)
{
    const QList<QScreen *> ecrans = QGuiApplication::screens();
    const auto trouve = std::ranges::find(ecrans, nom, &QScreen::name);
    return trouve == ecrans.end() ? QGuiApplication::primaryScreen() : *trouve;
}

/// std::any holds what can be copied.
struct ProjectionTenue
{
    std::shared_ptr<Projection> projection;
};

} // namespace

Projection &projection(const Contexte &contexte, QWidget &fenetre)
{
    std::shared_ptr<Projection> &tenue = contexte.formulaires.etat<ProjectionTenue>().projection;
    if (tenue == nullptr)
        tenue = std::make_shared<Projection>(contexte, fenetre);
    return *tenue;
}

Projection::Projection(const Contexte &contexte, QWidget &fenetre)
    : m_contexte(contexte)
    , m_fenetre(&fenetre)
{
    m_battement.setInterval(battementMs);
    connect(&m_battement, &QTimer::timeout, this, [this] { Execute(m_contexte.boites, [this] { bat(); }); });
    connect(&fenetre, &QObject::destroyed, this, &Projection::cache);
    const auto replace = [this] {
        if (montree())
            pose();
        Q_EMIT changee();
    };
    connect(qGuiApp, &QGuiApplication::screenAdded, this, replace);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, replace);
    if (const QWindow *native = fenetre.windowHandle())
        connect(native, &QWindow::screenChanged, this, replace);
}

Projection::~Projection() = default;

void Projection::regle(const ReglagesPublics &reglages)
{
    const PlaceVue avant = place();
    m_reglages = reglages;
    if (!montree())
        return;
    m_vue->regle(reglages.pages, reglages.secondes, reglages.sombre);
    if (place() != avant)
        pose();
}

QString Projection::ecranOperateur() const
{
    const QScreen *ecran = m_fenetre != nullptr ? m_fenetre->screen() : QGuiApplication::primaryScreen();
    return ecran->name();
}

QStringList Projection::ecrans() const
{
    QStringList noms;
    for (const QScreen *ecran : QGuiApplication::screens())
        noms += ecran->name();
    return ecransProposes(noms, ecranOperateur());
}

PlaceVue Projection::place() const
{
    QStringList noms;
    for (const QScreen *ecran : QGuiApplication::screens())
        noms += ecran->name();
    return choisitPlace(noms, ecranOperateur(), m_reglages.place);
}

/// The states are set by themselves: QWidget::showFullScreen() and its like take the focus too.
void Projection::pose()
{
    const PlaceVue voulue = place();
    QScreen *ecran = ecranNomme(voulue.ecran);
    const QRect libre = ecran->availableGeometry();
    m_vue->setWindowState(Qt::WindowNoState);
    m_vue->setScreen(ecran);
    if (voulue.pleinEcran) {
        m_vue->setGeometry(ecran->geometry());
        m_vue->setWindowState(Qt::WindowFullScreen);
        m_vue->show();
        return;
    }
    const bool seul = voulue.ecran == ecranOperateur();
    QRect cadre(QPoint(), seul ? fenetreSeule.boundedTo(libre.size() / 2) : libre.size() * 3 / 4);
    cadre.moveBottomRight(libre.bottomRight() - QPoint(16, 16));
    m_vue->setGeometry(cadre);
    m_vue->show();
}

void Projection::montre()
{
    if (montree())
        return;
    m_vue = std::make_unique<VuePublique>(m_contexte);
    connect(m_vue.get(), &VuePublique::fermee, this, &Projection::cache, Qt::QueuedConnection);
    if (m_contexte.partage.ConcoursCourant == 0)
        RetrouveConcours(m_contexte.partage);
    lit();
    m_vue->regle(m_reglages.pages, m_reglages.secondes, m_reglages.sombre);
    m_vue->pause(m_pause);
    pose();
    qApp->installEventFilter(this);
    m_depuis.start();
    m_battement.start();
    Q_EMIT changee();
}

void Projection::cache()
{
    if (!montree())
        return;
    m_battement.stop();
    qApp->removeEventFilter(this);
    m_vue.reset();
    Q_EMIT changee();
}

void Projection::pause(bool tenue)
{
    m_pause = tenue;
    if (montree())
        m_vue->pause(tenue);
    Q_EMIT changee();
}

void Projection::pageSuivante()
{
    if (montree())
        m_vue->suivante();
}

bool Projection::eventFilter(QObject *, QEvent *evenement)
{
    if (evenement->type() == QEvent::KeyPress)
        m_frappe.start();
    return false;
}

bool Projection::aRelire() const
{
    Partage &partage = m_contexte.partage;
    return m_lue.base.lock() != partage.BaseDonnees.temoin().lock()
        || m_lue.changements != partage.BaseDonnees.native().changements() || m_lue.concours != partage.ConcoursCourant;
}

void Projection::lit()
{
    Partage &partage = m_contexte.partage;
    m_lue = {partage.BaseDonnees.temoin(), partage.BaseDonnees.native().changements(), partage.ConcoursCourant};
    m_vue->montre(LitEtatPublic(partage, ordreDesResultats(m_contexte.formulaires)));
}

/// While the base is closed for a moment, or a group is being written, the view stays as it is.
void Projection::bat()
{
    m_vue->bat(m_depuis.restart());
    store::Database &base = m_contexte.partage.BaseDonnees;
    if (!base.estOuverte() || !base.native().horsTransaction())
        return;
    if (!aRelire()) {
        m_attente.invalidate();
        return;
    }
    if (!m_attente.isValid())
        m_attente.start();
    const bool silence = !m_frappe.isValid() || m_frappe.elapsed() >= silenceMs;
    if (silence || m_attente.elapsed() >= attenteMaxMs) {
        m_attente.invalidate();
        lit();
    }
}
