#include "donnees/equipes.h"

#include "donnees/requetes.h"

using store::Database;
using store::Recordset;

namespace donnees {

namespace {

Membre lit(const Recordset &ligne)
{
    return {.nom = ligne[u"nom"].texte(),
            .prenom = ligne[u"prenom"].texte(),
            .licence = ligne[u"licence"].texte(),
            .club = ligne[u"societe"].texte(),
            .equipe = ligne[u"equipe"].entierOu(0),
            .place = ligne[u"doublon"].entierOu(0),
            .sexe = ligne[u"sexe"].texte(),
            .ne = ligne[u"ne"]};
}

std::vector<Membre> litTous(Database &base, const QString &suite)
{
    std::vector<Membre> membres;
    Recordset equipes = base.OpenRecordset(u"select * from equipes where "_qs + suite, store::dbOpenSnapshot);
    for (; !equipes.Eof(); equipes.MoveNext())
        membres.push_back(lit(equipes));
    return membres;
}

std::optional<Membre> cherche(Database &base, QStringView index, QStringView op,
                              std::initializer_list<store::Valeur> cles)
{
    Recordset equipes = base.OpenRecordset(u"Equipes", store::dbOpenTable);
    equipes.Index(index);
    equipes.Seek(op, cles);
    return equipes.NoMatch() ? std::nullopt : std::optional(lit(equipes));
}

} // namespace

std::vector<Membre> MembresDeLEquipe(Database &base, qint32 concours, qint64 numero)
{
    return litTous(base, u"concours=%1 and equipe=%2 order by doublon"_qs.arg(concours).arg(numero));
}

std::vector<Membre> MembresDuConcours(Database &base, qint32 concours)
{
    return litTous(base, u"concours = %1 order by equipe,doublon"_qs.arg(concours));
}

std::vector<Membre> MembresDuClub(Database &base, qint32 concours, const QString &club)
{
    return litTous(base,
                   u"societe = "_qs + EntreApostrophes(club)
                       + u" and concours = %1 order by equipe, doublon"_qs.arg(concours));
}

std::optional<Membre> PremierMembre(Database &base, qint32 concours, qint64 numero)
{
    return cherche(base, u"PrimaryKey", u">=", {concours, numero, 0});
}

std::vector<qint64> EquipesDuNom(Database &base, qint32 concours, const QString &cle)
{
    std::vector<qint64> numeros;
    Recordset equipes =
        base.OpenRecordset(u"select equipe from equipes where trim([nom]) + left(trim([prenom]),1) like "_qs
                               + EntreApostrophes(cle) + u" and concours = %1"_qs.arg(concours),
                           store::dbOpenSnapshot);
    for (; !equipes.Eof(); equipes.MoveNext())
        numeros.push_back(equipes[u"equipe"].entierOu(0));
    return numeros;
}

std::optional<Membre> MembreEngage(Database &base, const QString &licence, const store::Valeur &concours)
{
    return cherche(base, u"engage", u"=", {licence, concours});
}

std::optional<Membre> JoueurConnu(Database &base, const QString &licence)
{
    return MembreEngage(base, licence, fichierJoueurs);
}

std::optional<Membre> JoueurDeLicence(Database &base, const QString &licence)
{
    const std::optional<Membre> connu = JoueurConnu(base, licence);
    return connu ? connu : cherche(base, u"licence", u"=", {licence});
}

std::vector<Membre> JoueursConnus(Database &base, const QString &club)
{
    if (club.isEmpty())
        return litTous(base, u"concours= 0 order by nom,societe"_qs);
    return litTous(base, u"concours= 0 and societe='%1' order by nom"_qs.arg(QString(club).replace(u"'"_qs, u"''"_qs)));
}

bool EquipeExiste(Database &base, qint32 concours, qint64 numero)
{
    return !MembresDeLEquipe(base, concours, numero).empty();
}

bool EstEngagee(Database &base, qint32 concours, qint64 numero)
{
    Recordset evolution = base.OpenRecordset(u"Evolution", store::dbOpenTable);
    evolution.Index(u"PrimaryKey");
    evolution.Seek(u"=", {concours, numero});
    return !evolution.NoMatch();
}

std::optional<qint64> PlusHautNumero(Database &base, qint32 concours)
{
    const store::Valeur maxe =
        ValeurUnique(base, u"SELECT max(Equipe) as maxe from Equipes Where [concours] = %1"_qs.arg(concours));
    return maxe.estNull() ? std::nullopt : std::optional(maxe.entier());
}

std::vector<qint64> NumerosDesEquipes(Database &base, qint32 concours)
{
    std::vector<qint64> numeros;
    Recordset equipes =
        base.OpenRecordset(u"SELECT distinct Concours, Equipe FROM [Equipes] Where [concours] = %1"_qs.arg(concours));
    for (; !equipes.Eof(); equipes.MoveNext())
        numeros.push_back(equipes[u"Equipe"].entier());
    return numeros;
}

qint64 CompteMembres(Database &base, qint32 concours)
{
    return ValeurUnique(base, u"select count(equipe) as nbteam from equipes where concours = %1"_qs.arg(concours))
        .entier();
}

} // namespace donnees
