#pragma once

#include <QObject>

class QSocketNotifier;

/// The system's wish that the program end: a signal of a Unix (SIGTERM, SIGINT, SIGHUP), or the end of the session. One
/// at a time, after the QApplication has been made.
class FinDemandee : public QObject
{
    Q_OBJECT

public:
    FinDemandee();
    ~FinDemandee() override;

    /// Whether the program has been told to end.
    bool estDemandee() const { return m_demandee; }

Q_SIGNALS:
    /// The program is to end; told from the event loop.
    void demandee();
    /// The session may end after this: what has been entered belongs on the disk.
    void seanceFinit();

private:
    void ecouteSignaux();
    void recoitSignal();

    QSocketNotifier *m_tube = nullptr;
    bool m_demandee = false;
};
