#include "commun/panne_ecriture.h"

PanneEcriture::PanneEcriture(store::BaseNative &base, int apres, const QString &facon)
    : m_base(base)
{
    m_base.executeScript(u"create temp table panne as select %1 as reste"_qs.arg(apres));
    QStringList tables;
    store::Instruction noms(base,
                            u"select name from main.sqlite_master where type = 'table' and rootpage > 0 "
                            u"and name <> 'sqlite_sequence'"_qs);
    while (noms.avance())
        tables += noms.valeur(0).texte();
    noms.rend();
    for (const QString &table : std::as_const(tables)) {
        for (const QString &ecriture : {u"insert"_qs, u"update"_qs, u"delete"_qs}) {
            m_declencheurs += u"panne "_qs + ecriture + u' ' + table;
            m_base.executeScript(
                u"create temp trigger [%1] before %2 on main.[%3] begin "
                u"select raise(%4, 'panne') from panne where reste <= 0; "
                u"update panne set reste = reste - 1; end"_qs.arg(m_declencheurs.back(), ecriture, table, facon));
        }
    }
}

PanneEcriture::~PanneEcriture()
{
    for (const QString &declencheur : std::as_const(m_declencheurs))
        m_base.executeScript(u"drop trigger [%1]"_qs.arg(declencheur));
    m_base.executeScript(u"drop table panne"_qs);
}
