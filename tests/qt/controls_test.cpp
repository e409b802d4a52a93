#include "astro/sun_events.h"
#include "astro/timescales.h"
#include "clock/zone_time.h"
#include "qt/face.h"
#include "qt/status_bar_widget.h"
#include "session.h"

#include <QCheckBox>
#include <QClipboard>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QToolButton>

#include <set>

using namespace horvanta;

class ControlsTest final : public TestOfProgram {
    Q_OBJECT

  private Q_SLOTS:
    void everyControlHasItsWidgetAndEveryWidgetItsControl() {
        Session session;
        std::vector<Form*> forms = session.program.Forms();
        for (Form* dialog : session.program.Dialogs()) {
            dialog->visible = true;
            forms.push_back(dialog);
        }
        session.frame().Draw();
        for (Form* form : forms) {
            QWidget* content = form->modal ? session.Dialog(*form) : session.Window(*form)->widget();
            std::set<QString> controls;
            for (Control* control : form->controls) {
                const QString name = QString::fromStdString(control->name);
                controls.insert(name);
                auto* widget = content->findChild<QWidget*>(name);
                QVERIFY2(widget, control->name.c_str());
                QVERIFY2(MakeFace(*control, *widget), control->name.c_str());
                QVERIFY2(!widget->accessibleName().isEmpty(), control->name.c_str());
                QVERIFY2(widget->accessibleName() != QStringLiteral("Dummy"), form->name.c_str());
                for (const auto* part : widget->findChildren<QLabel*>()) {
                    QVERIFY(part->isHidden() || !part->accessibleName().isEmpty());
                }
            }
            for (const auto* widget : content->findChildren<QWidget*>()) {
                QVERIFY2(!isFace(*widget) || controls.contains(widget->objectName()), qPrintable(widget->objectName()));
            }
        }
    }

    void typedDayNumbersAreTakenOrGivenBack() {
        Session session;
        auto* field = session.Find<QLineEdit>("FixedDayNum");
        QVERIFY(field->hasFocus());
        const auto typeAndDo = [&](const char* text, const std::function<void()>& act) {
            field->setFocus();
            field->selectAll();
            QTest::keyClicks(field, QString::fromLatin1(text));
            act();
            QCoreApplication::processEvents();
            return DisplayedMoment;
        };
        const auto press = [&](Qt::Key key) { return [&session, key] { session.Press(key); }; };
        QCOMPARE(typeAndDo("8415.5", press(Qt::Key_Return)), 8415.5);
        QCOMPARE(session.Find<QLabel>("GregorianDate")->text(), QStringLiteral("Monday, January 15, 2024 "));
        QCOMPARE(typeAndDo("12x", [&] { session.Find<QToolButton>("NextUp")->click(); }), 8416);
        QCOMPARE(field->text(), QStringLiteral("8416"));
        QCOMPARE(typeAndDo("500", [&] { session.Trigger("Save This Moment"); }), 500);
        QCOMPARE(SavedMoment, 500);
        QCOMPARE(typeAndDo("1000", press(Qt::Key_Up)), 1001);
        QCOMPARE(typeAndDo("7-abc", press(Qt::Key_Escape)), 1001);
        QCOMPARE(field->text(), QStringLiteral("1001"));
        session.Press(Qt::Key_Escape);
        QCOMPARE(DisplayedMoment, Today());
        QCOMPARE(typeAndDo("1000", [&] { session.Find<QPushButton>("isoInfo")->setFocus(); }), 1000);
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
        for (const auto key : {Qt::Key_Plus, Qt::Key_Equal, Qt::Key_PageUp, Qt::Key_Up, Qt::Key_Minus})
            session.Press(key);
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
        const std::tuple<const char*, std::function<bool()>, Qt::CheckState> rows[] = {
            {"UseElevation", [] { return horizon::options.UseElevation; }, Qt::Checked},
            {"ShowDawnDusk", [] { return time_fields::options.ShowsDawnDusk; }, Qt::Checked},
            {"UseDeltaT", [] { return !DeltaTDisabled; }, Qt::Checked},
            {"AdjustDST", [] { return zone_time::options.AdjustDST == Checked; }, Qt::PartiallyChecked},
        };
        zone_time::options.AdjustDST = Undecided;
        CloseNextInformation();
        session.program.frame.Presets[1].Click();  // a place with an elevation and daylight saving time
        session.frame().Draw();
        for (const auto& [name, option, before] : rows) {
            auto* box = session.Find<QCheckBox>(name);
            QCOMPARE(box->checkState(), before);
            if (QByteArray("UseDeltaT") == name) AnswerNextBox(QMessageBox::Ok);
            box->setFocus();
            session.Press(Qt::Key_Space);
            QVERIFY(!option());
            QCOMPARE(box->checkState(), Qt::Unchecked);
            session.Press(Qt::Key_Return);
            QVERIFY(option());
            QCOMPARE(box->checkState(), Qt::Checked);
        }
    }

    void panelsLineUpAndAClickedOneIsCopied() {
        Session session;
        const auto panels = session.Find<StatusBarWidget>("DawnDusk")->findChildren<QLabel*>();
        const auto legends = session.Find<StatusBarWidget>("DawnDuskLegends")->findChildren<QLabel*>();
        QCOMPARE(panels.size(), legends.size());
        for (int i = 0; i < panels.size(); ++i) {
            QCOMPARE(panels[i]->x(), legends[i]->x());
            QCOMPARE(panels[i]->width(), legends[i]->width());
        }
        QTest::mouseClick(panels[4], Qt::LeftButton);
        QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("Sunrise: ") + panels[4]->text());
        QTest::mouseClick(legends[3], Qt::LeftButton);
        QCOMPARE(QApplication::clipboard()->text(), legends[3]->text() + QStringLiteral(": ") + panels[3]->text());
    }
};

QTEST_MAIN(ControlsTest)
#include "controls_test.moc"
