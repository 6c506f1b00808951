#pragma once

#include <QString>

/// Password of the base file, and the connection text that carries it.
inline const QString motDePasseBase = u"qz7tkn42"_qs;
inline const QString connexionBase = u";PWD="_qs + motDePasseBase;
