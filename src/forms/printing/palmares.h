#pragma once

#include "fenetres/formulaire.h"

#include <memory>
#include <optional>

class FlexGrid;

namespace Ui {
class palmares;
}

/// Honours list of the current competition: every match of every round as a sentence. A right click shows or hides the
/// names of players, Ctrl and a click on a sentence leads to the sheets of its teams and clubs.
///
/// What the grid shows is also what is printed and what the sheets are told: they read the sentences.
class palmares : public Formulaire
{
    Q_OBJECT

public:
    palmares(const Contexte &contexte, QWidget *parent);
    ~palmares() override;

    std::vector<Infobulle> infobulles() const override;
    void Form_Load() override;
    /// Builds the list anew, of the current competition and without names; what was offered of the old one goes.
    void Rafraichir() override;
    void Form_MouseDown(int bouton, int maj, int x, int y) override;
    /// Whether teams bear names in the list.
    bool avecNoms() const { return m_avecNoms != 0; }

private:
    void imprimer_Click();
    void LegendesPalmares();
    void Thonneur_MouseDown(int Index, int Button, int Shift);
    void Thonneur_KeyDown(int Index, int KeyCode);

    void charge();
    FlexGrid &Thonneur(int Index) const;
    qint64 rencontres(int tour, std::optional<int> tableau = std::nullopt) const;
    void prepareGrille(FlexGrid &grille) const;
    void ajouteTour(FlexGrid &grille, int tour);
    void reconstruit(int Index);
    void montreFeuilles(int Index);
    void elargit(FlexGrid &grille);
    void fixeLargeur(int interieure);
    void disAucuneRencontre();
    bool imprimeZone(const FlexGrid &grille) const;

    std::unique_ptr<Ui::palmares> m_ui;
    qint16 m_avecNoms = 0;
};
