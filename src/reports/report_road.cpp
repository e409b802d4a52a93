#include "reports/report_road.h"

#include "core/desktop.h"
#include "core/moment.h"
#include "core/text.h"

#include <utility>

namespace horvanta {
namespace {

void TellFailure(const ReportFile& file, const std::string& path, const std::string& description) {
    CurrentDesktop->Tell("The report can't be written to\n" + path + "\n\n" + file.failure() + ".", description);
}

/// Nothing is to be left of a report that did not become a file; where the folder has been closed meanwhile, it is.
void RemoveOrTell(ReportFile& file, const std::string& description) {
    const std::string failure = file.Remove();
    if (failure.empty()) return;
    CurrentDesktop->Tell("What was written is left in\n" + file.beside() + "\n\nIt can't be deleted: " + failure + ".",
                         description);
}

/// Tries until the report stands in its place, or the user gives up.
bool TakePlace(ReportFile& file, const std::string& path, const std::string& description) {
    while (!file.TakePlace()) {
        if (!file.hasOlder()) {
            TellFailure(file, path, description);
            return false;
        }
        const bool again = CurrentDesktop->AskOkCancel(
            "Can't delete file:\n" + path + "\n(" + file.failure() +
                ")\n\nIs the file open in another program?\nClose it now, then click OK to continue:",
            "File In Use");
        if (!again) return false;
    }
    return true;
}

}  // namespace

std::string CleanFileName(std::string_view name) {
    return ReplaceAll(ReplaceAll(ReplaceAll(name, ",", ""), " ", "-"), "/", "-");
}

std::string AskReportFile(const Report& report) {
    std::vector<FileKind> kinds;
    for (const ReportForm& form : ReportForms) kinds.push_back({form.kind, form.extension});
    const std::string name = CleanFileName(report.fileName) + "." + std::string(kinds.front().extension);
    return CurrentDesktop->ChooseNewFile("Save As (" + report.description + ")", name, kinds).value_or("");
}

void ReportRoad::Run(const Report& report) {
    const BusyHold hold;
    const std::string path = AskReportFile(report);
    if (path.empty()) return;
    const ReportForm& form = FormOfFile(path);
    if (MakeFile(report, form, path)) {
        finished_.ShowReportFinished(path, report.description, form.text, form.hint);
    } else {
        frame_.TakeFocus();
    }
}

bool ReportRoad::MakeFile(const Report& report, const ReportForm& form, const std::string& path) {
    ReportFile file(path);
    if (!file.hasFailed()) {
        progress_.Setup(path, report.length);
        WriteRows(report, form, file);
        progress_.Hide();
    }
    if (std::exchange(progress_.CancelReport, false)) {
        Refuse("the report was canceled");
    } else if (file.hasFailed()) {
        TellFailure(file, path, report.description);
    } else if (TakePlace(file, path, report.description)) {
        return true;
    }
    RemoveOrTell(file, report.description);
    return false;
}

/// Ends early when the user gives the report up or the file fails.
void ReportRoad::WriteRows(const Report& report, const ReportForm& form, ReportFile& file) {
    const auto writer = form.MakeWriter(report);
    std::string text;
    writer->Head(text);
    for (std::int32_t index = 0; index < report.length && !file.hasFailed(); ++index) {
        if (!progress_.Step(index)) return;
        writer->Row(report.row(index), text);
        file.Write(text);
        text.clear();
    }
    writer->Foot(text);
    file.Write(text);
    file.Complete();
    progress_.Step(report.length);
}

}  // namespace horvanta
