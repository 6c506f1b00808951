#pragma once

#include "fenetres/formulaire.h"
#include "fenetres/nom_forme.h"

/// The operations on whole base files that the purge is made of. The tests make each of them fail.
class FichiersBase
{
public:
    virtual ~FichiersBase();

    /// Removes the base file \p fichier and, before it, what the engine keeps beside it: a new file of that name must
    /// not find them. Throws store::Erreur.
    virtual void supprime(const QString &fichier) const;
    /// Rewrites the closed base \p source into the new file \p cible, and proves that the new file can be read. Throws
    /// store::Erreur; \p cible is gone again then.
    virtual void compacte(const QString &source, const QString &cible) const;
    /// Throws store::Erreur.
    virtual void renomme(const QString &ancien, const QString &nouveau) const;
    /// Opens the base \p fichier for the whole program. Throws store::Erreur.
    virtual store::Database ouvre(const store::Workspace &espace, const QString &fichier) const;
};

/// Asks, and empties the base of all competitions at the end of a season: the clubs and the pre-registered players
/// stay. The file is rewritten without the room that the rows took. \p formesDeConcours are unloaded before, in this
/// order.
void Torvik_mnu_base_Click(const Contexte &contexte, const std::vector<NomForme> &formesDeConcours);
/// The same on other file operations.
void PurgeBase(const Contexte &contexte, const FichiersBase &fichiers, const std::vector<NomForme> &formesDeConcours);
