#include "commun/programme_pilote.h"

#include "app/torvik.h"
#include "aspect/apparence.h"
#include "garde/sauvegarde.h"

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

void ProgrammePilote::decharge(NomForme nom)
{
    formulaires().Decharge(nom);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QWidget *ProgrammePilote::torvik() const
{
    return m_programme->torvik();
}

QString ProgrammePilote::textes(const QString &forme, const QString &noms) const
{
    QStringList lus;
    for (const QString &nom : noms.split(u' '))
        lus += texte(forme, nom);
    return lus.join(u'|');
}

/// The mouse goes through the window, as from the desktop: it meets whatever stands at that place by then. The program
/// is at rest first, whatever the speed of the machine: clicks made during a long operation are dropped.
void ProgrammePilote::clique(const QString &forme, const QString &nom)
{
    QApplication::processEvents();
    const QWidget *widget = controle(forme, nom);
    QTest::mouseClick(widget->window()->windowHandle(), Qt::LeftButton, Qt::NoModifier, milieu(*widget));
    QApplication::processEvents();
}

void ProgrammePilote::doubleClique(const QString &forme, const QString &nom)
{
    QApplication::processEvents();
    const QWidget *widget = controle(forme, nom);
    QTest::mouseDClick(widget->window()->windowHandle(), Qt::LeftButton, Qt::NoModifier, milieu(*widget));
    QApplication::processEvents();
}

void ProgrammePilote::verifieSansCopie(const std::function<void()> &acte, const QString &question)
{
    QFile obstacle(dossier() + u'/' + dossierSauvegardes);
    ASSERT_TRUE(obstacle.open(QIODevice::WriteOnly));
    partage().AvecCopies = true;
    const QStringList avant = Contenu(base().native());
    for (const ReponseBoite reponse : {ReponseBoite::Non, ReponseBoite::Oui}) {
        if (!question.isEmpty())
            boites.attend(question, ReponseBoite::Oui);
        boites.attend(u"La copie n'a pas pu être faite : le dossier sauvegardes ne peut pas être créé.\r\n"
                      u"Continuer sans elle ?"_qs,
                      reponse);
        acte();
        boites.verifie();
        EXPECT_EQ(boites.drapeaux(), vbYesNo | vbExclamation | vbDefaultButton2);
        EXPECT_EQ(Contenu(base().native()) == avant, reponse == ReponseBoite::Non);
    }
    partage().AvecCopies = false;
    EXPECT_TRUE(obstacle.remove());
}
