#include "qt/qt_desktop.h"

#include "core/text.h"
#include "qt/face.h"
#include "qt/forms.h"
#include "qt/information_box.h"

#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFontMetrics>
#include <QGridLayout>
#include <QInputDialog>
#include <QMenu>
#include <QMessageBox>
#include <QUrl>

#include <algorithm>

namespace horvanta {
namespace {

/// Gives a box the width of the lines of its text, up to what the eye can follow; by itself it breaks them early.
void MakeRoomForLines(QMessageBox& box) {
    constexpr int readable = 110;  // characters in a line
    constexpr int icons = 12;      // as many beside the text
    const QFontMetrics metrics = box.fontMetrics();
    const int text = std::min(metrics.size(0, box.text()).width(), readable * metrics.averageCharWidth());
    auto* grid = static_cast<QGridLayout*>(box.layout());
    grid->addItem(new QSpacerItem(text + icons * metrics.averageCharWidth(), 0), grid->rowCount(), 0, 1,
                  grid->columnCount());
}

/// A box with a text that can be selected, as it is, whatever signs it holds, over windows that have been drawn.
int ShowBox(Frame& frame, QMessageBox::Icon icon, std::string_view message, std::string_view title,
            QMessageBox::StandardButtons buttons) {
    frame.Draw();
    QMessageBox box(icon, QString::fromUtf8(title), QString::fromUtf8(message), buttons, &frame);
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box.setDefaultButton(buttons.testFlag(QMessageBox::Yes) ? QMessageBox::Yes : QMessageBox::Ok);
    MakeRoomForLines(box);
    return box.exec();
}

}  // namespace

void QtDesktop::LoadFrame(HorvantaMDI& shell) { frame_ = std::make_unique<Frame>(shell); }

void QtDesktop::LoadForm(Form& form) { frame_->Load(form, MakeForm(form.name)); }

/// Nothing runs before the frame is shown: the start shows it once it holds everything, and paints it only once.
void QtDesktop::LetEventsRun() {
    if (frame_->isVisible()) frame_->LetEventsRun();
}

void QtDesktop::Beep() { QApplication::beep(); }

void QtDesktop::ShowStatus(std::string_view line) { frame_->ShowStatus(QString::fromUtf8(line)); }

bool QtDesktop::AskYesNo(std::string_view question, std::string_view title) {
    constexpr auto buttons = QMessageBox::Yes | QMessageBox::No;
    return ShowBox(*frame_, QMessageBox::Question, question, title, buttons) == QMessageBox::Yes;
}

YesNoCancel QtDesktop::AskYesNoCancel(std::string_view question, std::string_view title) {
    constexpr auto buttons = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    const int pressed = ShowBox(*frame_, QMessageBox::Question, question, title, buttons);
    if (pressed == QMessageBox::Yes) return YesNoCancel::Yes;
    return pressed == QMessageBox::No ? YesNoCancel::No : YesNoCancel::Cancel;
}

std::optional<std::string> QtDesktop::AskText(std::string_view prompt, std::string_view title,
                                              std::string_view initial) {
    frame_->Draw();
    bool accepted = false;
    const QString text = QInputDialog::getText(frame_.get(), QString::fromUtf8(title), QString::fromUtf8(prompt),
                                               QLineEdit::Normal, QString::fromUtf8(initial), &accepted);
    return accepted ? std::optional(text.toStdString()) : std::nullopt;
}

std::optional<std::string> QtDesktop::ChooseFile(std::string_view title) {
    frame_->Draw();
    const QString path = QFileDialog::getOpenFileName(frame_.get(), QString::fromUtf8(title));
    return path.isEmpty() ? std::nullopt : std::optional(path.toStdString());
}

void QtDesktop::Tell(std::string_view message, std::string_view title) {
    ShowBox(*frame_, QMessageBox::Information, message, title, QMessageBox::Ok);
}

/// What is escaped in an address stays so. The opener works in the folder that `SystemDrive` names, if it names one.
void QtDesktop::OpenWithShell(const std::string& path) {
    const QString before = QDir::currentPath();
    const QString drive = qEnvironmentVariable("SystemDrive");
    if (!drive.isEmpty()) QDir::setCurrent(drive);
    if (!QDesktopServices::openUrl(QUrl::fromUserInput(QString::fromStdString(path))))
        Refuse(path + " can't be opened");
    QDir::setCurrent(before);
}

bool QtDesktop::ShowInformation(std::string_view text, std::string_view title) {
    frame_->Draw();
    const std::string paragraphs = Unwrapped(text);
    return InformationBox(QString::fromStdString(paragraphs), QString::fromUtf8(title), frame_.get()).exec() ==
           QDialog::Accepted;
}

std::optional<std::size_t> QtDesktop::ChooseFromMenu(const std::vector<std::string>& captions) {
    frame_->Draw();
    QMenu menu(frame_.get());
    for (const std::string& caption : captions) {
        if (caption == "-") {
            menu.addSeparator();
        } else {
            menu.addAction(QString::fromStdString(caption));
        }
    }
    menu.setActiveAction(menu.actions().value(0));
    const auto chosen = menu.actions().indexOf(menu.exec(frame_->MenuPlace()));
    return chosen < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(chosen));
}

std::optional<Color> QtDesktop::ChooseColor(Color present, std::string_view title) {
    frame_->Draw();
    const QColor chosen = QColorDialog::getColor(ToQColor(present), frame_.get(), QString::fromUtf8(title));
    if (!chosen.isValid()) return std::nullopt;
    return ToColor(chosen);
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
