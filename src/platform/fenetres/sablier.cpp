#include "fenetres/sablier.h"

#include <QApplication>
#include <QTimer>

namespace {

constexpr int dureeImpatience = 300; // ms; a shorter wait is no reason for a second click

/// Takes the presses of the mouse on their way to the windows.
class AvaleClics final : public QObject
{
public:
    AvaleClics()
        : QObject(qApp)
    {
        qApp->installEventFilter(this);
        // The window system hands over what it holds before an idle timer runs.
        QTimer::singleShot(0, this, [this] { delete this; });
    }

protected:
    bool eventFilter(QObject *objet, QEvent *evenement) override
    {
        const bool presse =
            evenement->type() == QEvent::MouseButtonPress || evenement->type() == QEvent::MouseButtonDblClick;
        return presse && objet->isWindowType();
    }
};

void avaleLesClicsEnAttente()
{
    new AvaleClics; // goes by itself
}

} // namespace

Sablier::Sablier()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    m_duree.start();
}

Sablier::~Sablier()
{
    QApplication::restoreOverrideCursor();
    if (m_duree.hasExpired(dureeImpatience))
        avaleLesClicsEnAttente();
}

Sablier::Pause::Pause()
{
    for (; QApplication::overrideCursor() != nullptr; ++m_suspendus)
        QApplication::restoreOverrideCursor();
}

Sablier::Pause::~Pause()
{
    for (; m_suspendus > 0; --m_suspendus)
        QApplication::setOverrideCursor(Qt::WaitCursor);
}
