#include "clock/acces_horloge.h"

#include "clock/cadran.h"
#include "clock/rouleau.h"

#include <QAccessibleWidget>

namespace {

/// A picture that shows a value.
class DessinLisible final : public QAccessibleWidget
{
public:
    DessinLisible(QWidget *dessin, QAccessible::Role role)
        : QAccessibleWidget(dessin, role)
    {
    }

    QString text(QAccessible::Text demande) const override
    {
        if (demande != QAccessible::Value)
            return QAccessibleWidget::text(demande);
        if (const auto *rouleau = qobject_cast<const Rouleau *>(widget()))
            return QString::number(rouleau->figureMontree());
        const auto *cadran = qobject_cast<const Cadran *>(widget());
        return cadran == nullptr ? QString() : cadran->heure().toString(u"HH:mm:ss"_qs);
    }
};

QAccessibleInterface *fabrique(const QString &classe, QObject *objet)
{
    auto *dessin = qobject_cast<QWidget *>(objet);
    if (dessin == nullptr)
        return nullptr;
    if (classe == u"Cadran")
        return new DessinLisible(dessin, QAccessible::Clock);
    return classe == u"Rouleau" ? new DessinLisible(dessin, QAccessible::Graphic) : nullptr;
}

} // namespace

void RendLisibleHorloge()
{
    QAccessible::installFactory(fabrique);
}
