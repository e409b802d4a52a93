#include "core/numbering.h"
#include "qt/status_bar_widget.h"
#include "session.h"

#include <QAction>
#include <QCheckBox>
#include <QColorDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>

#include <algorithm>

using namespace horvanta;

namespace {

void ChooseGreen() {
    DealWithNext<QColorDialog>([](QColorDialog& dialog) {
        dialog.setCurrentColor(Qt::green);
        dialog.accept();
    });
}

}  // namespace

class WindowsTest final : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() { settings_.emplace(); }

    void theWindowTakesTheHeightOfWhatItShows() {
        Session session;
        const QMdiSubWindow* window = session.Window(session.program.timeAstro.form);
        const QSize before = window->size();
        auto* box = session.Find<QCheckBox>("ShowDawnDusk");
        const int bars = 2 * session.Find<StatusBarWidget>("DawnDusk")->height();
        box->click();
        QVERIFY(window->height() <= before.height() - bars);
        QCOMPARE(window->width(), before.width());
        box->click();
        QCOMPARE(window->size(), before);
    }

    void aDoubleClickAsksForAColour() {
        Session session;
        auto* date = session.Find<QLabel>("GregorianDate");
        ChooseGreen();
        QTest::mouseDClick(date, Qt::LeftButton);
        QTest::mouseRelease(date, Qt::LeftButton);
        QCOMPARE(date->palette().color(QPalette::Window), QColor(Qt::green));
        QCOMPARE(date->palette().color(QPalette::WindowText), QColor(Qt::black));
    }

    void theMenuColoursTheActiveWindow() {
        Session session;
        auto* date = session.Find<QLabel>("GregorianDate");
        session.Find<QPushButton>("isoInfo")->setFocus();
        ChooseGreen();
        const auto actions = session.frame().menuBar()->findChildren<QAction*>();
        const auto item = std::find_if(actions.begin(), actions.end(), [](const QAction* action) {
            return action->text() == QStringLiteral("Change Background Color");
        });
        QVERIFY(item != actions.end());
        (*item)->trigger();
        QCOMPARE(date->palette().color(QPalette::Window), QColor(Qt::green));
    }

    void aClosedWindowComesBackFromTheMenu() {
        Session session;
        QMdiSubWindow* window = session.Window(session.program.gregorian.form);
        QVERIFY(window->isVisible());
        window->close();
        QVERIFY(!window->isVisible());
        session.program.gregorian.TheISOdate.text = "not drawn";
        session.frame().Draw();
        QVERIFY(session.Find<QLabel>("TheISOdate")->text() != QStringLiteral("not drawn"));
        QCOMPARE(session.frame().focusWidget(), session.Find<QLineEdit>("FixedDayNum"));
        DisplayedMoment = 1;
        session.program.frame.GregCal.Click();
        session.frame().Draw();
        QVERIFY(window->isVisible());
        QCOMPARE(session.Find<QLabel>("GregorianDate")->text(), QStringLiteral("Monday, January 1, 2001 "));
        session.Window(session.program.timeAstro.form)->close();
        QVERIFY(session.Window(session.program.timeAstro.form)->isVisible());
    }

    void windowsStandInTheFrameAndShowAllTheirText() {
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
                checkWindows(session);
            }
            session.program.frame.SetUserLoc.Click();
            session.frame().Draw();
            checkTexts(*session.Window(session.program.userLocales.form));
        }
        QApplication::setFont(standard);
    }

  private:
    static void checkWindows(Session& session) {
        for (Form* form : session.program.Forms()) {
            const QMdiSubWindow* window = session.Window(*form);
            if (!form->visible) continue;
            checkTexts(*window);
        }
    }

    static void checkTexts(const QMdiSubWindow& window) {
        QVERIFY2(window.parentWidget()->rect().contains(window.geometry()), qPrintable(window.objectName()));
        for (const auto* label : window.findChildren<QLabel*>()) {
            const bool fits = label->size().expandedTo(label->sizeHint()) == label->size();
            QVERIFY2(fits, qPrintable(label->objectName() + u' ' + label->text()));
        }
    }

    std::optional<SettingsFolder> settings_;
};

QTEST_MAIN(WindowsTest)
#include "windows_test.moc"
