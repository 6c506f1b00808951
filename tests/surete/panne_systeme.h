#pragma once

#include <QStringList>

/// Failures of the system calls that change files, of this process alone: they stand before the C library's own, for
/// the store and for Qt alike.
namespace panne {

enum class Genre {
    Aucune,
    Mort, ///< The process is killed at the call.
    Dechirure, ///< The process is killed when half of a write has been done.
    Plein, ///< No room left on the disk.
    Refus, ///< The disk refuses: an error of input and output, of removal and of renaming too.
};

/// Lets \p apres calls through, then fails \p duree of them.
void arme(Genre genre, int apres, int duree);
/// Whether a call has failed since arme().
bool desarme();

/// Begins to note what is synchronised with the disk, and what is renamed.
void note();
/// Since then, in order: "sync name" and "renomme new name", the names without their folders.
QStringList notes();

} // namespace panne
