#pragma once

#include <QString>

/// Makes the base file \p cible from the schema and the rows under \p dossier. The file takes its name once it is
/// whole; a file of that name is replaced. Throws ErreurDonnees on a fault in the data and store::Erreur when the
/// engine fails; then nothing is left behind and an older file stays as it was.
void creeBase(const QString &dossier, const QString &cible);

/// Writes into the file \p cible, one to a line, the statements that give a base in use what it lacks: indexes and
/// triggers, languages, messages, the types and categories of a language that has none. What is there stays as it is.
/// Throws like creeBase.
void ecritComplement(const QString &dossier, const QString &cible);
