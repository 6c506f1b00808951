#pragma once

#include "store/database.h"

#include <functional>
#include <vector>

class QIODevice;

/// A column of a staging table, and how a list from elsewhere may name it.
struct ColonneImportee
{
    QString champ;
    /// Names of the column in the lists, the surest first; capitals, accents, blanks and signs play no part in them.
    QStringList titres;
    /// What is stored for a text of the list.
    store::Valeur (*lit)(const QString &texte);
};

/// A staging table that is filled wholesale from a delimited text beside the program.
struct TableImportee
{
    QString table;
    QString fichier;
    std::vector<ColonneImportee> colonnes; ///< A list without the first one is none of this table.
};

/// `joueurs` from joueurs.txt: the columns nom, prenom, licence, societe, sexe and ne in any order, under the names
/// that the federations' exports give them. The sex becomes M or F, the date of birth a date; a date that is none
/// stays Null.
const TableImportee &TableJoueurs();

/// `clubs` from clubs.txt: the columns societe (the club's name) and codesoc.
const TableImportee &TableClubs();

/// Adds the rows of the list \p source to \p importee.table, all of them or, when an error cuts the reading or the
/// writing short, none; gives their number. \p progres is told now and then how many have been read. Throws
/// ErreurLecture and store::Erreur.
qint64 ImporteTable(store::Database &base, const TableImportee &importee, QIODevice &source,
                    const std::function<void(qint64 lignes)> &progres);
