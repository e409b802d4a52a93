// Holds a key down over all windows and compares what the engine takes of each step with what drawing and painting it
// take. Fails where the engine's part is more than a tenth.

#include "app/horvanta.h"
#include "core/moment.h"
#include "qt/qt_desktop.h"

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>

#include <chrono>
#include <cstdio>

namespace {

constexpr int steps = 300;
constexpr double atMost = 0.1;

double SecondsOf(const auto& work) {
    const auto from = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - from).count();
}

}  // namespace

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
    horvanta::QtDesktop desktop;
    horvanta::CurrentDesktop = &desktop;
    horvanta::Horvanta program;
    program.Start();
    for (const auto* item : {&program.frame.JulianCal, &program.frame.PersianCal, &program.frame.OrientCal}) {
        item->Click();
    }
    desktop.frame()->Draw();
    QCoreApplication::processEvents();

    double engine = 0;
    double painting = 0;
    for (int i = 0; i < steps; ++i) {
        engine += SecondsOf([&] { program.timeAstro.NextUp_Click(); });
        painting += SecondsOf([&] {
            desktop.frame()->Draw();
            QCoreApplication::processEvents();
        });
    }
    const double ratio = engine / painting;
    std::printf("\nA step of a held key: engine %.0f us, drawing and painting %.0f us\nratio %.4f, at most %.1f%s\n",
                engine / steps * 1e6, painting / steps * 1e6, ratio, atMost, ratio > atMost ? "  MISSED" : "");
    return ratio > atMost ? 1 : 0;
}
