#pragma once

#include "results/vue_resultats.h"

#include <memory>

class FlexGrid;
class QLineEdit;

namespace Ui {
class valresu;
}

/// The played results; a click takes a match back into the entry form for correction.
class valresu : public VueResultats
{
    Q_OBJECT

public:
    valresu(const Contexte &contexte, QWidget *parent);
    ~valresu() override;

    std::vector<Infobulle> infobulles() const override;
    void Form_Load() override;
    void Form_Activate() override;
    void Rafraichir() override;

    void LegendesValresu();
    FlexGrid &grille() const;
    /// Makes grid and form as wide as the columns.
    void ajusteLargeur();

protected:
    void placePres(const Formulaire &saisie) override;

private:
    /// A press in row \p ligne, 0 for the heading and -1 below the last row, and column \p colonne.
    void les_resultats_MouseDown(int Button, int ligne, int colonne);

    void recopie(int ligne);
    void recopieEquipe(QLineEdit &equipe, int ligne, int colonne);
    void trie(int colonne);

    std::unique_ptr<Ui::valresu> m_ui;
};
