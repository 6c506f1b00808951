#include "fenetres/echap_tenue.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace {

constexpr quint64 dureeMs = 1000;

} // namespace

EchapTenue::EchapTenue(std::function<void()> surDemande)
    : m_surDemande(std::move(surDemande))
{
    qApp->installEventFilter(this);
}

EchapTenue::~EchapTenue() = default;

/// Only what the key itself tells counts, never a timer: the release of a key that has closed a box may reach no
/// window.
bool EchapTenue::eventFilter(QObject *, QEvent *evenement)
{
    if (evenement->type() != QEvent::KeyPress && evenement->type() != QEvent::KeyRelease)
        return false;
    const auto &touche = static_cast<const QKeyEvent &>(*evenement);
    if (touche.key() != Qt::Key_Escape)
        return false;
    if (evenement->type() == QEvent::KeyPress && !touche.isAutoRepeat()) {
        m_pressee = touche.timestamp();
        return false;
    }
    if (m_pressee && !m_demandee && touche.timestamp() >= *m_pressee + dureeMs) {
        m_demandee = true;
        m_surDemande();
    }
    if (touche.isAutoRepeat())
        return true;
    m_pressee.reset();
    return false;
}
