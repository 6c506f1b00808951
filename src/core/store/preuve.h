#pragma once

#include <QString>

namespace store {

class BaseNative;
class Schema;

/// Number of the journal that follows the one of number \p generation.
quint32 generationSuivante(quint32 generation);

/// Version of the base that this program works on; the file holds its own as user_version.
constexpr qint64 versionBase = 1;

/// Throws Erreur unless \p base is one of this program's and of no later version.
void verifieNature(BaseNative &base, const Schema &schema);

/// Proves the base file \p fichier together with the journals that an earlier run has left beside it. The engine would
/// take them into the file at its first look, so this is done on a private copy: no file changes here. Without journals
/// nothing is done, the opening itself only reads then. Throws Erreur as the opening does, with the number
/// JournalEtranger when the base is whole without its journals only, or when they begin behind another one.
void prouveAvecJournaux(const QString &fichier, const QString &motDePasse);

} // namespace store
