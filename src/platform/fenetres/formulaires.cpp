#include "fenetres/formulaires.h"

#include "fenetres/roles_acces.h"
#include "socle/twips.h"

#include <QApplication>
#include <QComboBox>
#include <QScreen>
#include <QTimer>
#include <QWindow>

namespace {

Formulaire *formulaireDe(QWidget *widget)
{
    return widget == nullptr ? nullptr : qobject_cast<Formulaire *>(widget->window());
}

QWidget *controleDe(QWidget *widget)
{
    QWidget *parent = widget->parentWidget();
    return qobject_cast<QComboBox *>(parent) != nullptr ? parent : widget;
}

/// Gives the controls the tool tips that the form tells, a sentence a line.
void PoseInfobulles(const Formulaire &formulaire)
{
    for (const auto &[controle, texte] : formulaire.infobulles())
        controle->setToolTip(QString(texte).replace(u". "_qs, u".\n"_qs));
}

} // namespace

Formulaires::Formulaires(QObject *parent)
    : QObject(parent)
{
    connect(qApp, &QApplication::focusChanged, this, &Formulaires::focusChange);
    qApp->installEventFilter(this);
    DonneRolesAcces();
}

Formulaires::~Formulaires()
{
    qApp->removeEventFilter(this);
    const auto restantes = m_chargees;
    m_chargees.clear();
    for (const QPointer<Formulaire> &restante : restantes)
        delete restante.data();
}

void Formulaires::enregistre(NomForme nom, Fabrique fabrique)
{
    m_fabriques[nom] = std::move(fabrique);
}

void Formulaires::prepare(const Contexte &contexte, QWidget *parent, QWidget *fond)
{
    m_contexte = std::make_unique<Contexte>(contexte);
    m_parent = parent;
    m_fond = fond;
}

/// Where a form stands unless its own loading places it: in the middle of the main window, a little above.
void Formulaires::place(Formulaire &formulaire) const
{
    if (m_parent == nullptr)
        return;
    const QRect dehors = m_parent->geometry();
    const int libreX = dehors.width() - formulaire.width();
    const int libreY = dehors.height() - formulaire.height();
    formulaire.Move(enTwips(dehors.x() + std::max(libreX / 2, 0)), enTwips(dehors.y() + std::max(libreY * 2 / 5, 0)));
}

Formulaire *Formulaires::Charge(NomForme nom)
{
    if (Formulaire *chargee = m_chargees.value(nom))
        return chargee;
    const Fabrique fabrique = m_fabriques.value(nom);
    if (!fabrique)
        return nullptr;
    Formulaire *formulaire = fabrique(*m_contexte, m_parent);
    m_chargees.insert(nom, formulaire);
    place(*formulaire);
    formulaire->execute([&] { formulaire->Form_Resize(); });
    PoseInfobulles(*formulaire);
    formulaire->execute([&] { formulaire->Form_Load(); });
    return m_chargees.value(nom);
}

void Formulaires::Montre(NomForme nom)
{
    Formulaire *formulaire = Charge(nom);
    if (formulaire == nullptr)
        return;
    formulaire->show();
    formulaire->raise();
    formulaire->activateWindow();
    m_devant = formulaire;
}

void Formulaires::MontreSansFocus(NomForme nom)
{
    Formulaire *formulaire = Charge(nom);
    if (formulaire == nullptr)
        return;
    const QPointer<Formulaire> devant = m_devant;
    formulaire->setAttribute(Qt::WA_ShowWithoutActivating, true);
    formulaire->show();
    formulaire->raise();
    formulaire->setAttribute(Qt::WA_ShowWithoutActivating, false);
    // Not every window system heeds the wish.
    if (devant != nullptr && devant != formulaire && devant->isVisible())
        devant->activateWindow();
}

QSize Formulaires::tailleCadre(const QWidget &fenetre)
{
    for (const QWidget *modele : {&fenetre, static_cast<const QWidget *>(m_devant)}) {
        if (const QSize sien = modele == nullptr ? QSize(0, 0) : bordures(*modele); !sien.isNull())
            return m_cadre = sien;
    }
    // The main window fills the screen, where many a desktop gives it less of a frame than a form.
    return m_cadre.isNull() && m_parent != nullptr ? bordures(*m_parent) : m_cadre;
}

QSize Formulaires::bordures(const QWidget &fenetre)
{
    if (!fenetre.isVisible() || fenetre.windowHandle() == nullptr)
        return {0, 0};
    const QMargins marges = fenetre.windowHandle()->frameMargins();
    return {marges.left() + marges.right(), marges.top() + marges.bottom()};
}

QRect Formulaires::zoneLibre() const
{
    QRect zone = QApplication::primaryScreen()->availableGeometry();
    if (m_fond == nullptr)
        return zone;
    // A main window that has been pushed down leaves no room under its bar.
    if (const int haut = m_fond->mapToGlobal(QPoint()).y(); haut < zone.center().y())
        zone.setTop(std::max(haut, zone.top()));
    return zone;
}

void Formulaires::Cache(NomForme nom)
{
    if (Formulaire *formulaire = forme(nom))
        formulaire->hide();
}

void Formulaires::Decharge(NomForme nom)
{
    Formulaire *formulaire = m_chargees.take(nom);
    if (formulaire == nullptr)
        return;
    if (m_formeDuControle == formulaire) {
        m_controle.clear();
        m_formeDuControle.clear();
    }
    formulaire->execute([&] { formulaire->Form_Unload(); });
    formulaire->hide();
    formulaire->deleteLater();
}

void Formulaires::Decharge(const std::vector<NomForme> &noms)
{
    for (const NomForme nom : noms)
        Decharge(nom);
}

void Formulaires::DechargeTout()
{
    const QStringList noms = m_chargees.keys();
    for (const QString &nom : noms)
        Decharge(NomForme(nom));
}

bool Formulaires::estVisible(const QString &nom) const
{
    const Formulaire *formulaire = forme(nom);
    return formulaire != nullptr && formulaire->isVisible();
}

void Formulaires::active(Formulaire *formulaire)
{
    if (m_active == formulaire || !m_chargees.contains(formulaire->Name()))
        return;
    m_active = formulaire;
    formulaire->execute([&] { formulaire->Form_Activate(); });
}

void Formulaires::encadre(const QObject *fenetre)
{
    for (const QPointer<Formulaire> &chargee : std::as_const(m_chargees)) {
        if (chargee != nullptr && chargee->windowHandle() == fenetre)
            QTimer::singleShot(0, chargee, &Formulaire::encadre);
    }
}

void Formulaires::focusChange(QWidget *, QWidget *nouveau)
{
    Formulaire *formulaire = formulaireDe(nouveau);
    if (formulaire == nullptr || !m_chargees.contains(formulaire->Name()))
        return;
    QWidget *controle = controleDe(nouveau);
    if (controle == m_controle && !m_enAttente)
        return;

    const QPointer<QWidget> quitte = m_controle;
    const QPointer<Formulaire> formeQuittee = m_formeDuControle;
    const bool dejaQuitte = m_enAttente;
    m_controle = controle;
    m_formeDuControle = formulaire;
    if (quitte != nullptr && formeQuittee != nullptr && !dejaQuitte) {
        // While a control is being left, the one that follows has not got the focus yet: a handler that sends the focus
        // elsewhere must not make that one lose it.
        const int boites = m_contexte->boites.nombre();
        const bool parUnClic = m_sourisPressee;
        m_enAttente = true;
        formeQuittee->perdFocus(quitte);
        m_enAttente = false;
        m_pressionPerdue = parUnClic && boites != m_contexte->boites.nombre();
    }
    if (!dejaQuitte && m_controle != nullptr && m_formeDuControle != nullptr)
        m_formeDuControle->recoitFocus(m_controle);
}

bool Formulaires::eventFilter(QObject *objet, QEvent *evenement)
{
    switch (evenement->type()) {
    case QEvent::WindowActivate:
        if (auto *formulaire = qobject_cast<Formulaire *>(objet)) {
            m_devant = formulaire;
            active(formulaire);
        } else if (objet == m_parent) {
            m_active.clear();
        }
        break;
    case QEvent::Expose:
    case QEvent::Move:
        if (objet->isWindowType())
            encadre(objet);
        break;
    case QEvent::MouseButtonPress:
        if (objet->isWindowType()) {
            m_sourisPressee = true;
            m_pressionPerdue = false;
        } else if (m_pressionPerdue) {
            // A click that first brought up a box, by taking the focus from a field, is not carried out after it: the
            // operator has answered something else meanwhile.
            m_pressionPerdue = false;
            return true;
        }
        break;
    case QEvent::MouseButtonRelease:
        m_sourisPressee = false;
        break;
    default:
        break;
    }
    return QObject::eventFilter(objet, evenement);
}
