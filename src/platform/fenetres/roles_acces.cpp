#include "fenetres/roles_acces.h"

#include <QAccessibleWidget>
#include <QWidget>

namespace {

QAccessibleInterface *fabrique(const QString &classe, QObject *objet)
{
    auto *widget = qobject_cast<QWidget *>(objet);
    if (widget == nullptr)
        return nullptr;
    if (classe == u"Formulaire")
        return new QAccessibleWidget(widget, QAccessible::Window);
    if (classe != u"QFrame")
        return nullptr;
    const bool filet = widget->property("role") == u"filet"_qs;
    return new QAccessibleWidget(widget, filet ? QAccessible::Separator : QAccessible::Pane);
}

} // namespace

void DonneRolesAcces()
{
    QAccessible::installFactory(fabrique);
}
