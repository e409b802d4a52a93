#include "qt/session_end.h"

#include <QGuiApplication>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

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

SessionEnd* living = nullptr;

/// The toolkit leaves the process at once when it loses the display, as at the end of a session without a manager.
void SaveAtExit() {
    if (living) std::exchange(living, nullptr)->Save();
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
        End();
    });
    QObject::connect(
        qGuiApp, &QGuiApplication::commitDataRequest, &notifier_, [this] { Save(); }, Qt::DirectConnection);
    living = this;
    [[maybe_unused]] static const int registered = std::atexit(SaveAtExit);
}

SessionEnd::~SessionEnd() { living = nullptr; }

}  // namespace horvanta
