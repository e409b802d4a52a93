#include "qt/cell_grid_widget.h"
#include "session.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

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

}  // namespace

class LooksTest final : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() { settings_.emplace(); }

    void emptyWeeksTakeNoRoom() {
        Session session;
        const QMdiSubWindow* window = session.Window(session.program.monthly.form);
        chooseCalendar(session, 1);
        const auto heightOn = [&](std::int32_t year, std::int32_t month) {
            DisplayedMoment = GregorianToFixed(year, month, 1);
            UpdateStatus();
            session.frame().Draw();
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
        DisplayedMoment = Today();
        UpdateStatus();
        session.frame().Draw();
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
        DisplayedMoment = GregorianToFixed(2024, 7, 4);
        UpdateStatus();
        session.frame().Draw();
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

    std::optional<SettingsFolder> settings_;
};

QTEST_MAIN(LooksTest)
#include "looks_test.moc"
