#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>

/// Lets the screen repaint and the timers run; clicks and keys wait until the running operation is over.
inline void DoEvents()
{
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

/// Lets events run during a long loop: often enough for the screen to stay alive, seldom enough to cost nothing.
class Respiration
{
public:
    Respiration() { m_derniere.start(); }

    /// Whether the next souffle() lets events run.
    bool echue() const { return m_derniere.hasExpired(intervalleMs); }
    /// Called at each turn of the loop.
    void souffle()
    {
        if (!echue())
            return;
        DoEvents();
        m_derniere.start();
    }

private:
    static constexpr int intervalleMs = 40;

    QElapsedTimer m_derniere;
};
