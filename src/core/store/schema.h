#pragma once

#include "store/base_native.h"

#include <QHash>
#include <QStringList>

#include <vector>

namespace store {

/// Key under which names are compared: case plays no part, accents included.
inline QString cleNom(QStringView nom)
{
    return nom.toString().toCaseFolded();
}

struct Champ
{
    QString nom;
    TypeChamp type = TypeChamp::Libre;
};

/// One field of an index.
struct CleIndex
{
    int champ = 0;
    bool descendant = false;
};

struct IndexTable
{
    QString nom;
    std::vector<CleIndex> cles;
};

/// What the file says of one table.
struct Table
{
    QString nom;
    std::vector<Champ> champs;
    QHash<QString, int> places;
    QHash<QString, IndexTable> index;
    /// Place of the field whose numbers the store gives out, -1 when there is none.
    int compteur = -1;

    /// Place of the field \p cherche, -1 when the table has none.
    int champ(QStringView cherche) const { return places.value(cleNom(cherche), -1); }
    /// Index of that name, null when the table has none.
    const IndexTable *indexNomme(QStringView cherche) const;
};

/// Tables, fields and indexes of an open file, read once. An index `X` of a table `T` stands in the file as "T.X".
class Schema
{
public:
    explicit Schema(BaseNative &base);

    /// Table of that name, null when there is none.
    const Table *table(QStringView nom) const;
    /// Names of the tables, in the order of the file.
    QStringList tables() const { return m_noms; }
    /// Table or field of that name as the file spells it, empty when there is none.
    QString nomConnu(QStringView nom) const { return m_connus.value(cleNom(nom)); }
    /// Type of the fields of that name; Libre when there is none.
    TypeChamp typeDuNom(QStringView nom) const { return m_types.value(cleNom(nom), TypeChamp::Libre); }

private:
    void litChamps(BaseNative &base, Table &table, bool numerote);
    void litIndex(BaseNative &base, Table &table);

    QHash<QString, Table> m_tables;
    QStringList m_noms;
    QHash<QString, QString> m_connus;
    QHash<QString, TypeChamp> m_types;
};

} // namespace store
