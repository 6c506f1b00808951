#include "operateur.h"

#include "app/torvik.h"
#include "platform/flexgrid.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QTest>
#include <QWindow>

namespace demonstration {

namespace {

constexpr int patienceMs = 2000;

/// The desktop brings a window to the front before it hands a click over to it.
void metDevant(QWidget &fenetre)
{
    if (fenetre.isActiveWindow())
        return;
    fenetre.windowHandle()->requestActivate();
    exige(QTest::qWaitFor([&fenetre] { return fenetre.isActiveWindow(); }, patienceMs),
          u"La fenêtre %1 ne vient pas devant."_qs.arg(fenetre.objectName()));
}

/// Key of a character, accents included, which the ready-made clicks of whole texts do not know.
Qt::Key toucheDe(QChar lettre)
{
    return Qt::Key(lettre.toUpper().unicode());
}

QString nomDuFocus()
{
    const QWidget *controle = QApplication::focusWidget();
    return controle == nullptr ? u"aucun contrôle"_qs
                               : controle->window()->objectName() + u'.' + controle->objectName();
}

} // namespace

QWidget *Operateur::fenetre(const QString &forme) const
{
    QWidget *trouvee = nullptr;
    if (forme == u"Torvik")
        trouvee = m_programme.torvik();
    else
        trouvee = m_programme.formulaires().forme(forme);
    exige(trouvee != nullptr && trouvee->isVisible(), u"La fenêtre %1 n'est pas ouverte."_qs.arg(forme));
    return trouvee;
}

QString Operateur::texte(const QString &forme, const QString &nom) const
{
    const QWidget *widget = controle(forme, nom);
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

void Operateur::demarre()
{
    const bool pret = m_programme.demarre();
    exige(pret && m_boites.faute().isEmpty(), u"Le programme n'a pas démarré. "_qs + m_boites.faute());
    exige(QTest::qWaitForWindowActive(fenetre(u"Accueil"_qs)), u"Accueil ne vient pas devant."_qs);
}

QWidget *Operateur::cible() const
{
    QWidget *controle = QApplication::focusWidget();
    exige(controle != nullptr, u"Une touche est frappée, et aucun contrôle n'a le focus."_qs);
    return controle;
}

void Operateur::apres() const
{
    QCoreApplication::processEvents();
    exige(m_boites.faute().isEmpty(), m_boites.faute());
}

void Operateur::tape(const QString &texte)
{
    for (const QChar lettre : texte)
        QTest::sendKeyEvent(QTest::Click, cible(), toucheDe(lettre), QString(lettre), Qt::NoModifier);
    apres();
}

void Operateur::touche(Qt::Key touche, Qt::KeyboardModifiers avec)
{
    QTest::keyClick(cible(), touche, avec);
    apres();
}

void Operateur::remplace(const QString &texte)
{
    touche(Qt::Key_A, Qt::ControlModifier);
    tape(texte);
}

/// Where a click on the control takes effect, in its window.
QPoint Operateur::place(const QWidget &controle) const
{
    const QWidget *fenetre = controle.window();
    QPoint milieu = controle.rect().center();
    if (qobject_cast<const QCheckBox *>(&controle) != nullptr)
        milieu.setX(controle.height() / 3);
    const QPoint point = controle.mapTo(fenetre, milieu);
    const QWidget *touche = fenetre->childAt(point);
    exige(controle.isEnabled() && touche != nullptr && (touche == &controle || controle.isAncestorOf(touche)),
          u"Un clic n'atteint pas %1.%2."_qs.arg(fenetre->objectName(), controle.objectName()));
    return point;
}

/// A hand that has clicked moves out of the window: nothing stays lit under it. The desktop would tell the window; the
/// moves before bring its idea of the control under the mouse up to date, which a click that opens a form leaves
/// behind.
void Operateur::ecarteSouris(const QWidget &fenetre, QPoint point) const
{
    QTest::mouseMove(fenetre.windowHandle(), QPoint(3, fenetre.height() - 3));
    QTest::mouseMove(fenetre.windowHandle(), point);
    QEvent sortie(QEvent::Leave);
    QCoreApplication::sendEvent(fenetre.windowHandle(), &sortie);
    apres();
}

void Operateur::clique(QWidget *controle)
{
    metDevant(*controle->window());
    const QPointer<QWidget> fenetre = controle->window();
    const QPoint point = place(*controle);
    QTest::mouseMove(fenetre->windowHandle(), point);
    QTest::mouseClick(fenetre->windowHandle(), Qt::LeftButton, Qt::NoModifier, point);
    apres();
    if (fenetre != nullptr && fenetre->isVisible())
        ecarteSouris(*fenetre, point);
}

void Operateur::doubleClique(QWidget *controle)
{
    metDevant(*controle->window());
    QTest::mouseDClick(controle->window()->windowHandle(), Qt::LeftButton, Qt::NoModifier, place(*controle));
    apres();
}

void Operateur::cliqueCellule(FlexGrid *grille, int ligne, int colonne, Qt::MouseButton bouton,
                              Qt::KeyboardModifiers avec)
{
    metDevant(*grille->window());
    const QModelIndex cellule = grille->model()->index(ligne - 1, colonne);
    exige(cellule.isValid(), u"%1 n'a pas de cellule %2, %3."_qs.arg(grille->objectName()).arg(ligne).arg(colonne));
    grille->scrollTo(cellule);
    QTest::mouseClick(grille->viewport(), bouton, avec, grille->visualRect(cellule).center());
    apres();
}

bool Operateur::aLeFocus(const QString &forme, const QString &nom) const
{
    return QApplication::focusWidget() == controle(forme, nom);
}

void Operateur::exigeFocus(const QString &forme, const QString &nom)
{
    const bool arrive = QTest::qWaitFor([&] { return aLeFocus(forme, nom); }, patienceMs);
    exige(arrive, u"Le focus devait aller à %1.%2 ; il est à %3."_qs.arg(forme, nom, nomDuFocus()));
}

void Operateur::exigeTexte(const QString &forme, const QString &nom, const QString &attendu) const
{
    const QString lu = texte(forme, nom);
    exige(lu == attendu, u"%1.%2 devait montrer « %3 » et montre « %4 »."_qs.arg(forme, nom, attendu, lu));
}

} // namespace demonstration
