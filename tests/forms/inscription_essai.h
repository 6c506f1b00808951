#pragma once

#include "commun/programme_essai.h"

/// The registration table: players with licences, clubs, teams of one competition.
class Inscription : public ProgrammeEssai
{
protected:
    inline static const QString E = u"Eequipes"_qs;
    inline static const QString L = u"Listesoc"_qs;

    /// Opens the registration on a competition of that type, some teams of club DUP in it; gives its number.
    qint32 ouvre(const QString &type = u"1 - Doublettes"_qs, int equipes = 0)
    {
        partage().ConcoursCourant = concoursDe(equipes, {.type = type});
        ouvreFamille(u"f_equipes"_qs, E);
        return partage().ConcoursCourant;
    }

    /// A competition with teams 1 to \p equipes of one club.
    qint32 concoursDe(int equipes, ConcoursInscrit concours = {})
    {
        for (int equipe = 1; equipe <= equipes; ++equipe)
            concours.equipes.push_back({equipe, u"DUP"_qs});
        concours.clubDesAutres = {};
        return creeConcours(concours);
    }

    void club(const QString &nom)
    {
        execute(
            u"insert into societes (societe, codesoc) values ('%1', %2)"_qs.arg(QString(nom).replace(u'\'', u"''"_qs))
                .arg(++m_code));
    }

    /// A player of the players' file, or a member of a team of competition \p concours.
    void joueur(const QString &licence, const QString &nom, const QString &prenom, const QString &societe,
                int concours = 0, int equipe = 0, int doublon = 0)
    {
        poseMembre(base(), concours, concours == 0 ? ++m_serie : equipe, doublon, {nom, prenom, licence, societe});
    }

    void rencontre(qint32 concours, int numero, int equipe1, int equipe2)
    {
        execute(u"insert into scores (concours, tableau, tour, rencontre, equipe_1, equipe_2) "
                "values (%1, 1, 1, %2, %3, %4)"_qs.arg(concours)
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
        remplit(E, u"NomJ_0"_qs, nom);
        remplit(E, u"Société"_qs, societe);
        clic(E, u"Okc"_qs);
    }

    /// Calls up a team by its number, as the operator does.
    void appelle(const QString &numero)
    {
        remplit(E, u"Equipe"_qs, numero);
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
        return lignes(u"select distinct equipe from equipes where concours = %1 order by 1"_qs.arg(concours));
    }

private:
    int m_code = 1;
    int m_serie = 0;
};
