#pragma once

#include "core/shell.h"
#include "reports/report_road.h"
#include "views/progress_window.h"
#include "views/report_finished_window.h"

namespace horvanta {

/// The reports of the menu, and the windows through which each of them goes.
class ReportMenu {
  public:
    explicit ReportMenu(HorvantaMDI& frame);

    /// Adapts the items to the displayed day and to which windows are open.
    void Update();

    ProgressWindow progress;
    ReportFinishedWindow finished;

  private:
    HorvantaMDI& frame_;
    ReportRoad road_;
};

}  // namespace horvanta
