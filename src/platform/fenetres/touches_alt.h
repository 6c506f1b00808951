#pragma once

#include <QChar>
#include <QRect>
#include <QString>

#include <vector>

class QAction;
class QWidget;

/// The name under which a control is known to whoever cannot see it: its own, else its caption, else that of the label
/// that belongs to it. Without the marks of Alt keys; empty when nothing names it.
QString NomDuControle(const QWidget &controle);

/// Controls of a window that the Tab key reaches, in its order, whether they are shown just now or not. All options of
/// a group are among them.
std::vector<QWidget *> OrdreDesTabulations(const QWidget &fenetre);

/// The key that leads to a control, or to a menu of the main window, when it is pressed together with Alt.
struct ToucheAlt
{
    QChar signe;
    QWidget *controle = nullptr; ///< Null for a menu.
    QAction *menu = nullptr; ///< Null for a control.
    bool duSysteme = false; ///< The caption or the control brings the key along, and Qt listens for it.
};

/// Alt keys of a window: each control gets the first letter of its name that is still free, beginnings of words first,
/// in the order of the Tab key. The rows of a table of fields share the keys of the first one. No key stands twice.
std::vector<ToucheAlt> TouchesAlt(const QWidget &fenetre);

/// Place of the control or menu of \p touche in \p fenetre; an empty one when it cannot be used just now.
QRect PlaceDe(const ToucheAlt &touche, const QWidget &fenetre);
