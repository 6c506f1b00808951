#pragma once

#include <QString>

/// Makes the base file \p cible from the schema and the rows under \p dossier. The file takes its name once it is
/// whole; a file of that name is replaced. Throws ErreurDonnees on a fault in the data and store::Erreur when the
/// engine fails; then nothing is left behind and an older file stays as it was.
void creeBase(const QString &dossier, const QString &cible);

/// Writes into the file \p cible the statement that gives a base in use the messages that it lacks, for each language
/// that it has. Texts that are there stay as they are. Throws like creeBase.
void ecritComplement(const QString &dossier, const QString &cible);
