#include "fenetres/acces_clavier.h"

#include "fenetres/boites.h"
#include "fenetres/formulaire.h"
#include "fenetres/touches_alt.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenuBar>
#include <QPainter>

#include <algorithm>

namespace {

/// Alt is on its way to another use when it is not held this long: another window, a key known by heart.
constexpr int attenteLettres = 200; // milliseconds

/// Some systems write with Alt: there, Qt makes no key of a marked letter.
bool ALettresAlt()
{
    return !QKeySequence::mnemonic(u"&A"_qs).isEmpty();
}

QRect etiquette(const QRect &place, const QSize &dedans)
{
    constexpr int cote = 24;
    QRect carre(place.left(), place.top(), cote, cote);
    carre.translate(-cote / 4, -cote / 4);
    carre.moveLeft(std::clamp(carre.left(), 0, dedans.width() - cote));
    carre.moveTop(std::clamp(carre.top(), 0, dedans.height() - cote));
    return carre;
}

} // namespace

/// The letters over the controls of a window, for as long as Alt is held.
class EtiquettesAlt : public QWidget
{
public:
    explicit EtiquettesAlt(QWidget &fenetre)
        : QWidget(&fenetre)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setGeometry(fenetre.rect());
        raise();
        show();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter peintre(this);
        peintre.setRenderHint(QPainter::Antialiasing);
        QFont police = font();
        police.setBold(true);
        peintre.setFont(police);
        for (const ToucheAlt &touche : TouchesAlt(*window())) {
            const QRect place = PlaceDe(touche, *window());
            if (place.isEmpty() || !rect().intersects(place))
                continue;
            const QRect carre = etiquette(place, size());
            peintre.setPen(palette().color(QPalette::ToolTipText));
            peintre.setBrush(palette().color(QPalette::ToolTipBase));
            peintre.drawRoundedRect(carre, 4, 4);
            peintre.drawText(carre, Qt::AlignCenter, touche.signe);
        }
    }
};

AccesClavier::AccesClavier(QMainWindow &principale, const Boites &boites)
    : m_principale(principale)
    , m_boites(boites)
{
    m_attente.setSingleShot(true);
    m_attente.setInterval(attenteLettres);
    connect(&m_attente, &QTimer::timeout, this, &AccesClavier::montreLettres);
    qApp->installEventFilter(this);
}

AccesClavier::~AccesClavier() = default;

bool AccesClavier::sert(const QWidget *fenetre) const
{
    return fenetre == &m_principale || qobject_cast<const Formulaire *>(fenetre) != nullptr;
}

bool AccesClavier::eventFilter(QObject *objet, QEvent *evenement)
{
    switch (evenement->type()) {
    case QEvent::KeyPress: {
        const auto &frappe = static_cast<const QKeyEvent &>(*evenement);
        if (frappe.key() == Qt::Key_Alt && frappe.isAutoRepeat())
            break;
        cacheLettres();
        auto *porteur = qobject_cast<QWidget *>(objet);
        if (porteur != nullptr && sert(porteur->window()) && touche(*porteur, frappe))
            return true;
        break;
    }
    case QEvent::KeyRelease:
    case QEvent::MouseButtonPress:
    case QEvent::WindowDeactivate:
        cacheLettres();
        break;
    default:
        break;
    }
    return QObject::eventFilter(objet, evenement);
}

bool AccesClavier::touche(QWidget &porteur, const QKeyEvent &evenement)
{
    const Qt::KeyboardModifiers avec = evenement.modifiers() & ~Qt::KeypadModifier;
    if (evenement.key() == Qt::Key_Alt && ALettresAlt()) {
        m_attente.start();
        return false;
    }
    if (ALettresAlt() && avec.testFlag(Qt::AltModifier) && !avec.testFlag(Qt::ControlModifier))
        return toucheAlt(*porteur.window(), evenement);
    if (evenement.key() == Qt::Key_F6 && (avec & ~Qt::ShiftModifier) == 0) {
        autreFenetre(avec.testFlag(Qt::ShiftModifier));
        return true;
    }
    if (avec != 0)
        return false;
    if (evenement.key() == Qt::Key_F1) {
        Q_EMIT aideDemandee();
        return true;
    }
    if (evenement.key() == Qt::Key_F10) {
        ouvreMenus();
        return true;
    }
    auto *bouton = qobject_cast<QAbstractButton *>(&porteur);
    const bool entree = evenement.key() == Qt::Key_Return || evenement.key() == Qt::Key_Enter;
    if (!entree || bouton == nullptr || bouton->window() != &m_principale)
        return false;
    if (!evenement.isAutoRepeat())
        bouton->click();
    return true;
}

bool AccesClavier::toucheAlt(QWidget &fenetre, const QKeyEvent &evenement)
{
    const QChar signe = evenement.key() < 0x100 ? QChar(char16_t(evenement.key())) : QChar();
    for (const ToucheAlt &touche : TouchesAlt(fenetre)) {
        if (touche.signe != signe || touche.duSysteme || PlaceDe(touche, fenetre).isEmpty())
            continue;
        if (touche.menu != nullptr)
            m_principale.menuBar()->setActiveAction(touche.menu);
        else
            vaA(touche.controle);
        return true;
    }
    // A letter that leads nowhere must not be written into the field that it was pressed in.
    return signe >= u'A' && signe <= u'Z';
}

void AccesClavier::montreLettres()
{
    if (QWidget *fenetre = QApplication::activeWindow(); sert(fenetre))
        m_lettres = std::make_unique<EtiquettesAlt>(*fenetre);
}

void AccesClavier::cacheLettres()
{
    m_attente.stop();
    m_lettres.reset();
}

/// Goes there as a click does, so that the field that is left is checked on the way. Where that check has brought up a
/// box or kept the focus, the operator has something else to see to first, and the button is not pressed.
void AccesClavier::vaA(QWidget *controle)
{
    const int boites = m_boites.nombre();
    const QPointer<QAbstractButton> bouton = qobject_cast<QAbstractButton *>(controle);
    const bool laisseLeFocus = bouton != nullptr && (bouton->focusPolicy() & Qt::ClickFocus) == 0;
    if (!laisseLeFocus)
        controle->setFocus(Qt::ShortcutFocusReason);
    if (bouton != nullptr && (laisseLeFocus || bouton->hasFocus()) && boites == m_boites.nombre())
        bouton->click();
}

void AccesClavier::autreFenetre(bool precedente) const
{
    std::vector<QWidget *> fenetres;
    const auto toutes = QApplication::topLevelWidgets();
    for (QWidget *fenetre : toutes)
        if (qobject_cast<Formulaire *>(fenetre) != nullptr && fenetre->isVisible() && !fenetre->isMinimized()
            && !OrdreDesTabulations(*fenetre).empty())
            fenetres.push_back(fenetre);
    if (fenetres.empty())
        return;
    const auto rang = [](const QWidget *fenetre) {
        return std::tuple(fenetre->x(), fenetre->y(), fenetre->objectName());
    };
    std::ranges::sort(fenetres, {}, rang);
    if (precedente)
        std::ranges::reverse(fenetres);
    const auto active = std::ranges::find(fenetres, QApplication::activeWindow());
    const bool derniere = active == fenetres.end() || active + 1 == fenetres.end();
    QWidget *suivante = derniere ? fenetres.front() : *(active + 1);
    suivante->raise();
    suivante->activateWindow();
}

/// The right click on the main window can have put all menus away: its buttons stay.
void AccesClavier::ouvreMenus()
{
    m_principale.activateWindow();
    QMenuBar &barre = *m_principale.menuBar();
    const auto menus = barre.actions();
    const auto visible = std::ranges::find_if(menus, &QAction::isVisible);
    if (visible == menus.end()) {
        OrdreDesTabulations(m_principale).front()->setFocus(Qt::ShortcutFocusReason);
        return;
    }
    barre.setFocus(Qt::MenuBarFocusReason);
    barre.setActiveAction(*visible);
}
