#pragma once

#include "fenetres/formulaire.h"
#include "fenetres/garde_base.h"

#include <QMainWindow>

#include <memory>

namespace Ui {
class Torvik;
}

/// The main window: it owns the open database, stands behind all forms for the whole run, and opens them by family.
class Torvik : public QMainWindow
{
    Q_OBJECT

public:
    explicit Torvik(const Contexte &contexte);
    ~Torvik() override;

    /// Opens the base, loads the language, and shows the welcome window. Throws when the base or the icon of the
    /// language cannot be read: the program has nothing to go on with then.
    void Form_Load();
    /// What of the window lies below its menus and buttons.
    QWidget *fond() const;
    /// The session may end now: what has been entered goes into the file of the base.
    void seanceFinit();

protected:
    void mousePressEvent(QMouseEvent *evenement) override;
    void closeEvent(QCloseEvent *evenement) override;

private:
    /// Puts the texts and the icon of the active language on the window.
    void LegendesTorvik();
    void langueChangee();
    void f_accueil_Click();
    void f_concours_Click();
    void f_equipes_Click();
    void f_resultats_Click();
    void mnu_joueurs_Click();
    void traduction_Click();
    void chrono_Click();

    void relie();
    void surClick(QAction *action, void (Torvik::*traitement)());
    void surClick(QAction *action, void (*traitement)(const Contexte &));
    void metEnService();
    void copieDeDepart();
    void Form_Click();
    void Form_Unload();

    Contexte m_contexte;
    std::unique_ptr<Ui::Torvik> m_ui;
    std::unique_ptr<GardeBase> m_garde;
    bool m_dechargee = false;
};
