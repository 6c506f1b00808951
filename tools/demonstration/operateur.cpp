#include "operateur.h"

#include "grille/flexgrid.h"

#include <QApplication>
#include <QCheckBox>
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

QString nomDuFocus()
{
    const QWidget *controle = QApplication::focusWidget();
    return controle == nullptr ? u"aucun contrôle"_qs
                               : controle->window()->objectName() + u'.' + controle->objectName();
}

} // namespace

QWidget *Operateur::fenetre(const QString &forme) const
{
    QWidget *trouvee = Gestes::fenetre(forme);
    exige(trouvee->isVisible(), u"La fenêtre %1 n'est pas ouverte."_qs.arg(forme));
    return trouvee;
}

void Operateur::demarre()
{
    const bool pret = m_programme.demarre();
    exige(pret && m_boites.faute().isEmpty(), u"Le programme n'a pas démarré. "_qs + m_boites.faute());
    exige(QTest::qWaitForWindowActive(fenetre(u"Accueil"_qs)), u"Accueil ne vient pas devant."_qs);
}

void Operateur::apres() const
{
    QCoreApplication::processEvents();
    exige(m_boites.faute().isEmpty(), m_boites.faute());
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
