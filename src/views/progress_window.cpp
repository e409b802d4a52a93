#include "views/progress_window.h"

#include "core/desktop.h"
#include "core/moment.h"

namespace horvanta {

ProgressWindow::ProgressWindow() {
    form.modal = true;
    form.Close = [this] { CancelButton_Click(); };
    CancelButton.Click = form.Close;
    CancelButton.whileBusy = true;
    CancelButton.KeyDown = [this](int code, int) {
        if (code == KeyEscape) CancelButton_Click();
        return code == KeyEscape;
    };
}

void ProgressWindow::Setup(const std::string& path, std::int32_t maximum) {
    CancelReport = false;
    Bar.value = 0;
    Bar.maximum = maximum;
    form.text = "Reporting \"" + path.substr(path.rfind('/') + 1) + "\"";
    form.visible = true;
    CancelButton.TakeFocus();
    heard_ = {};
}

/// Drawing takes longer than a row does.
bool ProgressWindow::Step(std::int32_t done) {
    constexpr std::int32_t steps = 100;                       // that can be told apart on the bar
    constexpr auto patience = std::chrono::milliseconds(50);  // of the user, who is answered in twice that
    const auto now = std::chrono::steady_clock::now();
    const auto stepOf = [this](std::int32_t value) { return std::int64_t{value} * steps / Bar.maximum; };
    if (stepOf(done) != stepOf(Bar.value) || now - heard_ >= patience) {
        Bar.value = done;
        CurrentDesktop->LetEventsRun();
        heard_ = std::chrono::steady_clock::now();
    }
    CancelReport = CancelReport || Quitting;
    return !CancelReport;
}

}  // namespace horvanta
