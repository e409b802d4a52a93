#pragma once

#include "core/shell.h"
#include "reports/report.h"
#include "reports/report_file.h"
#include "reports/report_forms.h"
#include "views/progress_window.h"
#include "views/report_finished_window.h"

#include <string>
#include <string_view>

namespace horvanta {

/// The way of every report from its menu item to the finished file.
class ReportRoad {
  public:
    ReportRoad(HorvantaMDI& frame, ProgressWindow& progress, ReportFinishedWindow& finished)
        : frame_(frame), progress_(progress), finished_(finished) {}

    /// Asks for a file, writes the report to it with its progress shown, and tells the end. The user can give it up all
    /// along; then, and if anything fails, an older file of that name is as it was.
    void Run(const Report& report);

  private:
    bool MakeFile(const Report& report, const ReportForm& form, const std::string& path);
    void WriteRows(const Report& report, const ReportForm& form, ReportFile& file);

    HorvantaMDI& frame_;
    ProgressWindow& progress_;
    ReportFinishedWindow& finished_;
};

/// A bare name as one that any disk takes: blanks and "/" become "-", commas go.
std::string CleanFileName(std::string_view name);

/// The file that the user chooses for a report; empty if he cancels.
std::string AskReportFile(const Report& report);

}  // namespace horvanta
