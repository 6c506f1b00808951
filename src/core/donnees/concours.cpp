#include "donnees/concours.h"

#include "donnees/requetes.h"

using store::Database;
using store::Recordset;

namespace donnees {

namespace {

Concours lit(const Recordset &ligne)
{
    return {.numero = qint32(ligne[u"concours"].entier()),
            .date = ligne[u"date"],
            .lieu = ligne[u"lieu"].texte(),
            .organisateur = ligne[u"organisateur"].texte(),
            .type = ligne[u"type"].texte(),
            .categorie = ligne[u"categorie"].texte(),
            .tour = int(ligne[u"tourpri"].entierOu(0)),
            .repechage = Oui(ligne[u"repeche"]),
            .pro = Oui(ligne[u"pro"])};
}

TypeConcours litType(const Recordset &ligne)
{
    return {ligne[u"type"].texte(), ligne[u"Libelle"].texte(), int(ligne[u"Nbjoueurs"].entierOu(0))};
}

Recordset ouvre(Database &base, const store::Valeur &numero)
{
    Recordset concours = base.OpenRecordset(u"Concours", store::dbOpenTable);
    concours.Index(u"PrimaryKey");
    concours.Seek(u"=", {numero});
    return concours;
}

/// What the editor stores; it marks every competition as `pro`.
void ecritChampsCommuns(Recordset &ligne, const Concours &concours)
{
    ligne[u"date"] = concours.date;
    ligne[u"lieu"] = concours.lieu;
    ligne[u"organisateur"] = concours.organisateur;
    ligne[u"type"] = concours.type;
    ligne[u"categorie"] = concours.categorie;
    ligne[u"pro"] = true;
    ligne[u"repeche"] = concours.repechage;
}

} // namespace

std::optional<Concours> TrouveConcours(Database &base, const store::Valeur &numero)
{
    const Recordset concours = ouvre(base, numero);
    return concours.NoMatch() ? std::nullopt : std::optional(lit(concours));
}

std::vector<Concours> ListeConcours(Database &base)
{
    std::vector<Concours> liste;
    Recordset concours = base.OpenRecordset(u"SELECT * FROM [Concours] order by [concours]");
    for (; !concours.Eof(); concours.MoveNext())
        liste.push_back(lit(concours));
    return liste;
}

qint32 DernierConcours(Database &base)
{
    return qint32(ValeurUnique(base, u"select max(concours) as maxc from concours"_qs).entierOu(0));
}

qint32 AjouteConcours(Database &base, const Concours &concours, const std::function<void(qint32)> &annonce)
{
    Recordset ligne = base.OpenRecordset(u"Concours", store::dbOpenTable);
    ligne.AddNew();
    ecritChampsCommuns(ligne, concours);
    for (const QStringView compteur : {u"tourpri", u"nbtours_a", u"nbtours_b", u"nbtours_c"})
        ligne[compteur] = 0;
    const auto numero = qint32(ligne[u"concours"].entier());
    if (annonce)
        annonce(numero);
    ligne.Update();
    return numero;
}

void CorrigeConcours(Database &base, const Concours &concours)
{
    Recordset ligne = ouvre(base, concours.numero);
    ligne.Edit();
    ecritChampsCommuns(ligne, concours);
    ligne.Update();
}

qint32 CopieConcours(Database &base, const QString &numero)
{
    qint32 copie = 0;
    base.EcritEnGroupe([&] {
        base.Execute(u"INSERT INTO Concours ( [Date], Lieu, organisateur,type,categorie,abc,tourpri,repeche,basculebc,"
                     u"nbtours_a,nbtours_b,nbtours_c,pro) select [Date], lieu,'(duplicata du %1)' , type,categorie,abc,"
                     u"0,0,0,0,0,0,pro from concours where concours= %1"_qs.arg(numero));
        copie = DernierConcours(base);
        const QString m = QString::number(copie);
        base.Execute(
            u"INSERT INTO equipes (equipe, societe, nom, prenom,licence, sexe, ne, tableau, engage, concours)  "
            u"select equipe,  societe, nom, prenom, licence, sexe, ne, tableau, engage, %1 as e1 from equipes "
            u"where concours= %2"_qs.arg(m, numero));
        // The selection gives a team's number once for each member: the key lets the first one in.
        const QString stades = u"INSERT INTO evolution(equipe, principal, complement, consolante, concours)  select "
                               u"equipe, %1 as E1 , %2 as E2, 0 as E3, "_qs
            + m + u" as e4 from equipes where concours= "_qs + numero + u" and "_qs;
        base.Execute(stades.arg(1).arg(0) + u"(engage=1 or engage=3)"_qs);
        base.Execute(stades.arg(0).arg(-1) + u"engage=2"_qs);
        base.Execute(stades.arg(0).arg(0) + u"engage=0"_qs);
    });
    return copie;
}

void SupprimeConcours(Database &base, const Concours &concours)
{
    QStringList tables{u"Equipes"_qs, u"evolution"_qs, u"scores"_qs};
    if (concours.pro)
        tables << u"tnequipes"_qs << u"tirages_pro"_qs;
    base.EcritEnGroupe([&] {
        for (const QString &table : std::as_const(tables))
            base.Execute(u"delete * from %1 where concours = %2"_qs.arg(table).arg(concours.numero));
        ouvre(base, concours.numero).Delete();
    });
}

std::optional<TypeConcours> TrouveType(Database &base, const QString &code)
{
    Recordset types = base.OpenRecordset(u"typconcours", store::dbOpenTable);
    types.Index(u"Primarykey");
    types.Seek(u"=", {code});
    return types.NoMatch() ? std::nullopt : std::optional(litType(types));
}

std::vector<TypeConcours> ListeTypes(Database &base, int langue)
{
    std::vector<TypeConcours> liste;
    Recordset types = base.OpenRecordset(u"select * from typconcours where lang = %1"_qs.arg(langue));
    for (; !types.Eof(); types.MoveNext())
        liste.push_back(litType(types));
    return liste;
}

QStringList ListeCategories(Database &base, int langue)
{
    QStringList liste;
    Recordset categories =
        base.OpenRecordset(u"select * from catégories where lang = %1 order by libelle"_qs.arg(langue));
    for (; !categories.Eof(); categories.MoveNext())
        liste += categories[u"Libelle"].texte();
    return liste;
}

} // namespace donnees
