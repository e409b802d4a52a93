#include "calendars/gregorian.h"
#include "core/moment.h"
#include "session.h"

#include <QAction>
#include <QClipboard>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMenuBar>
#include <QToolButton>
#include <QWindow>

#include <set>
#include <tuple>

using namespace horvanta;

class KeysTest final : public TestOfProgram {
    Q_OBJECT

  private Q_SLOTS:
    /// Every label leads to its field, and what stands there counts as it is typed.
    void theDateBoxIsAnsweredByKeys() {
        Session session;
        session.Show(8415.25);
        session.Press(Qt::Key_G, Qt::ControlModifier);
        const QWidget* box = session.Dialog(session.program.dateBox.form);
        const auto* ok = box->findChild<QPushButton*>(QStringLiteral("OK"));
        session.AwaitActive();
        QCOMPARE(box->focusWidget()->objectName(), QStringLiteral("DateText"));
        for (const auto& [key, field] :
             {std::pair(Qt::Key_C, "Calendar"), std::pair(Qt::Key_Y, "Year"), std::pair(Qt::Key_M, "Month"),
              std::pair(Qt::Key_D, "Day"), std::pair(Qt::Key_T, "Time"), std::pair(Qt::Key_A, "Scale"),
              std::pair(Qt::Key_X, "DateText")}) {
            session.Press(key, Qt::AltModifier);
            QCOMPARE(box->focusWidget()->objectName(), QString::fromLatin1(field));
        }
        QTest::keyClicks(box->focusWidget(), QStringLiteral("15 Nisan 578"));
        QCOMPARE(box->findChild<QLabel*>(QStringLiteral("HowRead"))->text(),
                 QStringLiteral("Hebrew calendar, 15 Nisan 578"));
        session.Press(Qt::Key_X);
        QVERIFY(!ok->isEnabled());
        session.Press(Qt::Key_Return);
        QVERIFY(box->isVisible());
        session.Press(Qt::Key_Backspace);
        session.Press(Qt::Key_4);
        QVERIFY(ok->isEnabled());
        session.Press(Qt::Key_M, Qt::AltModifier);
        session.Press(Qt::Key_Return);
        QVERIFY(!box->isVisible());
        QCOMPARE(DisplayedMoment, GregorianToFixed(2024, 4, 23) + 0.25);
        QCOMPARE(session.frame().focusWidget()->objectName(), QStringLiteral("FixedDayNum"));
        session.Press(Qt::Key_G, Qt::ControlModifier);
        session.Press(Qt::Key_D, Qt::AltModifier);
        session.Press(Qt::Key_PageUp);
        session.Press(Qt::Key_Escape);
        QVERIFY(!box->isVisible());
        QCOMPARE(DisplayedMoment, GregorianToFixed(2024, 4, 23) + 0.25);
    }

    void keysStepAndEditingKeysEdit() {
        Session session;
        auto* field = session.Find<QLineEdit>("FixedDayNum");
        session.Show(8415);
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
        QVERIFY(!Settings().contains("TimeAstro/Top="));
        session.Press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(Settings().contains("TimeAstro/Top="));
    }

    /// Even where none of the presses is told to be a repeat.
    void aHeldKeyCountsAsOneOnTheWayBack() {
        Session session;
        const Moment before = DisplayedMoment;
        for (int repeat = 0; repeat < 3; ++repeat) session.Press(Qt::Key_Up);
        session.Trigger("Back");
        QCOMPARE(DisplayedMoment, before);
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

    /// As at the start; a report, which can be cancelled meanwhile, has tests of its own.
    void nothingIsHeardWhileEventsMerelyRun() {
        Session session;
        const Moment before = DisplayedMoment;
        const QMdiSubWindow* gregorian = session.Window(session.program.gregorian.form);
        for (int rounds = 0; rounds < 2; ++rounds) {
            QTimer::singleShot(0, qApp, [&] {
                for (const char* name : {"NextUp", "GregCycleInfo"}) {  // by way of the window, as a user does
                    auto* widget = session.Find<QWidget>(name);
                    const QPoint where = widget->mapTo(&session.frame(), widget->rect().center());
                    QTest::mouseClick(session.frame().windowHandle(), Qt::LeftButton, {}, where);
                }
                for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_PageUp, Qt::Key_Space}) {
                    QTest::keyClick(session.frame().windowHandle(), key);
                }
                session.Trigger("Now (date and time)");
                session.Window(session.program.gregorian.form)->close();
                session.frame().close();
            });
            session.desktop.LetEventsRun();
        }
        QCoreApplication::processEvents();
        QCOMPARE(DisplayedMoment, before);
        QVERIFY(session.Find<QLineEdit>("FixedDayNum")->hasFocus());
        QVERIFY(session.frame().isVisible() && gregorian->isVisible());
        QVERIFY(QApplication::clipboard()->text().isEmpty());
        QTest::mouseClick(session.Find<QToolButton>("NextUp"), Qt::LeftButton);
        QCOMPARE(DisplayedMoment, before + 1);
    }
};

QTEST_MAIN(KeysTest)
#include "keys_test.moc"
