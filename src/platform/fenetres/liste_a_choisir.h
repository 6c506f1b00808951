#pragma once

#include <QDialog>

#include <optional>

class QPushButton;
class QTableView;
class QTableWidget;
struct BoiteListe;

/// The box that offers a list: a row is taken by its button, by Enter or by a double click.
class ListeAChoisir : public QDialog
{
    Q_OBJECT

public:
    ListeAChoisir(const BoiteListe &liste, QWidget *parent);

    /// Row that is chosen just now, counted from 0; nothing when none is.
    std::optional<int> choisie() const;

private:
    void remplit(const BoiteListe &liste);

    QTableWidget *m_lignes;
    QPushButton *m_accepter;
};

/// Makes \p table a list to choose a row from: whole rows, nothing to edit, heads as wide as their contents, rows high
/// enough for a finger.
void appreteListe(QTableView &table);

/// Puts \p textes into the cells of a row, from the first column on; numbers stand under each other.
void ecritLigne(QTableWidget &table, int ligne, const QStringList &textes);
