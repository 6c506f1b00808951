#pragma once

#include "garde/fichiers_base.h"

#include <functional>

/// The real operations on whole files, of which one fails before it has done anything.
class PanneFichiers : public FichiersBase
{
public:
    enum Etape { Aucune, Reste, Compacte, Journaux, Supprime, Renomme, Ouvre };

    explicit PanneFichiers(Etape etape)
        : m_etape(etape)
    {
    }

    void supprimeJournaux(const QString &fichier) const override
    {
        echoue(Journaux);
        FichiersBase::supprimeJournaux(fichier);
    }
    void supprime(const QString &fichier) const override
    {
        echoue(fichier.contains(u"myTmp"_qs) ? Reste : Supprime);
        FichiersBase::supprime(fichier);
    }
    void compacte(const QString &source, const QString &cible) const override
    {
        if (pendant)
            pendant();
        echoue(Compacte);
        FichiersBase::compacte(source, cible);
    }
    void renomme(const QString &ancien, const QString &nouveau) const override
    {
        echoue(Renomme);
        FichiersBase::renomme(ancien, nouveau);
    }
    store::Database ouvre(const store::Workspace &espace, const QString &fichier) const override
    {
        echoue(Ouvre);
        return FichiersBase::ouvre(espace, fichier);
    }

    std::function<void()> pendant; ///< Runs before the file is compacted.

private:
    void echoue(Etape etape) const
    {
        if (etape == m_etape)
            throw store::Erreur(store::Erreur::DossierProtege, u"Panne."_qs);
    }

    Etape m_etape;
};
