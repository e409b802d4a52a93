#include "app/horvanta.h"
#include "astro/timescales.h"
#include "clock/zone_time.h"
#include "core/moment.h"
#include "qt/arrow_pair.h"
#include "qt/month_grid.h"
#include "qt/panel_bar.h"
#include "qt/qt_desktop.h"
#include "qt/text_grid.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QColorDialog>
#include <QComboBox>
#include <QDesktopServices>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <set>

using namespace horvanta;

namespace {

/// The whole program on a settings folder of its own.
struct Session {
    Session() {
        CurrentDesktop = &desktop;
        program.Start();
        frame().Draw();
        frame().showNormal();  // a maximized frame keeps the size of the screen
        frame().resize(1400, 900);
        AwaitActive();
    }
    ~Session() { CurrentDesktop = nullptr; }

    Frame& frame() { return *desktop.frame(); }

    template <class Widget>
    Widget* Find(const char* name) {
        return frame().findChild<Widget*>(QString::fromLatin1(name));
    }

    QMdiSubWindow* Window(const Form& form) {
        return frame().findChild<QMdiSubWindow*>(QString::fromStdString(form.name));
    }

    /// A box that was closed leaves no window active for a while, and a window manager that has just been started
    /// forgets what it is asked.
    void AwaitActive() {
        constexpr int patience = 100;  // milliseconds
        for (int tries = 0; tries < 50 && !QTest::qWaitForWindowActive(&frame(), patience); ++tries) {
            frame().activateWindow();
        }
        if (!frame().isActiveWindow()) qWarning("the frame did not become active");
    }

    void Press(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) {
        AwaitActive();
        QTest::keyClick(QApplication::focusWidget(), key, held);
    }

    QtDesktop desktop;
    Horvanta program;
};

/// Answers the next message box with a button, once it is up.
void AnswerNextBox(QMessageBox::StandardButton button) {
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, button] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box) return;
        timer->deleteLater();
        box->button(button)->click();
    });
    timer->start(1);
}

/// Keeps the addresses that the program opens, in place of a browser.
class Browser final : public QObject {
    Q_OBJECT
  public:
    Browser() { QDesktopServices::setUrlHandler(QStringLiteral("http"), this, "Open"); }
    ~Browser() override { QDesktopServices::unsetUrlHandler(QStringLiteral("http")); }

    Q_INVOKABLE void Open(const QUrl& address) { opened = address; }

    QUrl opened;
};

/// Whether a widget is of the kind that shows such a control.
bool isFor(const QWidget& widget, const Control& control) {
    if (dynamic_cast<const CheckBox*>(&control)) return qobject_cast<const QCheckBox*>(&widget);
    if (dynamic_cast<const StatusBar*>(&control)) return qobject_cast<const PanelBar*>(&widget);
    if (dynamic_cast<const ChoiceList*>(&control)) return qobject_cast<const QComboBox*>(&widget);
    if (dynamic_cast<const CellGrid*>(&control)) return qobject_cast<const MonthGrid*>(&widget);
    if (dynamic_cast<const UpDown*>(&control)) return qobject_cast<const ArrowPair*>(&widget);
    if (dynamic_cast<const Grid*>(&control)) return qobject_cast<const TextGrid*>(&widget);
    if (dynamic_cast<const GroupBox*>(&control)) return qobject_cast<const QGroupBox*>(&widget);
    if (dynamic_cast<const OptionButton*>(&control)) return qobject_cast<const QRadioButton*>(&widget);
    if (dynamic_cast<const TextField*>(&control)) return qobject_cast<const QLineEdit*>(&widget);
    if (dynamic_cast<const Button*>(&control)) {
        return qobject_cast<const QPushButton*>(&widget) || qobject_cast<const QToolButton*>(&widget);
    }
    return qobject_cast<const QLabel*>(&widget);
}

QString SettingsPath() { return SettingsFile::PathOf(ProgramSettings); }

void WriteFile(const QString& path, const QByteArray& bytes) {
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

QByteArray ReadFile(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Whether a widget is one that a control draws on, rather than a part of one.
bool isReader(const QWidget& widget) {
    const QWidget* parent = widget.parentWidget();
    if (qobject_cast<const PanelBar*>(parent) || qobject_cast<const ArrowPair*>(parent) ||
        qobject_cast<const MonthGrid*>(parent) || qobject_cast<const TextGrid*>(parent)) {
        return false;
    }
    return qobject_cast<const PanelBar*>(&widget) || qobject_cast<const ArrowPair*>(&widget) ||
           qobject_cast<const MonthGrid*>(&widget) || qobject_cast<const QComboBox*>(&widget) ||
           qobject_cast<const TextGrid*>(&widget) || qobject_cast<const QGroupBox*>(&widget) ||
           qobject_cast<const QLabel*>(&widget) || qobject_cast<const QAbstractButton*>(&widget) ||
           (qobject_cast<const QLineEdit*>(&widget) && !widget.objectName().isEmpty());
}

}  // namespace

class FormTest final : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() {
        folder_ = std::make_unique<QTemporaryDir>();
        qputenv("XDG_CONFIG_HOME", folder_->path().toUtf8());
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder_->path());
    }

    void everyControlHasItsWidgetAndEveryWidgetItsControl() {
        Session session;
        for (Form* form : session.program.Forms()) {
            QWidget* content = session.Window(*form)->widget();
            std::set<QString> controls;
            for (const Control* control : form->controls) {
                const QString name = QString::fromStdString(control->name);
                controls.insert(name);
                const auto* widget = content->findChild<QWidget*>(name);
                QVERIFY2(widget, control->name.c_str());
                QVERIFY2(isFor(*widget, *control), control->name.c_str());
                QVERIFY2(!widget->accessibleName().isEmpty(), control->name.c_str());
                for (const auto* part : widget->findChildren<QLabel*>()) QVERIFY(!part->accessibleName().isEmpty());
            }
            for (const auto* widget : content->findChildren<QWidget*>()) {
                QVERIFY2(!isReader(*widget) || controls.contains(widget->objectName()),
                         qPrintable(widget->objectName()));
            }
        }
    }

    void typedDayNumbersAreTakenOrGivenBack() {
        Session session;
        auto* field = session.Find<QLineEdit>("FixedDayNum");
        QVERIFY(field->hasFocus());
        field->selectAll();
        QTest::keyClicks(field, QStringLiteral("8415.5"));
        session.Press(Qt::Key_Return);
        QCOMPARE(DisplayedMoment, 8415.5);
        QCOMPARE(session.Find<QLabel>("GregorianDate")->text(), QStringLiteral("Monday, January 15, 2024 "));

        field->selectAll();
        QTest::keyClicks(field, QStringLiteral("12x"));
        QTest::mouseClick(session.Find<QToolButton>("NextUp"), Qt::LeftButton);
        QCOMPARE(DisplayedMoment, 8416);
        QCOMPARE(field->text(), QStringLiteral("8416"));

        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, QStringLiteral("1000"));
        session.Find<QPushButton>("isoInfo")->setFocus();
        QCOMPARE(DisplayedMoment, 1000);
    }

    void keysStepAndEditingKeysEdit() {
        Session session;
        auto* field = session.Find<QLineEdit>("FixedDayNum");
        DisplayedMoment = 8415;
        UpdateStatus();
        session.frame().Draw();
        const std::tuple<Qt::Key, Qt::KeyboardModifiers, double> rows[] = {
            {Qt::Key_Space, Qt::NoModifier, 8416},    {Qt::Key_Space, Qt::ShiftModifier, 8415},
            {Qt::Key_PageUp, Qt::NoModifier, 8422},   {Qt::Key_PageDown, Qt::NoModifier, 8415},
            {Qt::Key_Plus, Qt::KeypadModifier, 8416}, {Qt::Key_Minus, Qt::KeypadModifier, 8415},
            {Qt::Key_Left, Qt::NoModifier, 8415},     {Qt::Key_Home, Qt::ShiftModifier, 8415},
            {Qt::Key_Home, Qt::NoModifier, Today()},
        };
        for (const auto& [key, held, moment] : rows) {
            session.Press(key, held);
            QCOMPARE(DisplayedMoment, moment);
            QVERIFY(field->hasFocus());
            if (held == Qt::ShiftModifier && key == Qt::Key_Home) QVERIFY(field->hasSelectedText());
        }
        session.frame().findChild<QMdiArea*>()->setActiveSubWindow(session.Window(session.program.gregorian.form));
        const Moment before = DisplayedMoment;
        session.Press(Qt::Key_PageUp);
        QCOMPARE(DisplayedMoment, before + 7);
        session.Find<QToolButton>("NextDown")->setFocus();
        session.Press(Qt::Key_Space);
        QCOMPARE(DisplayedMoment, before + 6);
        session.Press(Qt::Key_Return);
        QCOMPARE(DisplayedMoment, before + 5);
    }

    void shortcutsWorkFromTheDayNumber() {
        Session session;
        QVERIFY(session.Find<QLineEdit>("FixedDayNum")->hasFocus());
        std::set<QKeySequence> taken;  // keys that two items share choose neither
        for (const auto* action : session.frame().menuBar()->findChildren<QAction*>()) {
            if (!action->shortcut().isEmpty()) QVERIFY(taken.insert(action->shortcut()).second);
        }
        QVERIFY(!ReadFile(SettingsPath()).contains("[TimeAstro]"));
        session.Press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(ReadFile(SettingsPath()).contains("[TimeAstro]"));
    }

    void repeatsOfAHeldKeyWaitForThePaint() {
        Session session;
        const Moment before = DisplayedMoment;
        const auto repeat = [&] {
            QKeyEvent event(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier, QString(), true);
            QApplication::sendEvent(QApplication::focusWidget(), &event);
        };
        QCoreApplication::processEvents();
        repeat();
        repeat();
        repeat();
        QCOMPARE(DisplayedMoment, before + 1);
        QTRY_VERIFY_WITH_TIMEOUT((repeat(), DisplayedMoment > before + 1), 2000);

        session.program.timeAstro.DayUpDown(-1e8, 1);  // to the first day, from where a held key changes nothing
        session.Press(Qt::Key_Down);
        session.Press(Qt::Key_Down);
        QTRY_VERIFY_WITH_TIMEOUT((repeat(), DisplayedMoment > MinFixedDay), 400);
    }

    void clickedLabelsAreCopied() {
        Session session;
        QTest::mouseClick(session.Find<QLabel>("GregCycleInfo"), Qt::LeftButton);
        QVERIFY(QApplication::clipboard()->text().startsWith(QStringLiteral("Gregorian year ")));
        QVERIFY(session.Find<QLabel>("ClipBoardStatus")->text().startsWith(QStringLiteral("Gregorian year ")));
        QTest::mouseClick(session.Find<QLabel>("ClipBoardStatus"), Qt::LeftButton);
        QVERIFY(QApplication::clipboard()->text().isEmpty());
    }

    void aClickedCheckBoxShowsWhatTheProgramMadeOfIt() {
        Session session;
        struct Row {
            const char* name;
            std::function<bool()> option;
            Qt::CheckState before;
        };
        const Row rows[] = {
            {"UseElevation", [] { return UseElevation; }, Qt::Checked},
            {"ShowDawnDusk", [] { return ShowsDawnDusk; }, Qt::Checked},
            {"UseDeltaT", [] { return !DeltaTDisabled; }, Qt::Checked},
            {"AdjustDST", [] { return AdjustDST == Checked; }, Qt::PartiallyChecked},
        };
        AdjustDST = Undecided;
        AnswerNextBox(QMessageBox::No);
        session.program.frame.Presets[1].Click();  // a place with an elevation and daylight saving time
        session.frame().Draw();
        for (const Row& row : rows) {
            auto* box = session.Find<QCheckBox>(row.name);
            QCOMPARE(box->checkState(), row.before);
            const bool closesBox = QByteArray("UseDeltaT") == row.name;
            if (closesBox) AnswerNextBox(QMessageBox::Ok);
            box->setFocus();
            session.Press(Qt::Key_Space);
            QVERIFY(!row.option());
            QCOMPARE(box->checkState(), Qt::Unchecked);
            session.Press(Qt::Key_Return);
            QVERIFY(row.option());
            QCOMPARE(box->checkState(), Qt::Checked);
        }
    }

    void coloursComeAndGo() {
        Session session;
        auto* box = session.Find<QCheckBox>("AdjustDST");
        const auto corner = [box] { return box->grab().toImage().pixelColor(box->width() - 1, 0); };
        const QColor own = corner();
        AnswerNextBox(QMessageBox::No);
        session.program.frame.Presets[1].Click();
        session.frame().Draw();
        QCOMPARE(corner(), QColor(Qt::white));
        box->click();
        QCOMPARE(corner(), own);
        QCOMPARE(box->palette(), box->parentWidget()->palette());
    }

    void panelsLineUpAndAClickedOneIsCopied() {
        Session session;
        const auto panels = session.Find<PanelBar>("DawnDusk")->findChildren<QLabel*>();
        const auto legends = session.Find<PanelBar>("DawnDuskLegends")->findChildren<QLabel*>();
        QCOMPARE(panels.size(), legends.size());
        for (int i = 0; i < panels.size(); ++i) {
            QCOMPARE(panels[i]->x(), legends[i]->x());
            QCOMPARE(panels[i]->width(), legends[i]->width());
        }
        QTest::mouseClick(panels[4], Qt::LeftButton);
        QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("Sunrise: ") + panels[4]->text());
        QTest::mouseClick(legends[3], Qt::LeftButton);
        QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("Sunrise: ") + panels[4]->text());
    }

    void theWindowTakesTheHeightOfWhatItShows() {
        Session session;
        const QMdiSubWindow* window = session.Window(session.program.timeAstro.form);
        const QSize before = window->size();
        auto* box = session.Find<QCheckBox>("ShowDawnDusk");
        const int bars = 2 * session.Find<PanelBar>("DawnDusk")->height();
        box->click();
        QVERIFY(window->height() <= before.height() - bars);
        QCOMPARE(window->width(), before.width());
        box->click();
        QCOMPARE(window->size(), before);
    }

    void fieldsAndBoxesTakeTheirOwnKeysAndClicks() {
        Session session;
        session.program.frame.SetUserLoc.Click();
        session.frame().Draw();
        const Moment before = DisplayedMoment;
        auto* name = session.Find<QLineEdit>("LocName");
        QTest::keyClicks(name, QStringLiteral("Ur - of = the +"));
        QCOMPARE(name->text(), QStringLiteral("Ur - of = the +"));
        auto* degrees = session.Find<QLineEdit>("LatDeg");
        degrees->setFocus();
        for (const Qt::Key key : {Qt::Key_Plus, Qt::Key_Equal, Qt::Key_PageUp, Qt::Key_Up, Qt::Key_Minus}) {
            session.Press(key);
        }
        QCOMPARE(degrees->text(), QStringLiteral("12"));
        auto* elevation = session.Find<QLineEdit>("Elevation");
        session.Press(Qt::Key_V, Qt::AltModifier);
        QVERIFY(elevation->hasFocus());
        QTest::keyClicks(elevation, QStringLiteral("-400"));
        session.Find<QRadioButton>("ElevFeet")->click();
        QCOMPARE(elevation->text(), QStringLiteral("-1312.336"));
        auto* box = session.Find<QGroupBox>("ElevationFrame");
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(box->width() / 2, elevation->geometry().bottom() + 2));
        QVERIFY(!elevation->text().isEmpty());
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(12, 4));
        QVERIFY(elevation->text().isEmpty());
        QCOMPARE(DisplayedMoment, before);
    }

    void aMapOpensWithItsAddressAsItIs() {
        Session session;
        Browser browser;
        AnswerNextBox(QMessageBox::No);
        session.program.frame.Presets[20].Click();  // a place with a space in its name
        session.program.frame.MapLocale.Click();
        const QString address = QString::fromLatin1(browser.opened.toEncoded());
        QVERIFY2(address.startsWith(QStringLiteral("http://")), qPrintable(address));
        QVERIFY2(address.endsWith(QStringLiteral("&zoom=9&q=Times%20Square")), qPrintable(address));
    }

    void aDoubleClickAsksForAColour() {
        Session session;
        auto* date = session.Find<QLabel>("GregorianDate");
        QTimer::singleShot(100, qApp, [] {
            auto* dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            dialog->setCurrentColor(Qt::green);
            dialog->accept();
        });
        QTest::mouseDClick(date, Qt::LeftButton);
        QTest::mouseRelease(date, Qt::LeftButton);
        QCOMPARE(date->palette().color(QPalette::Window), QColor(Qt::green));
        QCOMPARE(date->palette().color(QPalette::WindowText), QColor(Qt::black));
    }

    void theMenuColoursTheActiveWindow() {
        Session session;
        auto* date = session.Find<QLabel>("GregorianDate");
        session.Find<QPushButton>("isoInfo")->setFocus();
        QTimer::singleShot(100, qApp, [] {
            auto* dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            dialog->setCurrentColor(Qt::green);
            dialog->accept();
        });
        const auto actions = session.frame().menuBar()->findChildren<QAction*>();
        const auto item = std::find_if(actions.begin(), actions.end(), [](const QAction* action) {
            return action->text() == QStringLiteral("Change Background Color");
        });
        QVERIFY(item != actions.end());
        (*item)->trigger();
        QCOMPARE(date->palette().color(QPalette::Window), QColor(Qt::green));
    }

    void informationIsCopiedOnYes() {
        Session session;
        AnswerNextBox(QMessageBox::Yes);
        QTest::mouseClick(session.Find<QPushButton>("isoInfo"), Qt::LeftButton);
        QVERIFY(QApplication::clipboard()->text().startsWith(QStringLiteral("The International Organization")));
        QCOMPARE(session.frame().focusWidget(), session.Find<QLineEdit>("FixedDayNum"));
    }

    void aClosedWindowComesBackFromTheMenu() {
        Session session;
        QMdiSubWindow* window = session.Window(session.program.gregorian.form);
        QVERIFY(window->isVisible());
        window->close();
        QVERIFY(!window->isVisible());
        QCOMPARE(session.frame().focusWidget(), session.Find<QLineEdit>("FixedDayNum"));
        DisplayedMoment = 1;
        session.program.frame.GregCal.Click();
        session.frame().Draw();
        QVERIFY(window->isVisible());
        QCOMPARE(session.Find<QLabel>("GregorianDate")->text(), QStringLiteral("Monday, January 1, 2001 "));
        session.Window(session.program.timeAstro.form)->close();
        QVERIFY(session.Window(session.program.timeAstro.form)->isVisible());
    }

    void windowsStandApartInTheFrameAndShowAllTheirText() {
        const QFont standard = QApplication::font();
        for (const double fontScale : {1.0, 1.5}) {
            QFont scaled = standard;
            scaled.setPointSizeF(standard.pointSizeF() * fontScale);
            QApplication::setFont(scaled);
            Session session;
            session.program.frame.JulianCal.Click();
            for (const double moment : {MinFixedDay + 0.123456789, MaxFixedDay + 0.0, 8030.0}) {
                DisplayedMoment = moment;
                UpdateStatus();
                session.frame().Draw();
                QCoreApplication::processEvents();
                checkWindows(session, fontScale == 1.0);
            }
            session.program.SetUserLoc_Click();
            session.frame().Draw();
            checkTexts(*session.Window(session.program.userLocales.form));
        }
        QApplication::setFont(standard);
    }

    void theProgramStartsOnAnySettingsFile_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("truncated") << QByteArray("[Item]\nRD=7389");
        QTest::newRow("cut in a section") << QByteArray("[Prog]\nLaunch=OK\n[Ite");
        QTest::newRow("binary") << QByteArray::fromHex("00ff10807f454c460a5b0000ff3d0a00").repeated(64);
        QTest::newRow("nonsense") << QByteArray("[TimeAstro]\nLeft=1e300\nTop=-1e300\n[Item]\nRD=@Variant(\\0)\n");
    }

    void theProgramStartsOnAnySettingsFile() {
        QFETCH(QByteArray, bytes);
        WriteFile(SettingsPath(), bytes);
        {
            Session session;
            QCOMPARE(DisplayedMoment, Today());
            QVERIFY(session.Window(session.program.timeAstro.form)->isVisible());
            QVERIFY(QRect(0, 0, 1400, 900).intersects(session.Window(session.program.gregorian.form)->geometry()));
            session.program.Form_Unload();
        }
        QVERIFY(ReadFile(SettingsPath()).contains("Launch=OK"));
    }

    void aReadOnlySettingsFileIsReadAndLeftAlone() {
        const QByteArray kept = "[Item]\nRD=1000\nSD=\"2000,5\"\n[TimeAstro]\nChk=False\nLeft=150,5\n";
        WriteFile(SettingsPath(), kept);
        QVERIFY(QFile::setPermissions(SettingsPath(), QFileDevice::ReadOwner));
        {
            Session session;
            QCOMPARE(DisplayedMoment, 1000);
            QCOMPARE(SavedMoment, 2000);
            QCOMPARE(session.program.timeAstro.form.place.left, 150);
            session.program.Form_Unload();
        }
        QCOMPARE(ReadFile(SettingsPath()), kept);
    }

    void aSecondStartEndsAndTheFirstGoesOn() {
        QProcess first;
        first.start(QStringLiteral(HORVANTA_PROGRAM), {});
        QTRY_VERIFY_WITH_TIMEOUT(ReadFile(SettingsPath()).contains("Launch=OK"), 20000);
        QTest::qWait(200);
        QProcess second;
        second.start(QStringLiteral(HORVANTA_PROGRAM), {});
        QVERIFY(second.waitForFinished(10000));
        QCOMPARE(second.exitCode(), 0);
        QCOMPARE(first.state(), QProcess::Running);
        QVERIFY(ReadFile(SettingsPath()).contains("Launch=OK"));

        first.kill();
        first.waitForFinished();
        QProcess third;  // the lock of a program that was killed holds nobody up
        third.start(QStringLiteral(HORVANTA_PROGRAM), {});
        QVERIFY(!third.waitForFinished(1500));
        third.kill();
        third.waitForFinished();
    }

    void aProgramThatIsTerminatedSavesItsSettings() {
        QProcess program;
        program.start(QStringLiteral(HORVANTA_PROGRAM), {});
        QTRY_VERIFY_WITH_TIMEOUT(ReadFile(SettingsPath()).contains("Launch=OK"), 20000);
        QVERIFY(!ReadFile(SettingsPath()).contains("[TimeAstro]"));
        program.terminate();
        QVERIFY(program.waitForFinished(10000));
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QVERIFY(ReadFile(SettingsPath()).contains("[TimeAstro]"));
        QVERIFY(ReadFile(SettingsPath()).contains("Launch=OK"));
    }

  private:
    /// Large fonts may leave no room for all windows side by side.
    static void checkWindows(Session& session, bool apart) {
        QRegion together;
        for (Form* form : session.program.Forms()) {
            const QMdiSubWindow* window = session.Window(*form);
            if (!form->visible) continue;
            QVERIFY(!apart || !together.intersects(window->geometry()));
            together += window->geometry();
            checkTexts(*window);
        }
    }

    static void checkTexts(const QMdiSubWindow& window) {
        QVERIFY(window.parentWidget()->rect().contains(window.geometry()));
        for (const auto* label : window.findChildren<QLabel*>()) {
            const bool fits = label->size().expandedTo(label->sizeHint()) == label->size();
            QVERIFY2(fits, qPrintable(label->objectName() + u' ' + label->text()));
        }
    }

    std::unique_ptr<QTemporaryDir> folder_;
};

QTEST_MAIN(FormTest)
#include "form_test.moc"
