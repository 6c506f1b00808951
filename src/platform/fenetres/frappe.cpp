#include "fenetres/frappe.h"

#include "fenetres/formulaire.h"

#include <QApplication>
#include <QKeyEvent>

#include <memory>

namespace {

bool porteFocus(const QWidget *controle)
{
    const QWidget *porteur = QApplication::focusWidget();
    return porteur != nullptr && (porteur == controle || controle->isAncestorOf(porteur));
}

} // namespace

void SendKeys(Qt::Key touche)
{
    const auto frappe = [touche] {
        for (const QEvent::Type sens : {QEvent::KeyPress, QEvent::KeyRelease}) {
            if (QWidget *porteur = QApplication::focusWidget()) {
                QKeyEvent evenement(sens, touche, Qt::NoModifier);
                QApplication::sendEvent(porteur, &evenement);
            }
        }
    };
    QMetaObject::invokeMethod(qApp, frappe, Qt::QueuedConnection);
}

void SetFocus(Formulaire &forme, QWidget *controle, std::function<void()> suite)
{
    // Queued: by then the handlers of leaving and getting the focus are over.
    const auto enSuite = [&forme, controle, suite = std::move(suite)] {
        QMetaObject::invokeMethod(
            controle,
            [&forme, controle, suite] {
                if (porteFocus(controle))
                    forme.execute(suite);
            },
            Qt::QueuedConnection);
    };
    SetFocus(controle);
    if (porteFocus(controle)) {
        enSuite();
        return;
    }
    auto attente = std::make_shared<QMetaObject::Connection>();
    *attente = QObject::connect(qApp, &QApplication::focusChanged, controle,
                                [controle, enSuite, attente](QWidget *, const QWidget *nouveau) {
                                    if (nouveau == nullptr)
                                        return;
                                    QObject::disconnect(*attente);
                                    if (porteFocus(controle))
                                        enSuite();
                                });
}
