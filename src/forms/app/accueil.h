#pragma once

#include "fenetres/formulaire.h"

#include <memory>

namespace Ui {
class Accueil;
}

/// The welcome window.
class Accueil : public Formulaire
{
    Q_OBJECT

public:
    Accueil(const Contexte &contexte, QWidget *parent);
    ~Accueil() override;

    void Form_Load() override;
    void Form_Resize() override { RedimForm(); }

private:
    void LegendesAccueil();

    std::unique_ptr<Ui::Accueil> m_ui;
};
