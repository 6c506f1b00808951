#pragma once

#include "fenetres/formulaire.h"
#include "fenetres/nom_forme.h"
#include "fenetres/sablier.h"

#include <memory>
#include <optional>

namespace Ui {
class Alerte;
}

inline constexpr NomForme nomAlerte{u"Alerte"};

/// The notice of a long operation. While it is loaded the pointer waits and no window can be closed: the operation that
/// shows it works on what those windows stand on.
class Alerte : public Formulaire
{
    Q_OBJECT

public:
    Alerte(const Contexte &contexte, QWidget *parent);
    ~Alerte() override;

    void Form_Load() override;
    void Form_Unload() override;

    /// Shows \p texte at once, without letting any other event run.
    void dit(const QString &texte);
    /// Lets events run, clicks and keys aside, until the screen has the form; gives up after half a second.
    void attendPeinture();

protected:
    /// Watches the whole application.
    bool eventFilter(QObject *objet, QEvent *evenement) override;

private:
    std::unique_ptr<Ui::Alerte> m_ui;
    std::optional<Sablier> m_sablier;
    bool m_peinte = false;
};
