#pragma once

#include "core/controls.h"

#include <chrono>
#include <cstdint>
#include <string>

namespace horvanta {

/// How far a report has come. While it runs, nothing but this window's button hears the user.
class ProgressWindow {
  public:
    ProgressWindow();

    /// Shows itself for a report that goes to a file in so many rounds.
    void Setup(const std::string& path, std::int32_t maximum);

    /// Moves the bar, and often enough lets events run, so that the user is heard in time. False if the report is to
    /// stop.
    bool Step(std::int32_t done);

    void Hide() { form.visible = false; }

    void CancelButton_Click() { CancelReport = true; }

    bool CancelReport = false;  ///< The user gave the report up, or the program is about to end.

    // clang-format off
    Form form{"Progress", "Progress"};
    ProgressBar Bar{form, "Bar", Named("Progress of the report")};
    Button CancelButton{form, "CancelButton", Caption("Cancel"), Tip("Stops the report; an older file of its name stays")};
    // clang-format on

  private:
    std::chrono::steady_clock::time_point heard_;  ///< When events ran last.
};

}  // namespace horvanta
