#pragma once

#include <QString>
#include <QStringList>

namespace store {

/// What the engine keeps beside a base file: parts of it, as long as they are not empty.
inline const QStringList suffixesJournaux{u"-wal"_qs, u"-shm"_qs, u"-journal"_qs};

/// Gives the file \p ancien the name \p nouveau in the same folder, in one step of the file system, on the disk when it
/// returns: a file that has that name goes. False when it cannot be done; \p ancien is then as it was, and no part of
/// it stands under \p nouveau. (Qt's own rename falls back to copying, which can be cut short.)
[[nodiscard]] bool renomme(const QString &ancien, const QString &nouveau);

/// Gives the file \p source the further name \p cible in the same folder, or makes a copy of that name where a file
/// cannot have two. False when it cannot be done.
[[nodiscard]] bool garde(const QString &source, const QString &cible);

/// Copies \p source into \p cible, whole and on the disk when it returns, or not at all; its user alone may read it.
/// False when it cannot be done.
[[nodiscard]] bool recopie(const QString &source, const QString &cible);

/// Brings \p fichier to the disk and lets the system forget what it keeps of it in memory, so that the next reading
/// tells what the disk holds. Where the system cannot, nothing happens.
void relitDuDisque(const QString &fichier);

} // namespace store
