#pragma once

#include "fenetres/formulaire.h"
#include "fenetres/nom_forme.h"

#include <QMenu>

/// The menu of the windows that stand beside the rounds and never change how they are played. Its texts follow the
/// language of the program.
class MenuOutils : public QMenu
{
    Q_OBJECT

public:
    MenuOutils(const Contexte &contexte, QWidget *parent);

protected:
    void changeEvent(QEvent *evenement) override;

private:
    /// The welcome window stands in front of all others: it makes way, as for the forms of the other menus.
    void montre(NomForme forme);
    void traduit();

    Contexte m_contexte;
};
