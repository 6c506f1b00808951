#include "store/recordset_base.h"

namespace store {

void RecordsetBase::Index(QStringView)
{
    throw Erreur(Erreur::ObjetInconnu, u"Seule une table ouverte comme telle se parcourt selon un index."_qs);
}

void RecordsetBase::Seek(QStringView, const std::vector<Valeur> &)
{
    throw Erreur(Erreur::ObjetInconnu, u"La recherche par clé ne vaut que pour une table et son index."_qs);
}

void RecordsetBase::exigeTable() const
{
    if (m_table == nullptr)
        throw Erreur(Erreur::LectureSeule, u"Ce résultat ne peut pas être modifié."_qs);
}

void RecordsetBase::exigeLigne()
{
    if (!surUneLigne())
        throw Erreur(Erreur::PasDeLigne, u"Aucun enregistrement en cours."_qs);
}

void RecordsetBase::AddNew()
{
    exigeTable();
    m_tampon.clear();
    m_ecriture = Ecriture::Ajout;
    if (table().compteur < 0)
        return;
    const qint64 dernier =
        base().valeurUnique(u"select max(seq) from sqlite_sequence where name = '%1'"_qs.arg(table().nom)).entierOu(0);
    m_tampon[table().compteur] = dernier + 1;
}

void RecordsetBase::Edit()
{
    exigeTable();
    exigeLigne();
    m_tampon.clear();
    m_ecriture = Ecriture::Changement;
}

void RecordsetBase::Update()
{
    switch (m_ecriture) {
    case Ecriture::Ajout:
        return insere();
    case Ecriture::Changement:
        return change();
    case Ecriture::Aucune:
        throw Erreur(Erreur::PasDeLigne, u"Aucune ligne n'est en cours d'écriture."_qs);
    }
}

void RecordsetBase::annuleEcriture()
{
    m_ecriture = Ecriture::Aucune;
    m_tampon.clear();
}

void RecordsetBase::insere()
{
    QStringList noms;
    QStringList marques;
    for (const auto &[place, valeur] : m_tampon) {
        noms += u'[' + table().champs[std::size_t(place)].nom + u']';
        marques += u"?"_qs;
    }
    const QString sql = noms.isEmpty()
        ? u"insert into [%1] default values"_qs.arg(table().nom)
        : u"insert into [%1] (%2) values (%3)"_qs.arg(table().nom, noms.join(u", "), marques.join(u", "));
    Instruction instruction(base(), sql);
    int indice = 0;
    for (const auto &[place, valeur] : m_tampon)
        instruction.lie(++indice, valeur);
    instruction.avance();
    annuleEcriture();
    ligneAjoutee(base().dernierRowid());
}

void RecordsetBase::change()
{
    exigeLigne();
    if (!m_tampon.empty()) {
        QStringList affectations;
        for (const auto &[place, valeur] : m_tampon)
            affectations += u"[%1] = ?"_qs.arg(table().champs[std::size_t(place)].nom);
        Instruction instruction(base(),
                                u"update [%1] set %2 where rowid = ?"_qs.arg(table().nom, affectations.join(u", ")));
        int indice = 0;
        for (const auto &[place, valeur] : m_tampon)
            instruction.lie(++indice, valeur);
        instruction.lie(++indice, rowid());
        instruction.avance();
    }
    annuleEcriture();
    ligneChangee();
}

void RecordsetBase::Delete()
{
    exigeTable();
    exigeLigne();
    Instruction instruction(base(), u"delete from [%1] where rowid = ?"_qs.arg(table().nom));
    instruction.lie(1, rowid());
    instruction.avance();
    ligneRetiree();
}

Valeur RecordsetBase::lit(int place)
{
    const auto ecrite = m_tampon.find(place);
    if (ecrite != m_tampon.end())
        return ecrite->second;
    if (m_ecriture == Ecriture::Ajout)
        return {};
    exigeLigne();
    return champ(place);
}

void RecordsetBase::ecrit(int place, const Valeur &valeur)
{
    if (m_ecriture == Ecriture::Aucune)
        throw Erreur(Erreur::LectureSeule, u"La ligne doit être ouverte avant d'être modifiée."_qs);
    m_tampon[place] = convertit(valeur, typeDuChamp(place));
}

} // namespace store
