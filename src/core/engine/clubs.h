#pragma once

#include "donnees/clubs.h"

#include <QHash>
#include <QString>

namespace moteur {

using donnees::clubPanache;

/// Gives each distinct text a small number, so that the draws compare clubs as whole numbers.
class NumerosClubs
{
public:
    /// Number of \p club, from 0; a text met for the first time gets the next one.
    int numero(const QString &club);

private:
    QHash<QString, int> m_numeros;
};

} // namespace moteur
