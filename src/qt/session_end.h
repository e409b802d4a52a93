#pragma once

#include <QSocketNotifier>

#include <functional>

namespace horvanta {

/// Saves the settings before the login session ends, and ends the program in good order when it is told to by SIGTERM,
/// SIGINT or SIGHUP. A signal waits for the event loop. One lives at a time.
class SessionEnd {
  public:
    SessionEnd();

    std::function<void()> Save;   ///< Saves the settings and goes on: the user may yet stay.
    std::function<bool()> Close;  ///< Saves the settings and ends; false if that is not possible yet.

  private:
    void TryToClose();

    QSocketNotifier notifier_;
};

}  // namespace horvanta
