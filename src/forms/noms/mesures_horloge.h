#pragma once

#include "fenetres/formulaires.h"

#include <optional>

/// What the toolbox counts just now, for whoever shows it too. Unset while it is not loaded.
struct MesuresHorloge
{
    std::function<std::optional<qint64>()> chronometre; ///< Seconds; nothing when it stands.
    std::function<std::optional<qint64>()> alarme; ///< Seconds to the alarm, 0 once it is due; nothing without one.
};

inline MesuresHorloge &mesuresHorloge(Formulaires &formulaires)
{
    return formulaires.etat<MesuresHorloge>();
}
