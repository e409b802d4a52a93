#pragma once

#include "app/horvanta.h"
#include "core/moment.h"
#include "qt/information_box.h"
#include "qt/qt_desktop.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFont>
#include <QMdiSubWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <functional>
#include <optional>

inline QByteArray BytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline void Put(const QString& path, const QByteArray& bytes) {
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

/// Each test has a folder of its own for its settings.
class TestOfProgram : public QObject {
    Q_OBJECT

  protected:
    static QString SettingsPath() { return horvanta::SettingsFile::PathOf(horvanta::ProgramSettings); }
    static QByteArray Settings() { return BytesOf(SettingsPath()); }

    std::optional<QTemporaryDir> folder_;

  private Q_SLOTS:
    void init() {
        folder_.emplace();
        qputenv("XDG_CONFIG_HOME", folder_->path().toUtf8());
    }
};

/// The font of the program in another size, until the end of the block.
class ScaledFont {
  public:
    explicit ScaledFont(double scale) {
        QFont scaled = standard_;
        scaled.setPointSizeF(standard_.pointSizeF() * scale);
        QApplication::setFont(scaled);
    }
    ~ScaledFont() { QApplication::setFont(standard_); }

  private:
    const QFont standard_ = QApplication::font();
};

/// The whole program.
struct Session {
    /// Without a size the frame keeps that of the screen.
    explicit Session(const QSize& size = QSize(1400, 900)) {
        horvanta::CurrentDesktop = &desktop;
        program.Start();
        frame().Draw();
        if (size.isValid()) {
            frame().showNormal();  // a maximized frame would keep that size too
            frame().resize(size);
        }
        AwaitActive();
    }
    ~Session() { horvanta::CurrentDesktop = nullptr; }

    horvanta::Frame& frame() { return *desktop.frame(); }

    template <class Widget>
    Widget* Find(const char* name) {
        const QString object = QString::fromLatin1(name);
        auto* ofTime = Window(program.timeAstro.form)->findChild<Widget*>(object);  // names are those of one window
        return ofTime ? ofTime : frame().findChild<Widget*>(object);
    }

    QMdiSubWindow* Window(const horvanta::Form& form) {
        return frame().findChild<QMdiSubWindow*>(QString::fromStdString(form.name));
    }

    QWidget* Dialog(const horvanta::Form& form) {
        return frame().findChild<QDialog*>(QString::fromStdString(form.name));
    }

    /// The frame, or the dialog before it. A box that was closed leaves no window active for a while, and a window
    /// manager that has just been started forgets what it is asked.
    void AwaitActive() {
        constexpr int patience = 100;  // milliseconds
        QWidget* dialog = QApplication::activeModalWidget();
        QWidget& window = dialog ? *dialog : frame();
        const auto isActive = [&window] { return window.isActiveWindow(); };
        for (int tries = 0; tries < 50 && !QTest::qWaitFor(isActive, patience); ++tries) window.activateWindow();
        if (!window.isActiveWindow()) qWarning("the window did not become active");
    }

    void Press(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) {
        AwaitActive();
        QTest::keyClick(QApplication::focusWidget(), key, held);
    }

    void Show(horvanta::Moment moment) {
        horvanta::DisplayedMoment = moment;
        horvanta::UpdateStatus();
        frame().Draw();
    }

    /// Chooses a menu item.
    void Trigger(const char* caption) {
        for (QAction* action : frame().findChildren<QAction*>()) {
            if (action->text().remove(u'&') == QString::fromLatin1(caption)) return action->trigger();
        }
        QFAIL(caption);
    }

    horvanta::QtDesktop desktop;
    horvanta::Horvanta program;
};

/// Deals with the next dialog of a kind, once it is up.
template <class Dialog>
void DealWithNext(const std::function<void(Dialog&)>& deal) {
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, deal] {
        QWidget* popup = QApplication::activePopupWidget();
        auto* dialog = qobject_cast<Dialog*>(popup ? popup : QApplication::activeModalWidget());
        if (!dialog) return;
        timer->stop();
        timer->deleteLater();
        deal(*dialog);
    });
    timer->start(1);
}

inline void CloseNextInformation() {
    DealWithNext<horvanta::InformationBox>([](horvanta::InformationBox& box) { box.reject(); });
}

inline void AnswerNextBox(QMessageBox::StandardButton button) {
    DealWithNext<QMessageBox>([button](QMessageBox& box) { box.button(button)->click(); });
}
