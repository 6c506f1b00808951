#pragma once

#include "store/database.h"

namespace donnees {

/// First column of the first row of a statement; Null when it gives none.
[[nodiscard]] store::Valeur ValeurUnique(store::Database &base, const QString &sql);

/// \p texte as a text of a statement, between apostrophes. One that holds an apostrophe breaks its statement: throws
/// store::Erreur, so that what stands behind the apostrophe never becomes a condition.
[[nodiscard]] QString EntreApostrophes(const QString &texte);

/// A yes/no field; Null is no.
[[nodiscard]] inline bool Oui(const store::Valeur &champ)
{
    return !champ.estNull() && champ.booleen();
}

} // namespace donnees
