#pragma once

#include "fenetres/formulaire.h"
#include "fenetres/patience.h"
#include "grille/flexgrid.h"

#include <initializer_list>
#include <vector>

/// A window that lists rows of the store in one grid. It is filled anew each time it is activated; a right click on a
/// column sorts by it, the other way at the next one.
class FormeListe : public Formulaire
{
    Q_OBJECT

public:
    using Formulaire::Formulaire;

    void Form_Resize() override { RedimForm(); }

protected:
    /// \p traitement gets the button and the row (0 for the heading, -1 below the last row) of a click in the grid.
    void prendGrille(FlexGrid *grille, const std::function<void(int bouton, int ligne)> &traitement);

    /// Fills the grid with what \p lignes adds. It goes on showing what it showed until that is done, and then shows
    /// the new rows in the order and at the place in which the operator left the old ones: a click in a list that it
    /// first has to bring to the front falls on the row that was seen there.
    void remplit(const QString &format, const std::function<void()> &lignes);
    void ajoute(std::initializer_list<QString> cellules);

    /// Sorts by the column of the last click.
    void trieParColonne();
    /// From now on the rows stand in the order of the store again.
    void oublieTris() { m_tris.clear(); }

    /// \p titre followed by blanks, or cut, to \p largeur columns.
    static QString complete(const QString &titre, int largeur) { return titre.leftJustified(largeur, u' ', true); }

private:
    struct Tri
    {
        int colonne;
        FlexGrid::Ordre ordre;
    };
    void applique(const Tri &tri);
    void elargitNumeros();

    FlexGrid *m_grille = nullptr;
    std::optional<PatienceTardive> m_patience;
    std::vector<Tri> m_tris;
};
