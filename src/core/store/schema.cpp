#include "store/schema.h"

namespace store {

const IndexTable *Table::indexNomme(QStringView cherche) const
{
    const auto trouve = index.constFind(cleNom(cherche));
    return trouve == index.constEnd() ? nullptr : &*trouve;
}

Schema::Schema(BaseNative &base)
{
    Instruction tables(base,
                       u"select name, sql from sqlite_master where type = 'table' and name not like 'sqlite*'"_qs);
    while (tables.avance()) {
        Table table;
        table.nom = tables.valeur(0).texte();
        const bool numerote = tables.valeur(1).texte().contains(u"autoincrement", Qt::CaseInsensitive);
        litChamps(base, table, numerote);
        litIndex(base, table);
        m_noms.append(table.nom);
        m_connus.insert(cleNom(table.nom), table.nom);
        m_tables.insert(cleNom(table.nom), table);
    }
    for (const Table &table : std::as_const(m_tables)) {
        for (const Champ &champ : table.champs) {
            if (!m_connus.contains(cleNom(champ.nom)))
                m_connus.insert(cleNom(champ.nom), champ.nom);
            m_types.insert(cleNom(champ.nom), champ.type);
        }
    }
}

const Table *Schema::table(QStringView nom) const
{
    const auto trouvee = m_tables.constFind(cleNom(nom));
    return trouvee == m_tables.constEnd() ? nullptr : &*trouvee;
}

void Schema::litChamps(BaseNative &base, Table &table, bool numerote)
{
    Instruction champs(base, u"pragma table_info([%1])"_qs.arg(table.nom));
    while (champs.avance()) {
        const Champ champ{champs.valeur(1).texte(), typeDeclare(champs.valeur(2).texte())};
        const bool estCle = champs.nombre(5) != 0;
        if (numerote && estCle)
            table.compteur = int(table.champs.size());
        table.places.insert(cleNom(champ.nom), int(table.champs.size()));
        table.champs.push_back(champ);
    }
}

void Schema::litIndex(BaseNative &base, Table &table)
{
    const QString prefixe = table.nom + u'.';
    Instruction liste(base, u"pragma index_list([%1])"_qs.arg(table.nom));
    while (liste.avance()) {
        const QString physique = liste.valeur(1).texte();
        if (!physique.startsWith(prefixe, Qt::CaseInsensitive))
            continue;
        IndexTable index{physique.mid(prefixe.size()), {}};
        Instruction cles(base, u"pragma index_xinfo([%1])"_qs.arg(physique));
        while (cles.avance()) {
            const bool estCle = cles.nombre(5) != 0;
            if (estCle)
                index.cles.push_back({int(cles.nombre(1)), cles.nombre(3) != 0});
        }
        table.index.insert(cleNom(index.nom), index);
    }
}

} // namespace store
