#pragma once

#include "operateur.h"
#include "photographe.h"

namespace demonstration {

/// Prints the sheets of the day through the real dialog; the printer chosen is a PDF in the folder of the day.
class Impressions
{
public:
    Impressions(Operateur &main, BoitesPilotees &boites, Photographe &photographe, const QString &dossier)
        : m_main(main)
        , m_boites(boites)
        , m_photographe(photographe)
        , m_dossier(dossier)
    {
    }

    /// Draw sheet of the last round.
    void tirage(const QString &fichier);
    void classement(const QString &fichier, bool detail);

    /// Names of all documents that a day can leave.
    static QStringList fichiers();

private:
    void ouvre(const QString &option);
    void imprime(const QString &fichier);

    Operateur &m_main;
    BoitesPilotees &m_boites;
    Photographe &m_photographe;
    QString m_dossier;
};

} // namespace demonstration
