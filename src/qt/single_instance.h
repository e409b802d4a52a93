#pragma once

#include <QSocketNotifier>

#include <chrono>
#include <functional>
#include <memory>
#include <string>

namespace horvanta {

/// Lets one program run for each settings folder. A second start asks the first to come forward.
///
/// The system holds the lock on a file in that folder as long as the process lives, whatever the file says and whoever
/// else has its process number. A socket beside it carries the call.
class SingleInstance {
  public:
    enum class Outcome {
        First,     ///< None other runs.
        Answered,  ///< Another runs and comes forward.
        Silent,    ///< Another runs, but gave no answer within two seconds.
    };

    SingleInstance();
    ~SingleInstance();
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;

    Outcome Claim();

    /// Called in the first whenever another start asks.
    std::function<void()> ComeForward;

  private:
    using Time = std::chrono::steady_clock::time_point;

    bool Lock();
    bool isAnswered(Time deadline) const;
    void Listen();
    void Answer();

    int folder_;
    int lock_ = -1;
    int listener_ = -1;
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace horvanta
