#pragma once

#include <QByteArray>
#include <QString>

/// What a file holds; nothing when it is not there.
QByteArray octetsDe(const QString &fichier);
/// Writes a file anew; the test fails when that cannot be done.
void ecritFichier(const QString &fichier, const QByteArray &octets);
/// Spoils some bytes in the middle of a file.
void abimeFichier(const QString &fichier, int place = 9000);
