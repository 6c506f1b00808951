#pragma once

#include "registration/forme_liste.h"

#include <memory>

namespace Ui {
class Listco;
}

/// All competitions.
class Listco : public FormeListe
{
    Q_OBJECT

public:
    Listco(const Contexte &contexte, QWidget *parent);
    ~Listco() override;

    void Form_Load() override;

private:
    void LegendesListco();
    QString format() const;

    std::unique_ptr<Ui::Listco> m_ui;
};
