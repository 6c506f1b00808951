#pragma once

#include "outils/table_saison.h"

#include <QAbstractTableModel>
#include <QStyledItemDelegate>

/// A list of the season for a view of the toolkit.
class ModeleSaison : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit ModeleSaison(const Partage &partage)
        : m_partage(partage)
    {
    }

    void prend(TableSaison table);
    void trie(int colonne, Qt::SortOrder ordre);
    const TableSaison &table() const { return m_table; }
    QString texte(int ligne, int colonne) const;
    /// Matches of the row, and of those that were won, as parts of the most that a row has; 0 without bars.
    std::pair<double, double> barre(int ligne) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &place, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    const Partage &m_partage;
    TableSaison m_table;
    int m_plus = 0;
};

/// Paints the bar of a row in the column behind the others: the matches, and darker those that were won.
class BarreSaison : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *peintre, const QStyleOptionViewItem &style, const QModelIndex &place) const override;
    QSize sizeHint(const QStyleOptionViewItem &style, const QModelIndex &place) const override;
};
