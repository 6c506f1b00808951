#include "donnees/clubs.h"

#include "donnees/requetes.h"

using store::Database;
using store::Recordset;

namespace donnees {

namespace {

Recordset ouvre(Database &base)
{
    Recordset societes = base.OpenRecordset(u"Societes", store::dbOpenTable);
    societes.Index(u"nomsoc");
    return societes;
}

Club lit(const Recordset &ligne)
{
    const store::Valeur code = ligne[u"codesoc"];
    return {ligne[u"societe"].texte(), code.estNull() ? std::nullopt : std::optional(code.entier())};
}

} // namespace

bool EstPanache(QStringView club)
{
    return store::CompareFrancais(club, clubPanache) == 0;
}

std::vector<Club> ListeClubs(Database &base)
{
    std::vector<Club> clubs;
    for (Recordset societes = ouvre(base); !societes.Eof(); societes.MoveNext())
        clubs.push_back(lit(societes));
    return clubs;
}

std::optional<Club> TrouveClub(Database &base, const QString &nom)
{
    Recordset societes = ouvre(base);
    societes.Seek(u"=", {nom});
    return societes.NoMatch() ? std::nullopt : std::optional(lit(societes));
}

void AjouteClub(Database &base, const QString &nom)
{
    const store::Valeur maxsoc = ValeurUnique(base, u"select max(codesoc) as maxsoc from societes"_qs);
    Recordset societes = ouvre(base);
    societes.AddNew();
    societes[u"societe"] = nom;
    societes[u"codesoc"] = maxsoc.estNull() ? store::Valeur() : store::Valeur(maxsoc.entier() + 1);
    societes.Update();
}

void SupprimeClub(Database &base, const QString &nom)
{
    base.Execute(u"delete * from societes where societe="_qs + EntreApostrophes(nom));
}

ClubsConnus::ClubsConnus(Database &base, qint32 concours)
{
    Recordset joueurs =
        base.OpenRecordset(u"select licence, societe from equipes where concours = 0 and licence in "
                           u"(select licence from equipes where concours = %1) order by equipe, doublon"_qs.arg(
                               concours),
                           store::dbOpenSnapshot);
    for (; !joueurs.Eof(); joueurs.MoveNext())
        m_clubs.try_emplace(joueurs[0].texte(), joueurs[1].texte());
}

std::optional<QString> ClubsConnus::club(const QString &licence) const
{
    const auto connu = m_clubs.find(licence);
    return connu == m_clubs.end() ? std::nullopt : std::optional(connu->second);
}

} // namespace donnees
