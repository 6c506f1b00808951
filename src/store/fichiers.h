#pragma once

#include <QString>

namespace store {

/// Gives the file \p ancien the name \p nouveau in the same folder, in one step of the file system: a file that has that
/// name goes. False when it cannot be done; \p ancien is then as it was, and no part of it stands under \p nouveau. (Qt's
/// own rename falls back to copying, which can be cut short.)
bool renomme(const QString &ancien, const QString &nouveau);

} // namespace store
