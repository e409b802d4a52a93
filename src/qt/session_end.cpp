#include "qt/session_end.h"

#include <QGuiApplication>
#include <QTimer>

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace horvanta {
namespace {

/// A handler may do next to nothing, so it writes a byte that wakes the event loop.
int signalPipe[2] = {-1, -1};

void WakeEventLoop(int) {
    const int before = errno;
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = write(signalPipe[1], &byte, 1);
    errno = before;
}

/// What the caller had ignored, as `nohup` does, stays so.
void Catch(int signal) {
    struct sigaction action {};
    sigaction(signal, nullptr, &action);
    if (action.sa_handler == SIG_IGN) return;
    action.sa_handler = WakeEventLoop;
    action.sa_flags = SA_RESTART;
    sigaction(signal, &action, nullptr);
}

int OpenPipe() {
    if (pipe2(signalPipe, O_CLOEXEC | O_NONBLOCK) != 0) return -1;
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) Catch(signal);
    return signalPipe[0];
}

}  // namespace

SessionEnd::SessionEnd() : notifier_(OpenPipe(), QSocketNotifier::Read) {
    QObject::connect(&notifier_, &QSocketNotifier::activated, &notifier_, [this] {
        std::array<char, 16> bytes;
        while (read(signalPipe[0], bytes.data(), bytes.size()) > 0) {
        }
        TryToClose();
    });
    QObject::connect(
        qGuiApp, &QGuiApplication::commitDataRequest, &notifier_, [this] { Save(); }, Qt::DirectConnection);
}

/// Asks again while the program is busy.
void SessionEnd::TryToClose() {
    constexpr int pause = 100;  // milliseconds
    if (!Close()) QTimer::singleShot(pause, &notifier_, [this] { TryToClose(); });
}

}  // namespace horvanta
