#include "unix_signals.h"

#include <QCoreApplication>

#ifdef Q_OS_UNIX
#include <QSocketNotifier>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace {
int g_signalPipe[2] = {-1, -1};
std::function<void()> g_handler;

void onSignal(int)
{
    const char byte = 1;
    // Only async-signal-safe work here: wake the event loop through the pipe.
    [[maybe_unused]] const ssize_t n = ::write(g_signalPipe[0], &byte, 1);
}
} // namespace

namespace lumitra {

void install_quit_on_terminate_signals()
{
    if (g_signalPipe[0] != -1)
        return;
    if (::socketpair(AF_UNIX, SOCK_STREAM, 0, g_signalPipe) != 0)
        return;
    auto *notifier =
        new QSocketNotifier(g_signalPipe[1], QSocketNotifier::Read, QCoreApplication::instance());
    QObject::connect(notifier, &QSocketNotifier::activated, notifier, [] {
        char byte;
        [[maybe_unused]] const ssize_t n = ::read(g_signalPipe[1], &byte, 1);
        if (g_handler)
            g_handler();
        else
            QCoreApplication::exit(0);
    });
    struct sigaction action = {};
    action.sa_handler = onSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    sigaction(SIGTERM, &action, nullptr);
    sigaction(SIGINT, &action, nullptr);
}

void set_terminate_signal_handler(const std::function<void()> &handler)
{
    g_handler = handler;
}

} // namespace lumitra
#else
namespace lumitra {
void install_quit_on_terminate_signals() {}
void set_terminate_signal_handler(const std::function<void()> &) {}
} // namespace lumitra
#endif
