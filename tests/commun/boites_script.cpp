#include "commun/boites_script.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>

namespace {

/// Shows a box for a moment. Without a desktop nobody but the test hands the front back to the window behind it.
void montreUnInstant(const QString &texte, const QString &titre)
{
    const QPointer<QWidget> fenetre = QApplication::activeWindow();
    QMessageBox boite(QMessageBox::NoIcon, titre, texte, QMessageBox::Ok, fenetre);
    QTimer::singleShot(0, &boite, &QDialog::accept);
    boite.exec();
    if (fenetre != nullptr)
        fenetre->activateWindow();
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace

BoitesScript::~BoitesScript()
{
    verifie();
}

void BoitesScript::attend(const QString &partie, ReponseBoite reponse, const QString &titre)
{
    m_attendues.push_back({.partie = partie, .reponse = reponse, .titre = titre});
}

void BoitesScript::attendSaisie(const QString &partie, const std::optional<QString> &saisie)
{
    m_attendues.push_back({.partie = partie, .genre = Genre::Saisie, .texteSaisi = saisie});
}

void BoitesScript::attendFichier(const QString &titre, const std::optional<QString> &fichier)
{
    m_attendues.push_back({.partie = {}, .titre = titre, .genre = Genre::Fichier, .texteSaisi = fichier});
}

void BoitesScript::attendChoix(const QString &partie, std::optional<int> ligne)
{
    m_attendues.push_back({.partie = partie, .genre = Genre::Liste, .ligne = ligne});
}

void BoitesScript::verifie()
{
    for (const Attendue &attendue : m_attendues)
        ADD_FAILURE() << "box never shown: " << attendue.partie.toStdString();
    m_attendues.clear();
}

std::optional<BoitesScript::Attendue> BoitesScript::suivante(const QString &texte, const QString &titre, Genre genre)
{
    compte();
    m_textes += texte;
    m_titre = titre;
    if (m_attendues.empty()) {
        ADD_FAILURE() << "unexpected box: " << texte.toStdString();
        return std::nullopt;
    }
    const Attendue attendue = m_attendues.front();
    m_attendues.pop_front();
    EXPECT_EQ(attendue.genre, genre) << texte.toStdString();
    EXPECT_TRUE(attendue.titre.isEmpty() || titre == attendue.titre) << titre.toStdString();
    EXPECT_TRUE(texte.contains(attendue.partie))
        << "expected: " << attendue.partie.toStdString() << "\nshown: " << texte.toStdString();
    return attendue;
}

ReponseBoite BoitesScript::MsgBox(const QString &texte, int drapeaux, const QString &titre)
{
    m_drapeaux = drapeaux;
    const int boutons = BoutonsBoite(drapeaux);
    const bool question = boutons == vbYesNo || boutons == vbYesNoCancel;
    if (m_muette) {
        compte();
        return question ? m_reponseMuette : ReponseBoite::OK;
    }
    montreUnInstant(texte, titre);
    const std::optional<Attendue> attendue = suivante(texte, titre, Genre::Message);
    if (!attendue)
        return question ? ReponseBoite::Non : ReponseBoite::OK;
    EXPECT_EQ(question, attendue->reponse != ReponseBoite::OK) << "no such button: " << texte.toStdString();
    EXPECT_TRUE(attendue->reponse != ReponseBoite::Annuler || boutons == vbYesNoCancel) << texte.toStdString();
    return attendue->reponse;
}

std::optional<QString> BoitesScript::InputBox(const QString &texte, const QString &titre, std::optional<QPoint> coin)
{
    m_coin = coin;
    if (m_muette)
        return m_saisieMuette;
    const std::optional<Attendue> attendue = suivante(texte, titre, Genre::Saisie);
    return attendue ? attendue->texteSaisi : std::nullopt;
}

QString BoitesScript::ShowOpen(const BoiteFichier &dialogue)
{
    if (m_muette)
        return dialogue.FileName;
    const std::optional<Attendue> attendue = suivante(dialogue.FileName, dialogue.DialogTitle, Genre::Fichier);
    return attendue && attendue->texteSaisi ? *attendue->texteSaisi : dialogue.FileName;
}

QString BoitesScript::ShowSave(const BoiteFichier &dialogue)
{
    if (m_muette)
        return {};
    const std::optional<Attendue> attendue = suivante(dialogue.FileName, dialogue.DialogTitle, Genre::Fichier);
    return attendue ? attendue->texteSaisi.value_or(QString()) : QString();
}

std::optional<int> BoitesScript::Choisit(const BoiteListe &liste)
{
    m_lignes = liste.Lignes;
    if (m_muette)
        return std::nullopt;
    const std::optional<Attendue> attendue = suivante(liste.Texte, {}, Genre::Liste);
    return attendue ? attendue->ligne : std::nullopt;
}
