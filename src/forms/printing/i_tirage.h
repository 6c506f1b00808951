#pragma once

#include "fenetres/formulaire.h"

#include <memory>
#include <optional>

namespace Ui {
class I_tirage;
}

/// Dialog of the sheets to post: the draws of one or several rounds, or the ranking.
class I_tirage : public Formulaire
{
    Q_OBJECT

public:
    I_tirage(const Contexte &contexte, QWidget *parent);
    ~I_tirage() override;

    std::vector<Infobulle> infobulles() const override;
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;

private:
    void Option1_Click();
    void Option3_Click();
    void Imprime_Click();
    void Label3_Click();
    void sortie_Click();

    struct Intervalle
    {
        int premier;
        int dernier;
    };

    void effaceChoix();
    void toucheDuDialogue(const QWidget &controle, int KeyCode);
    void imprimeTirages();
    void imprimeClassement();
    std::optional<Intervalle> toursDemandes() const;
    QString etatDuConcours() const;

    std::unique_ptr<Ui::I_tirage> m_ui;
};
