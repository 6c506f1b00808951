#pragma once

#include "engine/saison.h"

#include <QCoreApplication>
#include <QVariant>

struct Partage;

/// What of a season is shown.
enum class VueSaison { Clubs, Licences, Concours };

/// A list of the season: texts, whole numbers, dates, and nothing where there is none.
struct TableSaison
{
    QStringList entetes = {};
    std::vector<std::vector<QVariant>> lignes = {};
    /// Columns that a bar is made of, those of the matches and of the matches won among them; -1 without bars.
    int parties = -1;
    int gagnees = -1;
    int place = -1; ///< The column of the best places; -1 without one.

    int colonnes() const { return int(entetes.size()); }
    /// Whether all that the column holds are numbers.
    bool estNombre(int colonne) const;
    /// Order that a first sort by the column gives: texts, dates and places from the first, numbers from the greatest.
    Qt::SortOrder premierOrdre(int colonne) const;
    /// Sorts by a column; rows without a value come last, equal rows keep their order.
    void trie(int colonne, Qt::SortOrder ordre);
};

/// The words of the season, in the language of the program.
class MotsSaison
{
    Q_DECLARE_TR_FUNCTIONS(MotsSaison)

public:
    static TableSaison table(const Saison &saison, VueSaison vue);
    /// Numbers of the season in one phrase.
    static QString resume(const Saison &saison);
    /// A cell as it is shown, printed and copied.
    static QString texte(const Partage &partage, const QVariant &valeur);
};

/// Text of a table for the clipboard: tabs between the cells, a row a line.
QString TexteTabule(const QStringList &entetes, const std::vector<QStringList> &lignes);

/// Text of a table that every spreadsheet reads: UTF-8 with its mark, semicolons, quoted where need be. A text that a
/// spreadsheet would take for a formula gets an apostrophe.
QByteArray FichierCsv(const QStringList &entetes, const std::vector<QStringList> &lignes);
