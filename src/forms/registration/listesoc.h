#pragma once

#include "fenetres/formulaire.h"

#include <memory>

namespace Ui {
class Listesoc;
}

/// Side panel of the clubs: finds a club by its first letters, hands it to the form that asked for one, and deletes it.
class Listesoc : public Formulaire
{
    Q_OBJECT

public:
    Listesoc(const Contexte &contexte, QWidget *parent);
    ~Listesoc() override;

    std::vector<Infobulle> infobulles() const override;
    void Form_Load() override;
    void Form_Resize() override { RedimForm(); }

private:
    /// A key typed in the grid, by the code of its character.
    void Liste_soc_KeyPress(int KeyAscii);
    void Liste_soc_MouseUp(int Button, int Shift);
    void Command1_Click();
    void Command2_Click();
    void Recherche_Change();

    void LegendesListesoc();
    void relie();
    /// Moves the highlight to a row; 0 takes it away.
    void eclaire(int ligne);
    /// First club that begins with \p debut or comes behind it in order; 0 when there is none.
    int chercheClub(const QString &debut) const;
    void retireLigne(int ligne);
    void donneClub(const QString &club);
    void filtreJoueurs(const QString &club);

    std::unique_ptr<Ui::Listesoc> m_ui;
    qint16 m_ligneEclairee = 0;
};
