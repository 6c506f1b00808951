#pragma once

#include <Qt>

#include <functional>

class Formulaire;
class QWidget;

/// Presses and releases a key for the operator, once the running handler is over: it goes to the control that has the
/// focus by then.
void SendKeys(Qt::Key touche);

/// Gives the focus to \p controle of \p forme, and runs \p suite as soon as it has it. Bringing a form to the front
/// takes the desktop a moment: what is typed before it has would go to the form left. \p suite is dropped when the
/// focus goes to another control first.
void SetFocus(Formulaire &forme, QWidget *controle, std::function<void()> suite);
