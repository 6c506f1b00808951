#pragma once

#include <QString>

/// Password of the base file, and the connection text that carries it.
inline const QString motDePasseBase = u"qz7tkn42"_qs;
inline const QString connexionBase = u";PWD="_qs + motDePasseBase;

/// The base file beside the program, and the name under which its compaction writes the new one.
inline const QString nomBase = u"VarloBase.mdb"_qs;
inline const QString nomBaseTemporaire = u"myTmpDB.mdb"_qs;
