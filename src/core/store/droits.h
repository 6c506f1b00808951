#pragma once

#include <QFile>

namespace store {

/// Rights of a file that its user alone reads and writes.
constexpr QFile::Permissions droitsReserves = QFile::ReadOwner | QFile::WriteOwner;

/// Takes all rights on the file or folder \p chemin from everybody but its owner, who gets none that he lacks. On
/// a USB stick without owners, or on somebody else's file, nothing happens.
void reserve(const QString &chemin);

/// The same for the base file \p fichier and what the engine keeps beside it.
void reserveBase(const QString &fichier);

} // namespace store
