#pragma once

#include "results/vue_resultats.h"

#include <memory>
#include <vector>

class FlexGrid;

namespace Ui {
class Groupes;
}

/// The ranking under one tab for each number of matches won. Tabs are counted from 1, which is for none won.
class Groupes : public VueResultats
{
    Q_OBJECT

public:
    /// Distance of the form from the top of the screen, in twips.
    static constexpr int haut = 50;

    Groupes(const Contexte &contexte, QWidget *parent);
    ~Groupes() override;

    std::vector<Infobulle> infobulles() const override;
    void Form_Load() override;
    void Form_Activate() override { placeForme(); }

    int onglets() const;
    /// Adds the tabs that are missing, each with its grid, and takes away those above \p nombre.
    void fixeOnglets(int nombre);
    void legende(int onglet, const QString &texte);
    /// Selects a tab and shows its grid.
    void choisit(int onglet);
    /// Grid of a tab, from 1 to onglets().
    FlexGrid &grille(int onglet) const { return *m_grilles[std::size_t(onglet)]; }

protected:
    void placePres(const Formulaire &saisie) override;

private:
    void TabStrip1_Click();

    FlexGrid *chargeGrille();
    void placeGrille(FlexGrid &grille) const;
    void prepareGrille(FlexGrid &grille) const;

    std::unique_ptr<Ui::Groupes> m_ui;
    std::vector<FlexGrid *> m_grilles; ///< The array `les_resultats`, its pattern first.
};
