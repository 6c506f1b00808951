#pragma once

#include "operateur.h"
#include "photographe.h"

namespace demonstration {

/// Prints the sheets of the day through the real dialog; the printer chosen is a PDF in the folder of the day.
class Impressions
{
public:
    Impressions(Operateur &main, BoitesDuJour &boites, Photographe &photographe, const QString &dossier)
        : m_main(main)
        , m_boites(boites)
        , m_photographe(photographe)
        , m_dossier(dossier)
    {
    }

    /// Draw sheet of the last round.
    void tirage(const QString &fichier);
    void rapport();
    void classement(const QString &fichier, bool detail);
    /// The whole honours list with the names of players: a match a line, and then with the members of the winner.
    void palmares(const QString &simple, const QString &detaille);
    /// Sheet of a club of the first match in the honours list, or of its first team when both clubs are mixed.
    void club(const QString &fichier);

    /// The sums of the season, on paper and in a file for a spreadsheet.
    void saison();

    /// Names of all documents that a day can leave.
    static QStringList fichiers();

    /// Clicks the print button of an open form; the sheet goes to \p fichier.
    void imprime(const QString &forme, const QString &bouton, const QString &fichier);
    void ferme(const QString &forme);

private:
    void ouvre(const QString &option);
    void imprime(const QString &fichier);
    void imprimePalmares(const QString &fichier);

    Operateur &m_main;
    BoitesDuJour &m_boites;
    Photographe &m_photographe;
    QString m_dossier;
};

} // namespace demonstration
