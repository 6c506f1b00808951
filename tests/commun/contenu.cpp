#include "commun/contenu.h"

QStringList Lignes(store::BaseNative &base, const QString &sql)
{
    QStringList lignes;
    store::Instruction lecture(base, sql);
    while (lecture.avance()) {
        QStringList champs;
        for (int i = 0; i < lecture.colonnes(); ++i)
            champs += lecture.estNulle(i) ? u"Null"_qs : lecture.valeur(i).texte();
        lignes += champs.join(u'|');
    }
    return lignes;
}

QStringList Contenu(store::BaseNative &base, const QString &sauf)
{
    QStringList lignes;
    for (const QString &table :
         Lignes(base, u"select name from main.sqlite_master where type = 'table' order by name"_qs)) {
        if (table == sauf)
            continue;
        for (const QString &ligne : Lignes(base, u"select * from main.[%1] order by rowid"_qs.arg(table)))
            lignes += table + u'|' + ligne;
    }
    return lignes;
}
