#pragma once

#include <QString>

class QCoreApplication;

namespace demonstration {

/// What the command line asks for.
struct Options
{
    int equipes = 16; ///< Teams of the day, the late one included; at least 2.
    int type = 1; ///< 1 doublettes, 2 triplettes, 3 tête-à-tête.
    bool repeche = false;
    int clubs = 1; ///< Clubs that the teams come from.
    int hote = 0; ///< Percentage of the teams that come from the first club.
    quint32 graine = 1;
    QString dossier; ///< Where base and pictures are left.

    /// Players a team.
    int joueurs() const { return type == 1 ? 2 : type == 2 ? 3 : 1; }
};

/// Reads the command line; says what is wrong with it and ends the program on a value that cannot be.
Options litOptions(const QCoreApplication &application);

} // namespace demonstration
