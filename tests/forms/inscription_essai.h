#pragma once

#include "commun/programme_essai.h"

/// The registration table: players with licences, clubs, teams of one competition.
class Inscription : public ProgrammeEssai
{
protected:
    inline static const QString E = QStringLiteral("Eequipes");
    inline static const QString L = QStringLiteral("Listesoc");

    /// Opens the registration on a competition of that type; gives its number.
    qint32 ouvre(const QString &type = QStringLiteral("1 - Doublettes"))
    {
        const qint32 numero = creeConcours({.type = type});
        partage().ConcoursCourant = numero;
        ouvreFamille(QStringLiteral("f_equipes"), E);
        return numero;
    }

    void club(const QString &nom)
    {
        store::Recordset ligne = partage().BaseDonnees.OpenRecordset(u"societes", store::dbOpenTable);
        ligne.AddNew();
        ligne[u"societe"] = nom;
        ligne[u"codesoc"] = ++m_code;
        ligne.Update();
    }

    /// A player of the players' file, or a member of a team of competition \p concours.
    void joueur(const QString &licence, const QString &nom, const QString &prenom, const QString &societe,
                int concours = 0, int equipe = 0, int doublon = 0)
    {
        store::Recordset ligne = partage().BaseDonnees.OpenRecordset(u"equipes", store::dbOpenTable);
        ligne.AddNew();
        ligne[u"concours"] = concours;
        ligne[u"equipe"] = concours == 0 ? ++m_serie : equipe;
        ligne[u"doublon"] = doublon;
        ligne[u"licence"] = licence;
        ligne[u"nom"] = nom;
        ligne[u"prenom"] = prenom;
        ligne[u"societe"] = societe;
        ligne.Update();
    }

    /// Teams 1 to \p dernier of two members each, stored past the form.
    void equipesStockees(qint32 concours, int dernier, int premier = 1)
    {
        for (int equipe = premier; equipe <= dernier; ++equipe) {
            for (int place = 0; place < 2; ++place)
                joueur(QStringLiteral("L%1-%2").arg(equipe).arg(place), QStringLiteral("NOM%1").arg(equipe),
                       QStringLiteral("P%1").arg(place), QStringLiteral("DUP"), concours, equipe, place);
            execute(QStringLiteral("insert into evolution (concours, equipe, principal) values (%1, %2, 1)")
                        .arg(concours)
                        .arg(equipe));
        }
    }

    void rencontre(qint32 concours, int numero, int equipe1, int equipe2)
    {
        execute(QStringLiteral("insert into scores (concours, tableau, tour, rencontre, equipe_1, equipe_2) "
                               "values (%1, 1, 1, %2, %3, %4)")
                    .arg(concours)
                    .arg(numero)
                    .arg(equipe1)
                    .arg(equipe2));
    }

    static QString membre(const char16_t *nom, int place)
    {
        return QString::fromUtf16(nom) + QLatin1Char('_') + QString::number(place);
    }

    /// Types a licence in its line and presses Enter.
    void licence(int place, const QString &numero)
    {
        remplit(E, membre(u"LicenceJ", place), numero);
        entre();
    }

    /// Types an unlicensed team of two in one club, and stores it by the mouse.
    void inscrit(const QString &nom, const QString &societe)
    {
        remplit(E, QStringLiteral("NomJ_0"), nom);
        remplit(E, QStringLiteral("Société"), societe);
        clic(E, QStringLiteral("Okc"));
    }

    /// Calls up a team by its number, as the operator does.
    void appelle(const QString &numero)
    {
        remplit(E, QStringLiteral("Equipe"), numero);
        entre();
    }

    QStringList equipe(qint32 concours, int numero)
    {
        return lignes(QStringLiteral("select doublon, nom, prenom, licence, societe, tableau, engage from equipes "
                                     "where concours = %1 and equipe = %2 order by doublon")
                          .arg(concours)
                          .arg(numero));
    }
    QStringList numeros(qint32 concours)
    {
        return lignes(
            QStringLiteral("select distinct equipe from equipes where concours = %1 order by 1").arg(concours));
    }

private:
    int m_code = 1;
    int m_serie = 0;
};
