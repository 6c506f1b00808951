#include "fenetres/fin_demandee.h"

#include <QGuiApplication>
#include <QSocketNotifier>

#if defined(Q_OS_UNIX)
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#endif

FinDemandee::FinDemandee()
{
    // Direct: once the signal has been handed on, the session may go at any moment.
    connect(
        qGuiApp, &QGuiApplication::commitDataRequest, this, [this] { Q_EMIT seanceFinit(); }, Qt::DirectConnection);
    ecouteSignaux();
}

#if defined(Q_OS_UNIX)

namespace {

constexpr int signaux[] = {SIGTERM, SIGINT, SIGHUP};
int tube[2] = {-1, -1};

/// A signal handler may do nearly nothing: the event loop does the rest.
extern "C" void noteSignal(int signal)
{
    const char octet = char(signal);
    [[maybe_unused]] const ssize_t ecrit = ::write(tube[1], &octet, 1);
}

} // namespace

void FinDemandee::ecouteSignaux()
{
    if (::pipe(tube) != 0)
        return qWarning("Signals cannot be listened to: they end the program at once.");
    for (const int bout : tube) {
        ::fcntl(bout, F_SETFD, FD_CLOEXEC);
        ::fcntl(bout, F_SETFL, O_NONBLOCK);
    }
    m_tube = new QSocketNotifier(tube[0], QSocketNotifier::Read, this);
    connect(m_tube, &QSocketNotifier::activated, this, &FinDemandee::recoitSignal);
    for (const int signal : signaux) {
        struct sigaction avant
        {
        };
        struct sigaction action
        {
        };
        action.sa_handler = noteSignal;
        action.sa_flags = SA_RESTART;
        ::sigaction(signal, nullptr, &avant);
        // Whoever started the program under nohup wants it to outlive its terminal.
        if (avant.sa_handler != SIG_IGN)
            ::sigaction(signal, &action, nullptr);
    }
}

void FinDemandee::recoitSignal()
{
    char octet = 0;
    while (::read(tube[0], &octet, 1) == 1) {}
    m_demandee = true;
    Q_EMIT demandee();
}

FinDemandee::~FinDemandee()
{
    for (const int signal : signaux) {
        struct sigaction action
        {
        };
        ::sigaction(signal, nullptr, &action);
        if (action.sa_handler == noteSignal)
            ::signal(signal, SIG_DFL);
    }
    delete m_tube;
    for (int &bout : tube)
        ::close(std::exchange(bout, -1));
}

#else

void FinDemandee::ecouteSignaux() {}

void FinDemandee::recoitSignal() {}

FinDemandee::~FinDemandee() = default;

#endif
