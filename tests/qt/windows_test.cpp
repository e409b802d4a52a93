#include "core/numbering.h"
#include "qt/cell_grid_widget.h"
#include "qt/status_bar_widget.h"
#include "session.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTextDocumentFragment>

#include <algorithm>
#include <set>

using namespace horvanta;

namespace {

QPalette DarkPalette() {
    QPalette dark;
    const QColor text(230, 230, 230);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) dark.setColor(role, text);
    for (const auto role : {QPalette::Window, QPalette::Button}) dark.setColor(role, QColor(45, 45, 48));
    dark.setColor(QPalette::Base, QColor(30, 30, 32));
    return dark;
}

/// The colours of a rectangle of a widget as it is painted.
std::set<QRgb> ColorsIn(QWidget& widget, const QRect& where) {
    std::set<QRgb> colors;
    const QImage image = widget.grab(where).toImage();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) colors.insert(image.pixel(x, y));
    }
    return colors;
}

/// As the toolkit shows it: a tooltip that looks like HTML is shown without its marks.
QString ShownTip(const QString& tip) {
    return Qt::mightBeRichText(tip) ? QTextDocumentFragment::fromHtml(tip).toPlainText() : tip;
}

}  // namespace

class WindowsTest final : public TestOfProgram {
    Q_OBJECT

  private Q_SLOTS:
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

    void aDoubleClickAndTheMenuAskForAColour() {
        Session session;
        auto* date = session.Find<QLabel>("GregorianDate");
        const auto colorBy = [&](Qt::GlobalColor color, const std::function<void()>& act) {
            DealWithNext<QColorDialog>([color](QColorDialog& dialog) {
                dialog.setCurrentColor(color);
                dialog.accept();
            });
            act();
            return date->palette().color(QPalette::Window);
        };
        const auto doubleClick = [date] {
            QTest::mouseDClick(date, Qt::LeftButton);
            QTest::mouseRelease(date, Qt::LeftButton);
        };
        QCOMPARE(colorBy(Qt::green, doubleClick), QColor(Qt::green));
        QCOMPARE(date->palette().color(QPalette::WindowText), QColor(Qt::black));
        session.Find<QPushButton>("isoInfo")->setFocus();
        QCOMPARE(colorBy(Qt::red, [&] { session.Trigger("Change Background Color"); }), QColor(Qt::red));
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
        for (const double scale : {1.0, 1.5}) {
            const ScaledFont font(scale);
            Session session;
            session.program.frame.JulianCal.Click();
            for (const double moment : {MinFixedDay + 0.123456789, MaxFixedDay + 0.0, 8030.0}) {
                DisplayedMoment = moment;
                UpdateStatus();
                session.frame().Draw();
                QCoreApplication::processEvents();
                for (const Form* form : session.program.Forms()) {
                    if (form->visible) checkTexts(*session.Window(*form));
                }
            }
            session.program.frame.SetUserLoc.Click();
            session.frame().Draw();
            checkTexts(*session.Window(session.program.userLocales.form));
        }
    }

    /// Whatever the user calls a place, it is text in the menu, in titles and in tooltips.
    void namesAreTextEverywhere_data() {
        QTest::addColumn<QString>("name");
        for (const char* name : {"<b>Home</b><img src='x'>", "Fish & Chips", "a [*] b", "%1 %n", "<!--", "&&"}) {
            QTest::newRow(name) << QString::fromUtf8(name);
        }
    }

    void namesAreTextEverywhere() {
        QFETCH(QString, name);
        Session session;
        const LocaleRecord place = MakeLocale(name.toStdString(), "", 10, 20, 0);
        session.program.places.SetUserLocale(1, place);
        session.program.userLocales.form.visible = true;
        CloseNextInformation();
        session.program.places.UserLoc_Click(1);
        session.frame().Draw();
        const auto* copy = session.Find<QPushButton>("CopyLoc");
        QVERIFY2(ShownTip(copy->toolTip()).contains(name), qPrintable(copy->toolTip()));
        QVERIFY(copy->text().contains(QString(name).replace(u'&', QStringLiteral("&&"))));
        const QMdiSubWindow* time = session.Window(session.program.timeAstro.form);
        QVERIFY(!time->isWindowModified());
        QVERIFY(time->windowTitle().contains(QString(name).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"))));
        const auto actions = session.frame().findChildren<QAction*>();
        const QString caption = QString(name).replace(u'&', QStringLiteral("&&"));
        QVERIFY(std::any_of(actions.begin(), actions.end(), [&](QAction* a) { return a->text() == caption; }));
    }

    void namesOfAnyLengthLeaveTheWindowItsWidth() {
        Session session;
        session.program.userLocales.form.visible = true;
        session.frame().Draw();
        const QMdiSubWindow* window = session.Window(session.program.userLocales.form);
        Locale = MakeLocale(std::string(40, 'i'), "", 10, 20, 0);  // narrow, but elided
        session.program.userLocales.SetCopyLocToolText();
        session.frame().Draw();
        const int before = window->minimumSizeHint().width();
        Locale = MakeLocale(std::string(400, 'W'), "", 10, 20, 0);
        session.program.userLocales.SetCopyLocToolText();
        session.frame().Draw();
        QVERIFY(QRect(QPoint(), session.frame().size()).contains(QRect(QPoint(), window->size())));
        QVERIFY2(window->minimumSizeHint().width() < before * 2, qPrintable(QString::number(window->width())));
    }

    void emptyWeeksTakeNoRoom() {
        Session session;
        const QMdiSubWindow* window = session.Window(session.program.monthly.form);
        chooseCalendar(session, 1);
        const auto heightOn = [&](std::int32_t year, std::int32_t month) {
            session.Show(GregorianToFixed(year, month, 1));
            return window->height();
        };
        const int six = heightOn(2024, 6);  // begins on a Saturday
        const int five = heightOn(2024, 5);
        const int four = heightOn(2026, 2);
        QVERIFY(six > five);
        QVERIFY(five > four);
        const auto days = shownDays(session);
        QCOMPARE(days.size(), 28);
        for (const QLabel* day : days) QVERIFY(day->accessibleName().contains(day->text()));
        QCOMPARE(heightOn(2024, 6), six);

        session.program.monthly.Layout.Click();
        session.frame().Draw();
        const int rows = window->height();
        QCOMPARE(heightOn(2026, 2), rows);
        QCOMPARE(shownDays(session).size(), 28);
    }

    void theDisplayedDayStandsOutAndTodayIsMarked() {
        Session session;
        chooseCalendar(session, 1);
        auto* grid = session.Find<CellGridWidget>("Days");
        grid->setFocus();
        session.Show(Today());
        QVERIFY(grid->accessibleName().endsWith(QStringLiteral(", today")));
        const auto days = shownDays(session);
        const auto today = std::find_if(days.begin(), days.end(), [](const QLabel* day) {
            return day->accessibleName().endsWith(QStringLiteral(", today"));
        });
        QVERIFY(today != days.end());
        const QRect edge(0, 0, (*today)->width(), 1);
        const auto focused = ColorsIn(**today, edge);
        session.Find<QLineEdit>("FixedDayNum")->setFocus();
        const auto unfocused = ColorsIn(**today, edge);
        session.program.timeAstro.DayUpDown(*today == days.back() ? -1 : 1, 1);
        session.frame().Draw();
        const auto plain = ColorsIn(**today, edge);
        QVERIFY(focused != unfocused);
        QVERIFY(unfocused != plain);
        QCOMPARE(plain.size(), 1U);
        const QRect foot(4, (*today)->height() - 4, (*today)->width() - 8, 2);
        QCOMPARE(ColorsIn(**today, foot).size(), 2U);
        QCOMPARE(ColorsIn(*days[*today == days[3] ? 4 : 3], foot).size(), 1U);
    }

    void theYearIsEditedLikeAnyText() {
        Session session;
        chooseCalendar(session, 1);
        session.Show(GregorianToFixed(2024, 7, 4));
        auto* year = session.Find<QLineEdit>("ThisYear");
        year->setFocus();
        year->end(false);
        session.Press(Qt::Key_Backspace);
        session.Press(Qt::Key_Space);
        session.Press(Qt::Key_Home);
        session.Press(Qt::Key_Delete);
        session.Press(Qt::Key_Minus);
        session.Press(Qt::Key_1);
        QCOMPARE(year->text(), QStringLiteral("-102"));
        session.Press(Qt::Key_Escape);
        QCOMPARE(year->text(), QStringLiteral("2024"));
        QCOMPARE(DisplayedMoment, GregorianToFixed(2024, 7, 4));
        session.Press(Qt::Key_Escape);
        QCOMPARE(DisplayedMoment, Today());
    }

    void theListKeepsTheFocusWhenItBringsAWindow() {
        Session session;
        auto* list = session.Find<QComboBox>("Calendars");
        list->setFocus();
        for (int calendar = 0; calendar + 1 < list->count(); ++calendar) {
            session.Press(Qt::Key_Down);
            QCOMPARE(list->currentIndex(), calendar + 1);
            QVERIFY(list->hasFocus());
        }
        QVERIFY(session.program.persian.form.visible);
    }

    void daylightSavingIsReadOnAnyBackground() {
        const QPalette standard = QApplication::palette();
        for (const QPalette& palette : {standard, DarkPalette()}) {
            QApplication::setPalette(palette);
            Session session;
            CloseNextInformation();
            session.program.frame.Presets[1].Click();
            session.frame().Draw();
            auto* box = session.Find<QCheckBox>("AdjustDST");
            QCOMPARE(box->grab().toImage().pixelColor(box->width() - 1, 0), palette.color(QPalette::Window));
            const QColor text = box->palette().color(QPalette::WindowText);
            QVERIFY(text != palette.color(QPalette::WindowText));
            const bool dark = palette.color(QPalette::Window).lightness() < 128;
            QCOMPARE(qGray(text.rgb()) > 100, dark);
            box->click();
            QCOMPARE(box->palette().color(QPalette::WindowText), palette.color(QPalette::WindowText));
        }
        QApplication::setPalette(standard);
    }

  private:
    static void chooseCalendar(Session& session, int index) {
        session.program.monthly.Calendars.selected = index;
        session.program.monthly.Calendars.Chosen();
        session.frame().Draw();
    }

    /// The cells of the month, without the headings.
    static QList<QLabel*> shownDays(Session& session) {
        auto labels = session.Find<CellGridWidget>("Days")->findChildren<QLabel*>();
        labels.remove(0, 7);
        labels.erase(std::remove_if(labels.begin(), labels.end(), [](const QLabel* day) { return day->isHidden(); }),
                     labels.end());
        return labels;
    }

    static void checkTexts(const QMdiSubWindow& window) {
        QVERIFY2(window.parentWidget()->rect().contains(window.geometry()), qPrintable(window.objectName()));
        for (const auto* label : window.findChildren<QLabel*>()) {
            const bool fits = label->size().expandedTo(label->sizeHint()) == label->size();
            QVERIFY2(fits, qPrintable(label->objectName() + u' ' + label->text()));
        }
    }
};

QTEST_MAIN(WindowsTest)
#include "windows_test.moc"
