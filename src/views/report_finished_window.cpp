#include "views/report_finished_window.h"

#include "core/desktop.h"

#include <cerrno>
#include <cstdio>
#include <system_error>

namespace horvanta {

ReportFinishedWindow::ReportFinishedWindow(HorvantaMDI& frame) : frame_(frame) {
    form.modal = true;
    FilePath.readOnly = true;
    form.Close = OKButton.Click = [this] { OKButton_Click(); };
    form.KeyDown = [this](int code, int) {
        if (code == KeyEscape) OKButton_Click();
        return code == KeyEscape;
    };
    LaunchButton.Click = [this] { LaunchButton_Click(); };
    CopyPathButton.Click = [this] { CopyPathButton_Click(); };
    SelectButton.Click = [this] { SelectButton_Click(); };
    CancelButton.Click = [this] { CancelButton_Click(); };
}

void ReportFinishedWindow::ShowReportFinished(const std::string& path, const std::string& description,
                                              std::string_view formText, std::string_view hint) {
    ReportTitle.text = description;
    PathInfo.text = "Path to report " + std::string(formText) + " file:";
    FilePath.text = path;
    LaunchHint.text = hint;
    form.visible = true;
    LaunchButton.TakeFocus();
}

/// Stays, for who has seen the report may want to delete it.
void ReportFinishedWindow::LaunchButton_Click() { CurrentDesktop->OpenWithShell(FilePath.text); }

void ReportFinishedWindow::CopyPathButton_Click() {
    frame_.SetClipboardText(FilePath.text);
    Dismiss();
}

void ReportFinishedWindow::SelectButton_Click() {
    CurrentDesktop->SelectFile(FilePath.text);
    Dismiss();
}

void ReportFinishedWindow::CancelButton_Click() {
    if (std::remove(FilePath.text.c_str()) != 0 && errno != ENOENT) {
        const std::string reason = std::generic_category().message(errno);
        CurrentDesktop->Tell(FilePath.text + "\ncan't be deleted: " + reason + ".", "Cancel and Delete File");
    }
    Dismiss();
}

void ReportFinishedWindow::OKButton_Click() { Dismiss(); }

void ReportFinishedWindow::Dismiss() {
    form.visible = false;
    frame_.TakeFocus();
}

}  // namespace horvanta
