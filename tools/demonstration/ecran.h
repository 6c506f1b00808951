#pragma once

#include <QTemporaryFile>

namespace demonstration {

/// The screen of a club's laptop (1366 x 768), with a projector beside it, for a run without any display. Made before
/// the application, and kept as long as it lives.
class EcranPortable
{
public:
    /// Takes the place of a missing display, and of a plain `offscreen`; leaves any other platform alone.
    EcranPortable();

private:
    QTemporaryFile m_description;
};

} // namespace demonstration
