#pragma once

#include "store/schema.h"

namespace store {

/// A statement of the program put into the engine's SQL.
struct InstructionTraduite
{
    QString sql;
    /// Table of a `select *` on one table, whose rows can be changed; empty for every other statement. The rowid then
    /// stands as the first column of the result.
    QString tableUnique;
};

/// Puts one statement of the program's dialect into the engine's: `delete *`, `isnull()`, `left()`, + on texts, `true`
/// and `false`, `not` on a yes/no field, bracketed names, names without regard to case. Text between apostrophes is
/// never touched. A `select *` on one table without an order comes in the order of its primary key, or of entry where
/// it has none; a `select distinct` comes sorted. Throws Erreur on text behind the end of the statement, on an open
/// quote and on characters that no statement has.
InstructionTraduite Traduit(QStringView sql, const Schema &schema);

} // namespace store
