#include "clock/acces_horloge.h"

#include "clock/cadran.h"
#include "clock/rouleau.h"

#include <QAccessibleWidget>

namespace {

/// A picture that shows a value. The value is its description too, since screen readers ask no picture for a value.
class DessinLisible final : public QAccessibleWidget
{
public:
    explicit DessinLisible(QWidget *dessin)
        : QAccessibleWidget(dessin, QAccessible::Graphic)
    {
    }

    QString text(QAccessible::Text demande) const override
    {
        if (demande != QAccessible::Value && demande != QAccessible::Description)
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
    const bool lisible = dessin != nullptr && (classe == u"Cadran" || classe == u"Rouleau");
    return lisible ? new DessinLisible(dessin) : nullptr;
}

} // namespace

void RendLisibleHorloge()
{
    QAccessible::installFactory(fabrique);
}
