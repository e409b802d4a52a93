#include "app/horvanta.h"
#include "astro/ephemeris_files.h"
#include "qt/command_line.h"
#include "qt/first_paint.h"
#include "qt/qt_desktop.h"
#include "qt/session_end.h"
#include "qt/single_instance.h"

#include <QApplication>
#include <QIcon>
#include <QStandardPaths>
#include <QTimer>

#include <cstdio>
#include <optional>

namespace {

/// Leaves a picture of the main window in the file that the environment names, and ends. For the README and for
/// machines without a display.
void TakePicture(horvanta::Horvanta& program, horvanta::Frame& frame) {
    const QString path = qEnvironmentVariable("HORVANTA_SCREENSHOT");
    if (path.isEmpty()) return;
    constexpr int settled = 500;  // milliseconds until the windows are surely painted
    QTimer::singleShot(settled, &frame, [path, &program, &frame] {
        frame.grab().save(path);
        program.MenuExit_Click();
    });
}

/// Ends after the first paint of all windows if the environment asks for it, so that the start can be timed, or what
/// it makes of the settings be seen.
void EndAfterPaint(horvanta::Horvanta& program, horvanta::Frame& frame) {
    const QString wish = qEnvironmentVariable("HORVANTA_END_AFTER");
    if (wish == QStringLiteral("paint")) {
        new horvanta::FirstPaint(frame, [&program] { program.QuitWithoutSavePrefs_Click(); });
    } else if (wish == QStringLiteral("save")) {
        new horvanta::FirstPaint(frame, [&program] { program.EndSession(); });
    }
}

/// How a start ends that is not the first; nothing for the first.
std::optional<int> StatusOf(horvanta::SingleInstance::Outcome outcome) {
    using Outcome = horvanta::SingleInstance::Outcome;
    if (outcome == Outcome::First) return std::nullopt;
    if (outcome == Outcome::Answered) return 0;
    std::fputs("Horvanta is running already, but does not answer.\n", stderr);
    return 1;
}

/// The ephemeris files lie beside the program, or in the user's data.
void TellWhereEphemeridesAre() {
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    horvanta::ephemeris::SetFolders(
        {QCoreApplication::applicationDirPath().toStdString(), (data + QStringLiteral("/Horvanta")).toStdString()});
}

}  // namespace

int main(int argc, char* argv[]) {
    if (const auto status = horvanta::ObeyArguments(argc, argv)) return *status;
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("horvanta"));
    QApplication::setDesktopFileName(QStringLiteral("org.horvanta.Horvanta"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/horvanta.png")));

    horvanta::SingleInstance instance;
    if (const auto status = StatusOf(instance.Claim())) return *status;

    TellWhereEphemeridesAre();
    horvanta::QtDesktop desktop;
    horvanta::CurrentDesktop = &desktop;
    horvanta::Horvanta program;
    horvanta::SessionEnd sessionEnd;
    sessionEnd.Save = [&program] { program.SaveSession(); };
    sessionEnd.End = [&program] { program.EndSession(); };
    program.Start();
    desktop.frame()->Draw();
    instance.ComeForward = [&desktop] { desktop.frame()->ComeForward(); };
    TakePicture(program, *desktop.frame());
    EndAfterPaint(program, *desktop.frame());
    return QApplication::exec();
}
