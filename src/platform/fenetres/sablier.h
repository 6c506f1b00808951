#pragma once

#include <QElapsedTimer>

/// Shows the wait cursor as long as it lives, whatever ends the operation. One may stand within another.
///
/// When the operation has lasted, the clicks that an impatient hand made meanwhile are dropped: a second click never
/// starts the same thing again. Keys are kept, for those who type ahead.
class Sablier
{
public:
    Sablier();
    ~Sablier();
    Q_DISABLE_COPY_MOVE(Sablier)

    /// The usual pointer for a box that comes up in the middle of an operation.
    class Pause
    {
    public:
        Pause();
        ~Pause();
        Q_DISABLE_COPY_MOVE(Pause)

    private:
        int m_suspendus = 0;
    };

private:
    QElapsedTimer m_duree;
};
