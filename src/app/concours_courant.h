#pragma once

#include "app/partage.h"

/// Players a team that a competition type stands for, by its first character: 2, 3 or 1; \p sinon for any other.
qint16 JoueursDuType(const QString &type, qint16 sinon);

/// Loads what the program keeps at hand of competition \p numero: date, place, category, second chance, round, players
/// a team. 0 takes the greatest number first. A number without a competition changes nothing. \p numero is the number
/// loaded, or as it was; it is given back too.
qint32 ChargeConcours(Partage &partage, qint32 &numero);
