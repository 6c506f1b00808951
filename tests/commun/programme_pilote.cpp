#include "commun/programme_pilote.h"

#include "app/torvik.h"
#include "ui/apparence.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QWindow>

namespace {

QPoint milieu(const QWidget &widget)
{
    return widget.mapTo(widget.window(), widget.rect().center());
}

} // namespace

ProgrammePilote::ProgrammePilote(quint32 graine)
    : alea(graine)
{
    [[maybe_unused]] static const bool habille = (appliqueApparence(*qApp), true);
    if (!QFile::copy(QStringLiteral(VARLOTOUR_BASE), fichier())
        || !QFile::copy(QStringLiteral(VARLOTOUR_ICONE), m_dossier.filePath(u"1.ico"_qs)))
        qFatal("no room for a test base");
}

ProgrammePilote::~ProgrammePilote()
{
    termine();
}

bool ProgrammePilote::demarre()
{
    m_programme = std::make_unique<Programme>(dossier(), alea, horloge, boites);
    partage().AvecCopies = m_copies;
    return m_programme->demarre();
}

void ProgrammePilote::termine()
{
    if (m_programme != nullptr)
        m_programme->termine();
    m_programme.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QWidget *ProgrammePilote::torvik() const
{
    return m_programme->torvik();
}

QWidget *ProgrammePilote::cherche(const QString &forme, const QString &nom)
{
    QWidget *parent = forme.isEmpty() ? torvik() : static_cast<QWidget *>(formulaires().forme(forme));
    auto *trouve = parent == nullptr ? nullptr : parent->findChild<QWidget *>(nom);
    if (trouve == nullptr)
        throw std::runtime_error((u"no control "_qs + forme + u'.' + nom).toStdString());
    return trouve;
}

QString ProgrammePilote::texte(const QString &forme, const QString &nom)
{
    const QWidget *trouve = cherche(forme, nom);
    if (const auto *champ = qobject_cast<const QLineEdit *>(trouve))
        return champ->text();
    if (const auto *liste = qobject_cast<const QComboBox *>(trouve))
        return liste->currentText();
    if (const auto *bouton = qobject_cast<const QAbstractButton *>(trouve))
        return bouton->text();
    return qobject_cast<const QLabel *>(trouve)->text();
}

QString ProgrammePilote::focus() const
{
    QApplication::processEvents(); // a box that has just been answered gives the focus back by an event
    const QWidget *widget = QApplication::focusWidget();
    if (widget == nullptr)
        return {};
    const QWidget *parent = widget->parentWidget();
    return qobject_cast<const QComboBox *>(parent) != nullptr ? parent->objectName() : widget->objectName();
}

void ProgrammePilote::tape(const QString &texte)
{
    QApplication::processEvents();
    for (const QChar lettre : texte) {
        QWidget *widget = QApplication::focusWidget();
        ASSERT_NE(widget, nullptr) << "Nothing has the focus";
        if (lettre == u'\n')
            QTest::keyClick(widget, Qt::Key_Return);
        else if (lettre.unicode() < 128)
            QTest::keyClick(widget, lettre.toLatin1());
        else
            QTest::sendKeyEvent(QTest::Click, widget, Qt::Key(lettre.toUpper().unicode()), QString(lettre),
                                Qt::NoModifier);
    }
}

void ProgrammePilote::touche(Qt::Key touche, Qt::KeyboardModifiers avec)
{
    QApplication::processEvents();
    ASSERT_NE(QApplication::focusWidget(), nullptr) << "Nothing has the focus";
    QTest::keyClick(QApplication::focusWidget(), touche, avec);
}

/// The mouse goes through the window, as from the desktop: it meets whatever stands at that place by then. The program
/// is at rest first, whatever the speed of the machine: clicks made during a long operation are dropped.
void ProgrammePilote::clique(const QString &forme, const QString &nom)
{
    QApplication::processEvents();
    const QWidget *widget = cherche(forme, nom);
    QTest::mouseClick(widget->window()->windowHandle(), Qt::LeftButton, Qt::NoModifier, milieu(*widget));
    QApplication::processEvents();
}

void ProgrammePilote::doubleClique(const QString &forme, const QString &nom)
{
    QApplication::processEvents();
    const QWidget *widget = cherche(forme, nom);
    QTest::mouseDClick(widget->window()->windowHandle(), Qt::LeftButton, Qt::NoModifier, milieu(*widget));
    QApplication::processEvents();
}
