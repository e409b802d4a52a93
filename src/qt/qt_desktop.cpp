#include "qt/qt_desktop.h"

#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QDateTime>
#include <QMessageBox>

namespace horvanta {
namespace {

std::uint8_t Channel(int value) { return static_cast<std::uint8_t>(value); }

}  // namespace

void QtDesktop::LoadFrame(HorvantaMDI& shell) { frame_ = std::make_unique<Frame>(shell); }

void QtDesktop::LoadForm(Form& form) { frame_->Load(form); }

void QtDesktop::LetEventsRun() {
    frame_->Draw();
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void QtDesktop::Beep() { QApplication::beep(); }

bool QtDesktop::AskYesNo(std::string_view question, std::string_view title) {
    frame_->Draw();
    QMessageBox box(QMessageBox::Question, QString::fromUtf8(title), QString::fromUtf8(question),
                    QMessageBox::Yes | QMessageBox::No, frame_.get());
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box.setDefaultButton(QMessageBox::Yes);
    return box.exec() == QMessageBox::Yes;
}

std::optional<Color> QtDesktop::ChooseColor(Color present) {
    frame_->Draw();
    const QColor chosen = QColorDialog::getColor(QColor(present.red, present.green, present.blue), frame_.get());
    if (!chosen.isValid()) return std::nullopt;
    return Color{Channel(chosen.red()), Channel(chosen.green()), Channel(chosen.blue())};
}

void QtDesktop::SetClipboard(const std::string& text) {
    QGuiApplication::clipboard()->setText(QString::fromUtf8(text));
}

LocalClock QtDesktop::Clock() {
    const QDateTime now = QDateTime::currentDateTime();
    const qint64 days = QDate(1970, 1, 1).daysTo(now.date());
    constexpr double millisecondsPerDay = 86'400'000;
    return {static_cast<double>(days), now.time().msecsSinceStartOfDay() / millisecondsPerDay};
}

/// `quit` would ask the windows first, and their closing is what calls this.
void QtDesktop::End() { QCoreApplication::exit(); }

}  // namespace horvanta
