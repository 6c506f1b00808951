#include "commun/programme_pilote.h"

#include "app/torvik.h"
#include "fabrique.h"
#include "ui/apparence.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QFile>
#include <QPixmap>
#include <QWindow>

namespace {

/// The base file as the program comes with it, made once.
QByteArray baseNeuve()
{
    QTemporaryDir dossier;
    creeBase(QStringLiteral(VARLOTOUR_DONNEES), dossier.filePath(u"neuve.mdb"_qs));
    QFile cree(dossier.filePath(u"neuve.mdb"_qs));
    cree.open(QIODevice::ReadOnly);
    return cree.readAll();
}

QPoint milieu(const QWidget &widget)
{
    return widget.mapTo(widget.window(), widget.rect().center());
}

} // namespace

ProgrammePilote::ProgrammePilote(quint32 graine)
    : alea(graine)
{
    static const QByteArray neuve = baseNeuve();
    [[maybe_unused]] static const bool habille = (appliqueApparence(*qApp), true);
    QFile copie(fichier());
    if (!copie.open(QIODevice::WriteOnly) || copie.write(neuve) != neuve.size())
        qFatal("no room for a test base");
    QPixmap drapeau(16, 16);
    drapeau.fill(Qt::blue);
    drapeau.save(m_dossier.filePath(u"1.ico"_qs), "PNG");
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
        ADD_FAILURE() << "No control " << nom.toStdString() << " on " << forme.toStdString();
    return trouve;
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
    if (const QWidget *widget = cherche(forme, nom))
        QTest::mouseClick(widget->window()->windowHandle(), Qt::LeftButton, Qt::NoModifier, milieu(*widget));
}

void ProgrammePilote::doubleClique(const QString &forme, const QString &nom)
{
    QApplication::processEvents();
    if (const QWidget *widget = cherche(forme, nom))
        QTest::mouseDClick(widget->window()->windowHandle(), Qt::LeftButton, Qt::NoModifier, milieu(*widget));
    QApplication::processEvents();
}

void ProgrammePilote::ouvre(const QString &bouton)
{
    clique({}, bouton);
    QApplication::processEvents();
}
