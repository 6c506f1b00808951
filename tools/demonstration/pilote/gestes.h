#pragma once

#include "app/programme.h"
#include "pilote/incident.h"

#include <QAction>
#include <QWidget>

namespace pilote {

/// Hands on the open windows of a program: they find controls, read them, and type into whatever has the focus. What is
/// not there throws an Incident.
class Gestes
{
public:
    virtual ~Gestes() = default;

    /// Window of the loaded form \p forme; the main window for "Torvik" and without a name.
    virtual QWidget *fenetre(const QString &forme) const;
    /// Control \p nom of a form; one that is missing, or of another kind than Widget, throws.
    template<typename Widget = QWidget>
    Widget *controle(const QString &forme, const QString &nom) const
    {
        auto *trouve = qobject_cast<Widget *>(cherche(forme, nom));
        exige(trouve != nullptr, u"%1.%2 est d'un autre genre."_qs.arg(forme, nom));
        return trouve;
    }
    /// Entry \p nom of the menus of the main window; a missing one throws.
    QAction *menu(const QString &nom) const;
    /// Text of the field, list, label or button \p nom.
    QString texte(const QString &forme, const QString &nom) const;
    /// Name of the control that has the focus, a combo for its editor; empty without one.
    QString focus() const;

    /// Types keys, accents included; a line end is Enter.
    void tape(const QString &texte);
    void touche(Qt::Key touche, Qt::KeyboardModifiers avec = Qt::NoModifier);

protected:
    Gestes() = default;
    Q_DISABLE_COPY_MOVE(Gestes)

    virtual Programme &programmeTenu() const = 0;
    /// Called behind each gesture on the keys.
    virtual void apres() const {}

private:
    QWidget *cherche(const QString &forme, const QString &nom) const;
};

} // namespace pilote
