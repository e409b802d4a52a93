#pragma once

#include <QSocketNotifier>

#include <functional>

namespace horvanta {

/// Saves the settings before the login session ends or the display goes away, and ends the program in good order when
/// it is told to by SIGTERM, SIGINT or SIGHUP. A signal waits for the event loop. One lives at a time.
class SessionEnd {
  public:
    SessionEnd();
    ~SessionEnd();
    SessionEnd(const SessionEnd&) = delete;
    SessionEnd& operator=(const SessionEnd&) = delete;

    std::function<void()> Save;  ///< Saves the settings and goes on: the user may yet stay.
    std::function<void()> End;   ///< Saves the settings and ends, without a question.

  private:
    QSocketNotifier notifier_;
};

}  // namespace horvanta
