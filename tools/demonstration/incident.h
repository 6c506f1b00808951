#pragma once

#include "pilote/incident.h"

namespace demonstration {

using pilote::exige;
using pilote::Incident;

/// Prints a line at once.
void dit(const QString &ligne);

} // namespace demonstration
