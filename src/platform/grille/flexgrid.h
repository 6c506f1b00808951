#pragma once

#include "grille/flexgridmodele.h"

#include <QTableView>

#include <vector>

/// Grid of texts with one fixed header row, for the lists and result views. The header is row 0 and counts in Rows and
/// Row. Widths and heights are in twips (15 to the pixel), colours are whole numbers in blue-green-red order.
///
/// Rows and columns that do not exist are a fault of the caller: asserted, and passed over in a release build.
/// Changes show when the program next returns to its event loop, all at once.
///
/// Enter is a click on the end of the selection, and the menu key (or Shift and F10) a right click there.
class FlexGrid : public QTableView
{
    Q_OBJECT

public:
    /// What setSort() takes.
    enum Ordre { GeneriqueCroissant = 1, GeneriqueDecroissant };
    /// Back colour of a cell that has none of its own; setting it takes a cell's colour away.
    static constexpr quint32 FondFenetre = FlexGridModele::FondParDefaut;

    explicit FlexGrid(QWidget *parent = nullptr);

    /// Number of rows, the header included; at least 1.
    int Rows() const { return m_modele->lignes(); }
    /// Rows go and come at the end; new ones are empty.
    void setRows(int nombre);
    /// Number of columns; at least 1.
    int Cols() const { return m_modele->colonnes(); }
    /// Columns go and come on the right.
    void setCols(int nombre);

    /// Current cell, counted from 0 at the header and the first column; a place outside the grid is passed
    /// over. Setting its row or its column makes it the whole selection.
    int Row() const { return m_row; }
    void setRow(int ligne);
    int Col() const { return m_col; }
    void setCol(int colonne);
    /// Far end of the selection, which starts at the current cell; it may lie above it or to its left.
    int RowSel() const { return m_rowSel; }
    void setRowSel(int ligne);
    int ColSel() const { return m_colSel; }
    void setColSel(int colonne);

    /// Text of the current cell.
    QString Text() const { return TextMatrix(m_row, m_col); }
    void setText(const QString &texte) { setTextMatrix(m_row, m_col, texte); }
    /// Text of any cell; the selection stays.
    QString TextMatrix(int ligne, int colonne) const;
    void setTextMatrix(int ligne, int colonne, const QString &texte);

    /// Adds a last row whose cells stand in \p texte, separated by tabulators.
    void AddItem(const QString &texte);

    /// Headings separated by |, each led by its column's alignment (<, ^ or >; without one, texts stand left and
    /// numbers right). A column becomes as wide as its heading, in which a blank counts as a digit's width. There are
    /// then at least as many columns as headings. An empty text changes nothing.
    void setFormatString(const QString &format);
    QString FormatString() const { return m_format; }

    /// Width of a column in twips.
    int ColWidth(int colonne) const;
    void setColWidth(int colonne, int twips);
    /// Whether a column is shown at least as wide as its heading, whatever ColWidth() says.
    void setTitresEntiers(bool entiers);
    /// Width in pixels that a column has on the screen, unless it is the last one and takes what is left.
    int LargeurAffichee(int colonne);

    /// Back colour of the current cell, FondFenetre when it has none of its own. The header shows none.
    quint32 CellBackColor() const { return m_modele->fond(m_row, m_col); }
    void setCellBackColor(quint32 bgr) { setCellBackColor(m_row, m_col, bgr); }
    /// Back colour of any cell; the selection stays.
    quint32 CellBackColor(int ligne, int colonne) const;
    void setCellBackColor(int ligne, int colonne, quint32 bgr);
    /// A colour from its parts, 0 to 255.
    static constexpr quint32 Couleur(quint32 rouge, quint32 vert, quint32 bleu)
    {
        return rouge | vert << 8 | bleu << 16;
    }

    /// Whether a cell stands in bold; the selection stays.
    bool CellFontBold(int ligne, int colonne) const;
    void setCellFontBold(int ligne, int colonne, bool gras);
    /// What a back colour tells, for whoever has the grid read aloud.
    void setSensCouleur(quint32 bgr, const QString &sens) { m_modele->fixeSens(bgr, sens); }
    /// Heading of a column as it is read aloud, where the one shown is blank or cut short.
    void setTitreLu(int colonne, const QString &titre) { m_modele->fixeTitreLu(colonne, titre); }
    /// Width in twips of a column that shows \p texte whole.
    int LargeurTexte(const QString &texte, bool gras = false) const;

    /// Sorts by the selected columns, from left to right, the selected rows, or all of them when only one is selected.
    /// The order of two cells is CompareCellules().
    void setSort(Ordre ordre);

    /// First row below the header that is on screen.
    int TopRow() const;
    /// Scrolls so that \p ligne comes first, as far as the rows below it fill the grid.
    void setTopRow(int ligne);

    /// Column under the pointer at its last move or click in the grid, -1 outside all columns.
    int MouseCol() const { return m_mouseCol; }

    /// While false, the grid goes on showing what it showed.
    void setRedraw(bool montre);

Q_SIGNALS:
    /// A button has been pressed, and the selection has followed when it was the left one. Row and column are those
    /// under the pointer: row 0 on the header, -1 outside all rows or columns.
    void mousePresse(Qt::MouseButton bouton, Qt::KeyboardModifiers touches, int ligne, int colonne);
    /// The same when the button is let go.
    void mouseRelache(Qt::MouseButton bouton, Qt::KeyboardModifiers touches, int ligne, int colonne);
    /// A key has been pressed; keys that move the selection have moved it.
    void touche(QKeyEvent *evenement);

protected:
    bool viewportEvent(QEvent *evenement) override;
    bool eventFilter(QObject *objet, QEvent *evenement) override;
    void mousePressEvent(QMouseEvent *evenement) override;
    void mouseMoveEvent(QMouseEvent *evenement) override;
    void mouseReleaseEvent(QMouseEvent *evenement) override;
    void mouseDoubleClickEvent(QMouseEvent *evenement) override;
    void keyPressEvent(QKeyEvent *evenement) override;
    void keyboardSearch(const QString &) override {}

private:
    bool existe(int ligne, int colonne) const;
    void choisit(int ligne, int colonne);
    void etend(int ligne, int colonne);
    void borneSelection();
    void marque();
    void synchronise();
    void montreSelection();
    void appliqueLargeurs();
    int largeurVoulue(int colonne) const;
    void noteSouris(const QPoint &point);
    void suitBoutonGauche(const QMouseEvent &evenement);
    void clicAuClavier(const QKeyEvent &evenement);

    FlexGridModele *m_modele;
    QString m_format;
    std::vector<int> m_largeurs; // twips
    bool m_titresEntiers = false;
    int m_row = 0;
    int m_col = 0;
    int m_rowSel = 0;
    int m_colSel = 0;
    int m_mouseRow = -1;
    int m_mouseCol = -1;
    bool m_redraw = true;
    bool m_aMontrer = false;
    bool m_prevu = false;
    bool m_glisse = false;
};
