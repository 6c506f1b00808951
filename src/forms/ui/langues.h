#pragma once

#include "fenetres/formulaire.h"

#include <memory>

namespace Ui {
class langues;
}

/// Choice of the language. Forms that are open keep their texts until they are loaded again.
class langues : public Formulaire
{
    Q_OBJECT

public:
    langues(const Contexte &contexte, QWidget *parent);
    ~langues() override;

    void Form_Load() override;

Q_SIGNALS:
    /// Another language has been loaded: the main window takes its texts.
    void langueChargee();

private:
    void Qlang_Click();

    void LegendesLangues();
    /// Marks the language \p designation as active, then the one shown so far as inactive. Gives its number, nothing
    /// when the base has no such language.
    std::optional<qint16> activeLangue(const QString &designation);

    std::unique_ptr<Ui::langues> m_ui;
};
