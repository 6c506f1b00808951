#include "registration/clubs_connus.h"

ClubsConnus::ClubsConnus(Partage &partage, qint32 concours)
{
    store::Recordset joueurs = partage.BaseDonnees.OpenRecordset(
        u"select licence, societe from equipes where concours = 0 and licence in "
        u"(select licence from equipes where concours = %1) order by equipe, doublon"_qs.arg(concours),
        store::dbOpenSnapshot);
    for (; !joueurs.Eof(); joueurs.MoveNext())
        m_clubs.try_emplace(joueurs[0].texte(), joueurs[1].texte());
}

std::optional<QString> ClubsConnus::club(const QString &licence) const
{
    const auto connu = m_clubs.find(licence);
    return connu == m_clubs.end() ? std::nullopt : std::optional(connu->second);
}
