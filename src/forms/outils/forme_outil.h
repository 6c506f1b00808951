#pragma once

#include "fenetres/formulaire.h"

/// A window of the menu Outils. It says its texts through `tr`, and says them anew when the language changes; Escape
/// closes it.
class FormeOutil : public Formulaire
{
    Q_OBJECT

public:
    using Formulaire::Formulaire;

protected:
    /// The language is another one now: puts all texts of the form in it. Not called at loading.
    virtual void traduit() = 0;

    void changeEvent(QEvent *evenement) override;
    void keyPressEvent(QKeyEvent *evenement) override;
};
