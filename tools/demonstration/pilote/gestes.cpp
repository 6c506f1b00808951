#include "gestes.h"

#include "app/torvik.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

namespace pilote {

namespace {

QWidget *cible()
{
    QApplication::processEvents();
    QWidget *controle = QApplication::focusWidget();
    exige(controle != nullptr, u"Une touche est frappée, et aucun contrôle n'a le focus."_qs);
    return controle;
}

} // namespace

QWidget *Gestes::fenetre(const QString &forme) const
{
    QWidget *trouvee = nullptr;
    if (forme.isEmpty() || forme == u"Torvik")
        trouvee = programmeTenu().torvik();
    else
        trouvee = programmeTenu().formulaires().forme(forme);
    exige(trouvee != nullptr, u"La fenêtre %1 n'est pas ouverte."_qs.arg(forme));
    return trouvee;
}

QWidget *Gestes::cherche(const QString &forme, const QString &nom) const
{
    auto *trouve = fenetre(forme)->findChild<QWidget *>(nom);
    exige(trouve != nullptr, u"%1 n'a pas de contrôle %2."_qs.arg(forme, nom));
    return trouve;
}

QAction *Gestes::menu(const QString &nom) const
{
    auto *trouvee = fenetre({})->findChild<QAction *>(nom);
    exige(trouvee != nullptr, u"Le menu n'a pas d'entrée %1."_qs.arg(nom));
    return trouvee;
}

QString Gestes::texte(const QString &forme, const QString &nom) const
{
    const QWidget *widget = cherche(forme, nom);
    if (const auto *champ = qobject_cast<const QLineEdit *>(widget))
        return champ->text();
    if (const auto *combo = qobject_cast<const QComboBox *>(widget))
        return combo->currentText();
    if (const auto *bouton = qobject_cast<const QAbstractButton *>(widget))
        return bouton->text();
    const auto *etiquette = qobject_cast<const QLabel *>(widget);
    exige(etiquette != nullptr, u"%1.%2 n'a pas de texte."_qs.arg(forme, nom));
    return etiquette->text();
}

QString Gestes::focus() const
{
    QApplication::processEvents(); // a box that has just been answered gives the focus back by an event
    const QWidget *widget = QApplication::focusWidget();
    if (widget == nullptr)
        return {};
    const QWidget *parent = widget->parentWidget();
    return qobject_cast<const QComboBox *>(parent) != nullptr ? parent->objectName() : widget->objectName();
}

void Gestes::tape(const QString &texte)
{
    for (const QChar lettre : texte) {
        if (lettre == u'\n')
            QTest::keyClick(cible(), Qt::Key_Return);
        else
            QTest::sendKeyEvent(QTest::Click, cible(), Qt::Key(lettre.toUpper().unicode()), QString(lettre),
                                Qt::NoModifier);
    }
    apres();
}

void Gestes::touche(Qt::Key touche, Qt::KeyboardModifiers avec)
{
    QTest::keyClick(cible(), touche, avec);
    apres();
}

} // namespace pilote
