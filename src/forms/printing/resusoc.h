#pragma once

#include "fenetres/formulaire.h"

#include <memory>

namespace Ui {
class Resusoc;
}

/// Choice of the sheet of a team or of a club, after a match of the honours list.
class Resusoc : public Formulaire
{
    Q_OBJECT

public:
    Resusoc(const Contexte &contexte, QWidget *parent);
    ~Resusoc() override;

    void Form_Load() override;
    void Form_Resize() override { RedimForm(); }

    /// Offers the two teams of a match and their clubs. Each text is a team as grid \p tableau of the honours list has
    /// it: number, name, and the club in brackets at its end.
    void propose(int tableau, const QString &equipe1, const QString &equipe2);

private:
    void imprimer_Click();
    void LegendesResusoc();

    std::unique_ptr<Ui::Resusoc> m_ui;
};
