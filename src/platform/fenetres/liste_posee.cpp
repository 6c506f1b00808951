#include "fenetres/liste_posee.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>
#include <QWheelEvent>

void ListePosee::keyPressEvent(QKeyEvent *evenement)
{
    const QString texte = evenement->text();
    const bool lettre = !texte.isEmpty() && texte.front().isLetterOrNumber();
    const bool fleche = evenement->key() == Qt::Key_Up || evenement->key() == Qt::Key_Down;
    if (!lettre && !fleche) {
        QComboBox::keyPressEvent(evenement);
        return;
    }
    showPopup();
    if (lettre)
        QApplication::sendEvent(view(), evenement);
    evenement->accept();
}

void ListePosee::wheelEvent(QWheelEvent *evenement)
{
    evenement->ignore();
}
