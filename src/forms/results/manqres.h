#pragma once

#include "results/vue_resultats.h"

#include <memory>

class FlexGrid;

namespace Ui {
class manqres;
}

/// The pending matches or, in their place, the overall ranking. `Groupes` comes and goes with it.
class manqres : public VueResultats
{
    Q_OBJECT

public:
    manqres(const Contexte &contexte, QWidget *parent);
    ~manqres() override;

    std::vector<Infobulle> infobulles() const override;
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Resize() override { RedimForm(); }
    void Form_Unload() override;
    void Rafraichir() override;

    void LegendesManqres();
    /// Grid 0 has the pending matches, grid 1 the ranking.
    FlexGrid &grille(int index) const;
    /// Shows in \p ligne of the pending matches whether the match has been called to its ground.
    static void marqueLancee(FlexGrid &grille, int ligne, bool lancee);

protected:
    void placePres(const Formulaire &saisie) override;
    void quitteEcran() override;

private:
    /// A press in grid \p Index, row \p ligne (0 for the heading, -1 below the last row), column \p colonne.
    void les_resultats_MouseDown(int Index, int Button, int ligne, int colonne);
    void classement_Click();

    void montreAttendus(bool attendus);
    void basculeLancee(int Index, int ligne);
    void montreDetail(const QString &equipe);

    std::unique_ptr<Ui::manqres> m_ui;
};
