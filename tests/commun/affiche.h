#pragma once

#include <QString>

#include <ostream>

/// Lets a failed comparison show its texts.
inline void PrintTo(const QString &texte, std::ostream *sortie)
{
    *sortie << '"' << texte.toStdString() << '"';
}
