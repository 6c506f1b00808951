#include "commun/contenu.h"

QStringList Contenu(store::BaseNative &base, const QString &sauf)
{
    QStringList tables;
    store::Instruction noms(base, u"select name from main.sqlite_master where type = 'table' order by name"_qs);
    while (noms.avance())
        tables += noms.valeur(0).texte();
    QStringList lignes;
    tables.removeOne(sauf);
    for (const QString &table : std::as_const(tables)) {
        store::Instruction lecture(base, u"select * from main.[%1] order by rowid"_qs.arg(table));
        while (lecture.avance()) {
            QString ligne = table;
            for (int i = 0; i < lecture.colonnes(); ++i)
                ligne += u'|' + (lecture.estNulle(i) ? u"Null"_qs : lecture.valeur(i).texte());
            lignes += ligne;
        }
    }
    return lignes;
}
