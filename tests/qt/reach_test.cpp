#include "core/text.h"
#include "qt/window_layout.h"
#include "session.h"

#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMenu>
#include <QPlainTextEdit>

#include <algorithm>
#include <map>
#include <random>

using namespace horvanta;

namespace {

/// What has to be seen of a window, in its own coordinates: its title bar and its main dates.
QRegion Needed(const QMdiSubWindow& window) {
    QRegion needed(0, 0, window.width(), window.widget()->y());
    for (const auto* widget : window.findChildren<QWidget*>()) {
        if (!widget->property("main").toBool() || !widget->isVisible()) continue;
        needed += QRect(widget->mapTo(&window, QPoint()), widget->size());
    }
    return needed;
}

QRegion Seen(const QMdiSubWindow& window, const QMdiArea& area) {
    QRegion seen = area.viewport()->rect();
    const auto stack = area.subWindowList(QMdiArea::StackingOrder);
    for (qsizetype i = stack.indexOf(&window) + 1; i < stack.size(); ++i) {
        if (stack[i]->isVisible()) seen -= stack[i]->geometry();
    }
    return seen.translated(-window.pos());
}

void TakeContextMenu(const QString& caption) {
    DealWithNext<QMenu>([caption](QMenu& menu) {
        for (QAction* action : menu.actions()) {
            if (action->text().remove(u'&') != caption) continue;
            menu.setActiveAction(action);
            return QTest::keyClick(&menu, Qt::Key_Return);
        }
        menu.close();
    });
}

}  // namespace

class ReachTest final : public TestOfProgram {
    Q_OBJECT

  private Q_SLOTS:

    void theFirstStartHidesNoTitleAndNoMainDate_data() {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<double>("fontScale");
        QTest::newRow("as the screen is") << QSize() << 1.0;
        for (const QSize size : {QSize(933, 600), QSize(1366, 740), QSize(1400, 870), QSize(1920, 1050)}) {
            QTest::addRow("width %d", size.width()) << size << 1.0;
        }
        QTest::newRow("large font") << QSize(1400, 870) << 1.5;
    }

    void theFirstStartHidesNoTitleAndNoMainDate() {
        QFETCH(QSize, size);
        QFETCH(double, fontScale);
        const ScaledFont font(fontScale);
        Session session(size);
        session.frame().Draw();
        const auto& area = *session.frame().findChild<QMdiArea*>();
        for (const Form* form : session.program.Forms()) {
            const QMdiSubWindow& window = *session.Window(*form);
            if (!form->visible) continue;
            QVERIFY2((Needed(window) - Seen(window, area)).isEmpty(), form->name.c_str());
        }
    }

    void anItemRaisesACoveredWindow() {
        Session session;
        const QMdiSubWindow* gregorian = session.Window(session.program.gregorian.form);
        QMdiSubWindow* time = session.Window(session.program.timeAstro.form);
        time->move(gregorian->pos());
        const auto choose = [&] { session.Trigger("Gregorian and ISO Date"); };
        choose();
        QVERIFY(gregorian->isVisible());
        const auto& area = *session.frame().findChild<QMdiArea*>();
        QCOMPARE(area.subWindowList(QMdiArea::StackingOrder).last(), gregorian);
        QCOMPARE(area.currentSubWindow(), gregorian);
        choose();
        QVERIFY(!gregorian->isVisible());
        choose();
        QVERIFY(gregorian->isVisible());
    }

    void arrangingLeavesNothingCovered() {
        Session session;
        for (Form* form : session.program.Forms()) session.Window(*form)->move(40, 40);
        session.Trigger("Arrange");
        QRegion together;
        for (const Form* form : session.program.Forms()) {
            const QRect place = session.Window(*form)->geometry();
            if (!form->visible) continue;
            QVERIFY2(!together.intersects(place), form->name.c_str());
            together += place;
        }
        QVERIFY(session.frame().findChild<QMdiArea*>()->viewport()->rect().contains(together.boundingRect()));
    }

    /// Even where others have been given places, and nothing is left for it but to cover some, or where it would have
    /// stood beyond.
    void aWindowThatIsOpenedStandsInTheFrame() {
        for (const bool isBeyond : {false, true}) {
            Session session(QSize(1100, 820));
            QMdiSubWindow* window = session.Window(session.program.userLocales.form);
            if (isBeyond) window->move(900, 300);
            session.Trigger("Arrange");
            session.Trigger("User-Defined Locales");
            QVERIFY(session.frame().findChild<QMdiArea*>()->viewport()->rect().contains(window->geometry()));
        }
    }

    /// A month of fewer weeks makes its window lower, and one of more weeks higher again. A window that is opened fits
    /// in.
    void steppingAndOpeningMoveNoWindow() {
        Session session;
        const auto& area = *session.frame().findChild<QMdiArea*>();
        std::map<const Form*, QPoint> places;
        for (const Form* form : session.program.Forms()) places[form] = session.Window(*form)->pos();
        const int height = session.Window(session.program.monthly.form)->height();
        int heights = 0;
        for (int month = 0; month < 12; ++month) {
            session.Show(DisplayedMoment + 30);
            heights += session.Window(session.program.monthly.form)->height() != height;
            for (const auto& [form, place] : places) QCOMPARE(session.Window(*form)->pos(), place);
        }
        QVERIFY(heights > 0);
        session.program.frame.OrientCal.Click();
        session.frame().Draw();
        for (const auto& [form, place] : places) {
            const QMdiSubWindow& window = *session.Window(*form);
            if (!form->visible) continue;
            if (form != &session.program.oriental.form) QCOMPARE(window.pos(), place);
            QVERIFY2((Needed(window) - Seen(window, area)).isEmpty(), form->name.c_str());
        }
    }

    /// On a small screen windows lie over others anyway. Others don't move when one grows, nor when it goes and comes.
    void aCrowdKeepsItsPlaces() {
        Session session(QSize(1366, 740));
        auto& frame = session.program.frame;
        for (MenuItem* item : {&frame.JulianCal, &frame.OrientCal, &frame.PersianCal}) item->Click();
        session.frame().Draw();
        std::map<const Form*, QPoint> places;
        for (const Form* form : session.program.Forms()) places[form] = session.Window(*form)->pos();
        const auto& hide = session.program.quartane.form.Close;
        for (const auto& act : {session.program.monthly.Layout.Click, hide, frame.QuaCal.Click}) {
            act();
            session.frame().Draw();
            for (const auto& [form, place] : places) {
                if (form != &session.program.monthly.form) QCOMPARE(session.Window(*form)->pos(), place);
            }
        }
    }

    /// Windows that had to give way come back when the frame grows again; what is kept is where they stood.
    void aSmallFrameKeepsEveryTitleInReach() {
        Session session;
        const auto& area = *session.frame().findChild<QMdiArea*>();
        QMdiSubWindow* month = session.Window(session.program.monthly.form);
        month->move(900, 600);
        const QPoint before = month->pos();
        session.frame().resize(700, 480);
        for (const Form* form : session.program.Forms()) {
            const QMdiSubWindow& window = *session.Window(*form);
            if (!form->visible) continue;
            const QRegion title = Seen(window, area) & QRect(0, 0, window.width(), window.widget()->y());
            QVERIFY2(title.boundingRect().width() >= 60, form->name.c_str());
        }
        session.program.SavePreferences_Click();
        QVERIFY(Settings().contains("Left=" + QByteArray::number(month->x() * 15)));
        session.frame().resize(1400, 900);
        QCOMPARE(month->pos(), before);
    }

    /// Until the user acts again.
    void theStatusBarTellsWhy() {
        Session session;
        const auto* status = session.Find<QLabel>("status");
        DisplayedMoment = MaxFixedDay;
        session.Press(Qt::Key_PageUp);
        QCOMPARE(status->text(), QStringLiteral("the range ends at year 12000"));
        QCOMPARE(status->accessibleName(), status->text());
        session.Press(Qt::Key_PageDown);
        QCOMPARE(status->text(), QString());
        QTest::keyClicks(session.Find<QLineEdit>("FixedDayNum"), QStringLiteral("abc"));
        session.Press(Qt::Key_Return);
        QCOMPARE(status->text(), QStringLiteral("abc is not a day number"));
        QTest::keyClicks(session.Find<QLineEdit>("FixedDayNum"), QStringLiteral("abd"));
        QTest::mouseClick(session.Find<QCheckBox>("UseElevation"), Qt::LeftButton);
        QVERIFY(status->text().endsWith(QStringLiteral("abd is not a day number")));
        QTest::mouseClick(session.Find<QCheckBox>("UseElevation"), Qt::LeftButton);
        QCOMPARE(status->text(), QString());
    }

    void informationIsReadInAWindow() {
        Session session;
        QString shown;
        QGuiApplication::clipboard()->clear();
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
            DealWithNext<InformationBox>([&](InformationBox& box) {
                shown = box.findChild<QPlainTextEdit*>()->toPlainText();
                QTest::keyClick(box.findChild<QPlainTextEdit*>(), key);
            });
            session.program.gregorian.isoInfo_Click();
            QVERIFY(shown.contains(QStringLiteral("calendar has no months.")));
            QVERIFY(QGuiApplication::clipboard()->text().isEmpty());
        }
        DealWithNext<InformationBox>([](InformationBox& box) {
            for (QPushButton* button : box.findChildren<QPushButton*>()) {
                if (button->text() == QStringLiteral("&Copy")) button->click();
            }
        });
        session.program.gregorian.isoInfo_Click();
        QVERIFY(QGuiApplication::clipboard()->text().contains(QStringLiteral("has no\nmonths.")));
    }

    void theMenuKeyReachesEveryValue() {
        Session session;
        const QString iso = session.Find<QLabel>("TheISOdate")->text();
        auto* date = session.Find<QLabel>("GregorianDate");
        QContextMenuEvent byKey(QContextMenuEvent::Keyboard, QPoint(), QPoint());
        QContextMenuEvent byMouse(QContextMenuEvent::Mouse, QPoint(5, 5), date->mapToGlobal(QPoint(5, 5)));
        const auto copiedBy = [&](const QString& caption, const std::function<void()>& act) {
            QGuiApplication::clipboard()->clear();
            session.Find<QPushButton>("isoInfo")->setFocus();
            TakeContextMenu(caption);
            act();
            return QGuiApplication::clipboard()->text();
        };
        const QString copyIso =
            QStringLiteral("Copy ISO date (International Organization for Standard…: ") + iso.trimmed();
        QCOMPARE(copiedBy(copyIso, [&] { QApplication::sendEvent(QApplication::focusWidget(), &byKey); }), iso);
        QCOMPARE(copiedBy(copyIso, [&] { session.Press(Qt::Key_F10, Qt::ShiftModifier); }), iso);
        QCOMPARE(copiedBy(QStringLiteral("Copy"), [&] { QApplication::sendEvent(date, &byMouse); }), date->text());
    }

    void anArrowPressRenamesWhatChangedAndNothingElse() {
        Session session;
        session.Press(Qt::Key_Up);
        std::map<const QLabel*, std::pair<QString, QString>> before;
        const auto shown = [](const QLabel* label) { return label->text() + u'\n' + label->toolTip(); };
        const auto labels = session.frame().findChildren<QLabel*>();
        for (const QLabel* label : labels) before[label] = {shown(label), label->accessibleName()};
        session.Press(Qt::Key_Up);
        int changed = 0;
        for (const QLabel* label : labels) {
            const bool isChanged = shown(label) != before[label].first;
            changed += isChanged;
            const bool isRenamed = label->accessibleName() != before[label].second;
            QVERIFY2(isRenamed == isChanged, qPrintable(label->accessibleName()));
        }
        QVERIFY(changed > 5);
    }

    /// Windows that fit stand apart and within; those that don't leave each other's handles free.
    void layoutsKeepWindowsInReach() {
        std::mt19937 random(5784);
        const auto between = [&](int least, int greatest) {
            return least + static_cast<int>(random() % static_cast<unsigned>(greatest - least + 1));
        };
        for (int trial = 0; trial < 200; ++trial) {
            const QSize room(between(1000, 2000), between(700, 1200));
            std::vector<Pane> panes;
            qint64 area = 0;
            for (int i = between(1, 10); i > 0; --i) {
                const QRect wish(between(-200, 2000), between(0, 1200), between(200, 550), between(150, 380));
                const QRect title(0, 0, wish.width(), 25);
                panes.push_back({wish, {QRect(0, 0, 100, 25), title}, false});
                area += qint64(wish.width()) * wish.height();
            }
            const auto places = LayOut(room, panes);
            QCOMPARE(places.size(), panes.size());
            const bool ample = area * 5 < qint64(room.width()) * room.height();
            for (std::size_t i = 0; i < panes.size(); ++i) {
                const QRect rect(places[i], panes[i].wish.size());
                const QRect handle = panes[i].needed[0].translated(places[i]);
                QVERIFY(QRect(QPoint(), room).contains(handle));
                for (std::size_t j = 0; j < panes.size(); ++j) {
                    const bool isAbove = j != i && LiesUnder(i, places[i], j, places[j]);
                    const QRect other(places[j], panes[j].wish.size());
                    QVERIFY(!isAbove || !other.intersects(handle));
                    QVERIFY(!ample || i == j || !other.intersects(rect));
                }
            }
        }
    }
};

QTEST_MAIN(ReachTest)
#include "reach_test.moc"
