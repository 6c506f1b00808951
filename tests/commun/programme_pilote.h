#pragma once

// What the tests of windows need, all of it: their own includes tell what each is about.
#include "commun/concours_en_base.h"
#include "commun/contenu.h"
#include "commun/fichiers_essai.h"
#include "commun/partage_essai.h"
#include "fenetres/formulaires.h"
#include "grille/flexgrid.h"
#include "papier/imprimante.h"
#include "pilote/boites_pilotees.h"
#include "pilote/gestes.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

/// Boxes that fail the test when one comes that was not awaited, or one that was has not come by its end.
class BoitesEssai final : public pilote::BoitesPilotees
{
public:
    BoitesEssai() = default;
    ~BoitesEssai() override { verifie(); }
    Q_DISABLE_COPY_MOVE(BoitesEssai)

private:
    void signale(const QString &phrase) override { ADD_FAILURE() << phrase.toStdString(); }
};

/// The whole program on a fresh base of its own, driven by keys and clicks as an operator drives it.
class ProgrammePilote : public pilote::Gestes
{
public:
    /// \p graine fixes the draws. The program is not started yet.
    explicit ProgrammePilote(quint32 graine = 1);
    ~ProgrammePilote() override;

    /// Safety copies are made from the next start on; without them a test is quicker.
    void avecCopies() { m_copies = true; }
    /// Starts the program, again after termine(); what Programme::demarre() gives.
    bool demarre();
    void termine();

    QString fichier() const { return m_dossier.filePath(u"VarloBase.mdb"_qs); }
    QString dossier() const { return m_dossier.path(); }
    Partage &partage() { return m_programme->partage(); }
    Formulaires &formulaires() { return m_programme->formulaires(); }
    Programme &programme() { return *m_programme; }
    store::Database &base() { return partage().BaseDonnees; }
    QWidget *torvik() const;
    /// First column of the first row of a statement.
    store::Valeur valeur(const QString &sql) { return base().native().valeurUnique(sql); }

    /// Texts of the controls \p noms, which blanks part, joined by bars.
    QString textes(const QString &forme, const QString &noms) const;
    void clique(const QString &forme, const QString &nom);
    /// Press, release, second press and release, as they come from a mouse.
    void doubleClique(const QString &forme, const QString &nom);
    /// Where no copy can be made, \p acte, behind its own \p question if it has one, asks whether to go on: No leaves
    /// the file as it was, Yes changes it.
    void verifieSansCopie(const std::function<void()> &acte, const QString &question = {});
    /// Unloads a form and lets its window go with it. Unloaded outside every event loop, a window would last until the
    /// next form runs one while it comes up, which then loses the window whose focus it takes.
    void decharge(NomForme nom);
    /// Opens a family of forms from the main window, by its button.
    void ouvre(const QString &bouton) { clique({}, bouton); }

    BoitesEssai boites;
    AleaFixe alea;
    HorlogeArretee horloge;

private:
    Programme &programmeTenu() const override { return *m_programme; }

    QTemporaryDir m_dossier;
    bool m_copies = false;
    std::unique_ptr<Programme> m_programme;
};
