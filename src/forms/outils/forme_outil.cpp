#include "outils/forme_outil.h"

#include <QEvent>
#include <QKeyEvent>

void FormeOutil::changeEvent(QEvent *evenement)
{
    if (evenement->type() == QEvent::LanguageChange)
        execute([this] { traduit(); });
    Formulaire::changeEvent(evenement);
}

void FormeOutil::keyPressEvent(QKeyEvent *evenement)
{
    if (evenement->key() == Qt::Key_Escape && evenement->modifiers() == Qt::NoModifier)
        close();
    else
        Formulaire::keyPressEvent(evenement);
}
