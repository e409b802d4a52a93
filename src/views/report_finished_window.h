#pragma once

#include "core/controls.h"
#include "core/shell.h"

#include <string>
#include <string_view>

namespace horvanta {

/// What can be done with a report that has been written. It keeps the user from all other windows.
class ReportFinishedWindow {
  public:
    explicit ReportFinishedWindow(HorvantaMDI& frame);

    /// Shows itself for the file of a report: what the report is called, what its form is called, and what can be done
    /// with a file of that form.
    void ShowReportFinished(const std::string& path, const std::string& description, std::string_view formText,
                            std::string_view hint);

    // Commands of the controls.
    void LaunchButton_Click();
    void CopyPathButton_Click();
    void SelectButton_Click();
    void CancelButton_Click();
    void OKButton_Click();

    // clang-format off
    Form form{"ReportFinished", "Report Finished"};
    Label ReportTitle{form, "ReportTitle"};
    Label PathInfo{form, "PathInfo"};
    TextField FilePath{form, "FilePath", Named("Path"), Tip("Read-only, use arrow keys or Home or End  to examine entire path"), Widest("/home/somebody/Documents/Postponements-5784-5802-(19-years).htm")};
    Label LaunchHint{form, "LaunchHint"};
    Button LaunchButton{form, "LaunchButton", Caption("&Launch"), Tip("Launches the application that you have configured to open this file type, if any")};
    Button CopyPathButton{form, "CopyPathButton", Caption("Copy &Path to Clipboard"), Tip("Copies the path of the file")};
    Button SelectButton{form, "SelectButton", Caption("&Select File in Location"), Tip("Shows the file in the file manager")};
    Button CancelButton{form, "CancelButton", Caption("Cancel and &Delete File"), Tip("Warning: Clicking this button will delete the report file!")};
    Button OKButton{form, "OKButton", Caption("&OK"), Tip("OK just dismisses this dialog")};
    // clang-format on

  private:
    void Dismiss();

    HorvantaMDI& frame_;
};

}  // namespace horvanta
