#include "store/recordset_base.h"

namespace store {

RecordsetRequete::RecordsetRequete(std::shared_ptr<BaseOuverte> ouverte, const QString &sql,
                                   const Table *tableModifiable, bool avecRowid)
    : RecordsetBase(std::move(ouverte), tableModifiable)
    , m_avecRowid(avecRowid)
{
    Instruction instruction(base(), sql);
    const int decalage = m_avecRowid ? 1 : 0;
    for (int colonne = decalage; colonne < instruction.colonnes(); ++colonne) {
        m_places.insert(cleNom(instruction.nomColonne(colonne)), int(m_types.size()));
        m_types.push_back(instruction.typeColonne(colonne));
    }
    while (instruction.avance())
        m_lignes.push_back(litLigne(instruction));
}

RecordsetRequete::Ligne RecordsetRequete::litLigne(const Instruction &instruction) const
{
    Ligne ligne;
    const int decalage = m_avecRowid ? 1 : 0;
    if (m_avecRowid)
        ligne.rowid = instruction.nombre(0);
    ligne.champs.reserve(m_types.size());
    for (std::size_t i = 0; i < m_types.size(); ++i)
        ligne.champs.push_back(instruction.valeur(int(i) + decalage, m_types[i]));
    return ligne;
}

RecordsetRequete::Ligne RecordsetRequete::ligneDuRowid(qint64 rowid) const
{
    Instruction instruction(base(), u"select rowid, * from [%1] where rowid = ?"_qs.arg(table().nom));
    instruction.lie(1, rowid);
    if (!instruction.avance())
        throw Erreur(Erreur::PasDeLigne, u"La ligne a été retirée entre-temps."_qs);
    return litLigne(instruction);
}

void RecordsetRequete::MoveFirst()
{
    annuleEcriture();
    m_retiree = false;
    m_courante = 0;
    if (m_lignes.empty())
        throw Erreur(Erreur::PasDeLigne, u"Aucun enregistrement en cours."_qs);
}

void RecordsetRequete::Move(qint64 lignes)
{
    annuleEcriture();
    // The rows behind a removed one have already moved up into its place.
    if (m_retiree && lignes > 0)
        --lignes;
    m_retiree = false;
    const qint64 visee = qint64(m_courante) + lignes;
    if (visee < 0 || (lignes > 0 && Eof()))
        throw Erreur(Erreur::PasDeLigne, u"Aucun enregistrement en cours."_qs);
    m_courante = std::min(std::size_t(visee), m_lignes.size());
}

void RecordsetRequete::ligneAjoutee(qint64 rowid)
{
    m_lignes.push_back(ligneDuRowid(rowid));
    m_courante = m_lignes.size() - 1;
    m_retiree = false;
}

void RecordsetRequete::ligneChangee()
{
    m_lignes[m_courante] = ligneDuRowid(m_lignes[m_courante].rowid);
}

void RecordsetRequete::ligneRetiree()
{
    m_lignes.erase(m_lignes.begin() + std::ptrdiff_t(m_courante));
    m_retiree = true;
}

} // namespace store
