#pragma once

#include "donnees/concours.h"
#include "partage/partage.h"

#include <QStringList>

/// Players a team that a competition type stands for, by its first character: 2, 3 or 1; \p sinon for any other.
qint16 JoueursDuType(const QString &type, qint16 sinon);

/// Keeps at hand what the sheets and the draws ask of \p concours; the players a team stay as they are.
void RetientConcours(Partage &partage, const donnees::Concours &concours);

/// Loads what the program keeps at hand of competition \p numero: date, place, category, second chance, round, players
/// a team. 0 takes the greatest number first. A number without a competition changes nothing. \p numero is the number
/// loaded, or as it was; it is given back too.
qint32 ChargeConcours(Partage &partage, qint32 &numero);

/// Digits of a competition's number where it is shown.
inline constexpr int chiffresConcours = 6;
/// Number of a competition as the lists show it.
QString NumeroConcours(qint64 numero);

/// All competitions as the lists show them, the greatest number last. Where the current one is none of them, not chosen
/// yet or removed since, that last one is loaded in its place.
QStringList RetrouveConcours(Partage &partage);
