#pragma once

#include "partage/partage.h"

#include <vector>

/// What brings a base of the version before to version \p version.
struct EtapeBase
{
    qint64 version;
    QString script; ///< Statements of the engine; new tables, fields and indexes, and the rows that they need.
};

/// The steps from the first version to store::versionBase, in this order. A step that has been published never changes.
const std::vector<EtapeBase> &EtapesBase();

/// Brings the open base up, step by step: each reaches the disk whole or not at all. A safety copy is made before the
/// first; without one nothing changes. Throws store::Erreur; the base then has the version of the last step done.
void MetANiveau(Partage &partage, const std::vector<EtapeBase> &etapes = EtapesBase());

/// Gives the open base what it lacks of \p complement: indexes and triggers, languages, texts. What it has stays as it
/// is. The statements stand one to a line. Throws store::Erreur.
void CompleteBase(store::Database &base, const QString &complement);
