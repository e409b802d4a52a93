#include "qt/qt_desktop.h"

#include "core/text.h"
#include "qt/face.h"
#include "qt/forms.h"
#include "qt/information_box.h"
#include "qt/new_file_dialog.h"

#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontMetrics>
#include <QGridLayout>
#include <QInputDialog>
#include <QMenu>
#include <QMessageBox>
#include <QStandardPaths>
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
            QMessageBox::StandardButtons buttons, QMessageBox::StandardButton standard) {
    frame.Draw();
    QMessageBox box(icon, QString::fromUtf8(title), QString::fromUtf8(message), buttons, &frame);
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box.setDefaultButton(standard);
    MakeRoomForLines(box);
    return box.exec();
}

}  // namespace

void QtDesktop::LoadFrame(HorvantaMDI& shell) { frame_ = std::make_unique<Frame>(shell); }

void QtDesktop::LoadForm(Form& form) {
    form.modal ? frame_->LoadDialog(form) : frame_->Load(form, MakeForm(form.name));
}

/// Nothing runs before the frame is shown: the start shows it once it holds everything, and paints it only once.
void QtDesktop::LetEventsRun() {
    if (frame_->isVisible()) frame_->LetEventsRun();
}

void QtDesktop::Beep() { QApplication::beep(); }

void QtDesktop::ShowStatus(std::string_view line) { frame_->ShowStatus(QString::fromUtf8(line)); }

bool QtDesktop::AskYesNo(std::string_view question, std::string_view title) {
    constexpr auto buttons = QMessageBox::Yes | QMessageBox::No;
    return ShowBox(*frame_, QMessageBox::Question, question, title, buttons, QMessageBox::Yes) == QMessageBox::Yes;
}

bool QtDesktop::AskOkCancel(std::string_view question, std::string_view title) {
    constexpr auto buttons = QMessageBox::Ok | QMessageBox::Cancel;
    return ShowBox(*frame_, QMessageBox::Warning, question, title, buttons, QMessageBox::Ok) == QMessageBox::Ok;
}

YesNoCancel QtDesktop::AskYesNoCancel(std::string_view question, std::string_view title) {
    constexpr auto buttons = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    const int pressed = ShowBox(*frame_, QMessageBox::Question, question, title, buttons, QMessageBox::Yes);
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

/// A name of none of the kinds is given the ending of the chosen one, which the dialog, asking by itself whether to
/// replace a file, would not know of.
std::optional<std::string> QtDesktop::ChooseNewFile(std::string_view title, const std::string& name,
                                                    const std::vector<FileKind>& kinds) {
    frame_->Draw();
    if (newFilesFolder_.isEmpty()) {
        newFilesFolder_ = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
        if (!QFileInfo(newFilesFolder_).isDir()) newFilesFolder_ = QDir::homePath();
    }
    NewFileDialog dialog(frame_.get(), QString::fromUtf8(title), newFilesFolder_, QString::fromStdString(name), kinds);
    while (dialog.exec() == QDialog::Accepted) {
        const QString path = dialog.Path();
        const std::string question = path.toStdString() + "\n\nThere is a file of this name. Replace it?";
        const bool isFree = !QFileInfo::exists(path);
        if (isFree || ShowBox(*frame_, QMessageBox::Question, question, title, QMessageBox::Yes | QMessageBox::No,
                              QMessageBox::No) == QMessageBox::Yes) {
            newFilesFolder_ = QFileInfo(path).path();
            return path.toStdString();
        }
    }
    return std::nullopt;
}

void QtDesktop::Tell(std::string_view message, std::string_view title) {
    ShowBox(*frame_, QMessageBox::Information, message, title, QMessageBox::Ok, QMessageBox::Ok);
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

/// By the interface that file managers of the desktops share, or else by opening the folder.
void QtDesktop::SelectFile(const std::string& path) {
    const QUrl file = QUrl::fromLocalFile(QString::fromStdString(path));
    const QString service = QStringLiteral("org.freedesktop.FileManager1");
    QDBusMessage call = QDBusMessage::createMethodCall(service, QStringLiteral("/org/freedesktop/FileManager1"),
                                                       service, QStringLiteral("ShowItems"));
    call << QStringList(file.toString(QUrl::FullyEncoded)) << QString();
    const QDBusPendingCall answer = QDBusConnection::sessionBus().asyncCall(call);
    auto* watcher = new QDBusPendingCallWatcher(answer, frame_.get());
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher, [this, watcher, file] {
        if (watcher->isError()) OpenWithShell(file.adjusted(QUrl::RemoveFilename).toLocalFile().toStdString());
        watcher->deleteLater();
    });
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
