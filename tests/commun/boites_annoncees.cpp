#include "commun/boites_annoncees.h"

#include "commun/affiche.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>

#include <utility>

BoitesAnnoncees::~BoitesAnnoncees()
{
    verifie();
}

void BoitesAnnoncees::attend(const QString &partie, ReponseBoite reponse, const QString &titre)
{
    m_attendues.push_back({partie, reponse, titre});
}

void BoitesAnnoncees::verifie()
{
    for (const Attendue &attendue : std::exchange(m_attendues, {}))
        ADD_FAILURE() << "This box has not come: " << attendue.partie.toStdString();
}

ReponseBoite BoitesAnnoncees::MsgBox(const QString &texte, int drapeaux, const QString &titre)
{
    compte();
    derniersDrapeaux = drapeaux;
    if (m_muette)
        return ReponseBoite::OK;
    if (m_attendues.empty()) {
        ADD_FAILURE() << "A box that nobody announced: " << texte.toStdString();
        return ReponseBoite::OK;
    }
    const Attendue attendue = m_attendues.front();
    m_attendues.pop_front();
    EXPECT_TRUE(texte.contains(attendue.partie)) << texte.toStdString() << "\ninstead of "
                                                 << attendue.partie.toStdString();
    EXPECT_TRUE(attendue.titre.isEmpty() || titre == attendue.titre) << titre.toStdString();
    const QPointer<QWidget> fenetre = QApplication::activeWindow();
    QMessageBox boite(QMessageBox::NoIcon, titre, texte, QMessageBox::Ok, fenetre);
    QTimer::singleShot(0, &boite, &QDialog::accept);
    boite.exec();
    // Without a desktop nobody but the test hands the front back to the window behind the box.
    if (fenetre != nullptr)
        fenetre->activateWindow();
    return attendue.reponse;
}

std::optional<QString> BoitesAnnoncees::InputBox(const QString &texte, const QString &)
{
    ADD_FAILURE() << "An input box that nobody announced: " << texte.toStdString();
    return std::nullopt;
}
