#pragma once

#include <QLocalServer>
#include <QLockFile>

#include <functional>
#include <memory>

namespace horvanta {

/// Lets one program run for each settings folder. A second start asks the first to come forward.
class SingleInstance {
  public:
    SingleInstance();

    /// True for the first; false if another runs, which has then been asked to come forward.
    bool Claim();

    /// Called in the first whenever another start asks.
    std::function<void()> ComeForward;

  private:
    QString address_;
    std::unique_ptr<QLockFile> lock_;
    QLocalServer server_;
};

}  // namespace horvanta
