#pragma once

#include <QAbstractTableModel>
#include <QColor>

#include <map>
#include <vector>

/// Order in which the rows of a grid are sorted: below 0, 0 or above 0. Blank cells come first, then numbers, then
/// texts in French order, without regard to case.
int CompareCellules(const QString &a, const QString &b);

/// Cells of a FlexGrid: texts, back colours, weight and column alignments. Rows are counted as the grid counts them,
/// the header being row 0; the view sees the others as its rows, and row 0 as its header.
///
/// A change of structure opens a model reset that stays open until publie(), so that filling thousands of rows costs
/// the view nothing until it is told once.
class FlexGridModele final : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// Rows and columns to sort by, the first and the last included.
    struct Tri
    {
        int premiereLigne;
        int derniereLigne;
        int premiereColonne;
        int derniereColonne;
        bool decroissant;
    };

    /// Back colour, in blue-green-red order, of a cell that has none of its own.
    static constexpr quint32 FondParDefaut = 0x80000005;

    explicit FlexGridModele(QObject *parent = nullptr);

    // Rows, the header included, and columns, at least 1 of each. They go and come at the end; new cells are empty.
    int lignes() const { return static_cast<int>(m_lignes.size()); }
    int colonnes() const { return m_colonnes; }
    void fixeLignes(int nombre);
    void fixeColonnes(int nombre);

    // Cells, whose row and column have to exist.
    QString texte(int ligne, int colonne) const { return m_lignes[size_t(ligne)][size_t(colonne)].texte; }
    void fixeTexte(int ligne, int colonne, const QString &texte);
    quint32 fond(int ligne, int colonne) const { return m_lignes[size_t(ligne)][size_t(colonne)].fond; }
    void fixeFond(int ligne, int colonne, quint32 fond);
    bool gras(int ligne, int colonne) const { return m_lignes[size_t(ligne)][size_t(colonne)].gras; }
    void fixeGras(int ligne, int colonne, bool gras);
    /// What screen readers say of a back colour, and in the place of a heading.
    void fixeSens(quint32 fond, const QString &sens) { m_sens[fond] = sens; }
    void fixeTitreLu(int colonne, const QString &titre) { m_titresLus[colonne] = titre; }
    /// Alignment of a column: '<', '^', '>', or a blank for texts to the left and numbers to the right.
    void fixeAlignement(int colonne, char16_t signe);

    /// Adds a last row, its cells taken from \p textes as far as there are columns.
    void ajoute(const QStringList &textes);
    /// Sorts rows by one column after the other; rows that compare equal keep their order.
    void trie(const Tri &tri);

    /// Whether the structure has changed since the view was last told.
    bool enAttente() const { return m_enAttente; }
    /// Tells the view of all changes since the last call.
    void publie();

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

Q_SIGNALS:
    /// The structure has changed: publie() is due.
    void structureChangee();

private:
    struct Cellule
    {
        QString texte;
        quint32 fond = FondParDefaut;
        bool gras = false;
    };
    using Ligne = std::vector<Cellule>;

    void ouvre();
    void annonceCellule(int ligne, int colonne, int role);
    Qt::Alignment alignement(int colonne, const QString &texte) const;

    std::vector<Ligne> m_lignes;
    std::vector<char16_t> m_alignements;
    std::map<quint32, QString> m_sens;
    std::map<int, QString> m_titresLus;
    int m_colonnes = 1;
    bool m_enAttente = false;
};

/// Colour of the screen for a colour \p bgr given in blue-green-red order.
QColor couleurEcran(quint32 bgr);
/// Black or white, whichever reads better on \p fond.
QColor encreSur(const QColor &fond);
