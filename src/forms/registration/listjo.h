#pragma once

#include "registration/forme_liste.h"

#include <memory>

namespace Ui {
class listjo;
}

/// The known players. A click on one of them types into the form that opened the list: the licence into the first free
/// line of a team, or the number into the form of the known players.
class listjo : public FormeListe
{
    Q_OBJECT

public:
    listjo(const Contexte &contexte, QWidget *parent);
    ~listjo() override;

    std::vector<Infobulle> infobulles() const override;
    void Form_Load() override;
    void Form_Activate() override;
    void Rafraichir() override { Rafraichir_Click(); }

private:
    void Les_équipes_MouseUp(int Button, int ligne);
    void imprimer_Click();
    void LegendesListjo();
    void Rafraichir_Click();

    QString format() const;
    /// Club whose players alone are listed; empty for all.
    QString clubRetenu() const;
    void donneLicence(Formulaire &equipes, int ligne);
    void donneNumero(Formulaire &joueurs, int ligne);

    std::unique_ptr<Ui::listjo> m_ui;
};
