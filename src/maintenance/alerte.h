#pragma once

#include "platform/formulaire.h"

#include <memory>

namespace Ui {
class Alerte;
}

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
    bool m_peinte = false;
};

/// Keeps the notice on the screen, in front of the other forms, as long as the object lives.
class Patience
{
public:
    /// Returns when the notice has been painted.
    Patience(const Contexte &contexte, const QString &texte);
    ~Patience();
    Q_DISABLE_COPY_MOVE(Patience)

    void dit(const QString &texte);

private:
    Formulaires &m_formulaires;
};
