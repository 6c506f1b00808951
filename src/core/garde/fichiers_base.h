#pragma once

#include "store/database.h"

/// The operations on whole base files of which a purge and a restoration are made. The tests make each of them fail.
class FichiersBase
{
public:
    virtual ~FichiersBase();

    /// Removes the base file \p fichier and, before it, what the engine keeps beside it: a new file of that name must
    /// not find them. Throws store::Erreur.
    virtual void supprime(const QString &fichier) const;
    /// Removes what the engine keeps beside the closed base \p fichier. Throws store::Erreur while there are rows in
    /// it: somebody else has the base open then.
    virtual void supprimeJournaux(const QString &fichier) const;
    /// Rewrites the closed base \p source into the new file \p cible, and proves that the new file can be read. Throws
    /// store::Erreur; \p cible is gone again then.
    virtual void compacte(const QString &source, const QString &cible) const;
    /// Gives the file \p ancien the name \p nouveau in one step, in the place of what bears it. Throws store::Erreur;
    /// all is as before then.
    virtual void renomme(const QString &ancien, const QString &nouveau) const;
    /// Opens the base \p fichier for the whole program. Throws store::Erreur.
    virtual store::Database ouvre(const store::Workspace &espace, const QString &fichier) const;
};
