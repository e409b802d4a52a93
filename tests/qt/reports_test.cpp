#include "qt/new_file_dialog.h"
#include "session.h"

#include <QClipboard>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QToolButton>

using namespace horvanta;

namespace {

/// Chooses a name, and a kind by its number.
void ChooseFile(const QString& name, int kind = 0) {
    DealWithNext<NewFileDialog>([name, kind](NewFileDialog& dialog) {
        dialog.selectNameFilter(dialog.nameFilters().at(kind));
        dialog.selectFile(name);
        static_cast<QDialog&>(dialog).accept();
    });
}

}  // namespace

class ReportsTest final : public TestOfProgram {
    Q_OBJECT

  private Q_SLOTS:
    void aReportEndsInItsWindow() {
        Session session;
        QMainWindow& frame = session.frame();
        ChooseFile(Path("a"), 2);
        session.program.frame.ListPostpone19years.Click();
        session.frame().Draw();
        session.AwaitActive();
        auto* dialog = session.Dialog(session.program.reports.finished.form);
        QCOMPARE(QApplication::activeModalWidget(), dialog);
        QVERIFY(!session.Dialog(session.program.reports.progress.form)->isVisible());
        QCOMPARE(dialog->findChild<QLineEdit*>(QStringLiteral("FilePath"))->text(), Path("a.csv"));
        QVERIFY(QFile::exists(Path("a.csv")));
        QCOMPARE(dialog->focusWidget(), dialog->findChild<QPushButton*>(QStringLiteral("LaunchButton")));
        QTest::mouseClick(dialog->findChild<QPushButton*>(QStringLiteral("CopyPathButton")), Qt::LeftButton);
        QCOMPARE(QApplication::clipboard()->text(), Path("a.csv"));
        QVERIFY(!dialog->isVisible());
        session.AwaitActive();
        QCOMPARE(frame.focusWidget(), session.Find<QLineEdit>("FixedDayNum"));
    }

    /// A name with another ending gets that of the kind; whoever would rather keep the file that has it is asked anew.
    void anOlderFileIsReplacedOnRequest() {
        Session session;
        QFile older(Path("a.xyzzy.tab"));
        QVERIFY(older.open(QIODevice::WriteOnly));
        older.write("older");
        older.close();
        for (const auto button : {QMessageBox::No, QMessageBox::Yes}) {
            ChooseFile(Path("a.xyzzy"), 1);
            DealWithNext<QMessageBox>([button](QMessageBox& box) {
                if (button == QMessageBox::No) DealWithNext<NewFileDialog>([](QDialog& again) { again.reject(); });
                box.button(button)->click();
            });
            session.program.frame.ReportOmer.Click();
            QCOMPARE(QFileInfo(older).size() == 5, button == QMessageBox::No);
        }
        session.program.reports.finished.OKButton_Click();
    }

    void onlyCancelIsHeardWhileAReportRuns_data() {
        QTest::addColumn<int>("way");
        for (int way = 0; way < 3; ++way) QTest::addRow("way %d", way) << way;
    }

    void onlyCancelIsHeardWhileAReportRuns() {
        QFETCH(int, way);
        Session session;
        const Moment before = DisplayedMoment;
        ChooseFile(Path("a.htm"));
        QElapsedTimer sinceCancel;
        QWidget* dialog = session.Dialog(session.program.reports.progress.form);
        QTimer timer;
        connect(&timer, &QTimer::timeout, &timer, [&] {
            if (!dialog->isVisible() || dialog->findChild<QProgressBar*>()->value() < 300 || sinceCancel.isValid())
                return;
            QTest::mouseClick(session.Find<QToolButton>("NextUp"), Qt::LeftButton);
            QTest::keyClick(session.Find<QLineEdit>("FixedDayNum"), Qt::Key_PageUp);
            session.frame().close();
            sinceCancel.start();
            auto* button = dialog->findChild<QPushButton*>(QStringLiteral("CancelButton"));
            if (way == 0) QTest::mouseClick(button, Qt::LeftButton);
            if (way == 1) QTest::keyClick(button, Qt::Key_Escape);
            if (way == 2) dialog->close();
        });
        timer.start(0);
        session.program.frame.ListPostpone1000years.Click();
        QVERIFY(sinceCancel.isValid());
        QVERIFY2(sinceCancel.elapsed() < 100, qPrintable(QString::number(sinceCancel.elapsed())));
        session.frame().Draw();
        QVERIFY(!dialog->isVisible());
        QVERIFY(!QApplication::activeModalWidget());
        QVERIFY(QDir(folder_->path()).entryList({QStringLiteral("a.*")}).isEmpty());
        QCOMPARE(DisplayedMoment, before);
        QVERIFY(session.frame().isVisible());
    }

    void theWindowsShowAllTheirText() {
        const ScaledFont font(1.5);
        Session session;
        session.program.reports.finished.ShowReportFinished(
            std::string(300, 'W'), "Exact Hebrew Calendar Full Cycle Weekday Frequencies",
            "Comma-Separated Values (.csv)",
            "Use web browser to fit report to page by adjusting text size, margins, and page layout.");
        session.program.frame.JumpToDate.Click();
        session.program.reports.progress.Setup("/" + std::string(300, 'W'), 10);
        session.frame().Draw();
        for (const Form* form : session.program.Dialogs()) {
            const auto* dialog = session.Dialog(*form);
            QVERIFY(dialog->width() < 1366);
            for (const auto* label : dialog->findChildren<QLabel*>()) {
                QVERIFY2(label->height() >= label->heightForWidth(label->width()), qPrintable(label->text()));
            }
            for (const auto* button : dialog->findChildren<QPushButton*>()) {
                QVERIFY2(button->width() >= button->sizeHint().width(), qPrintable(button->text()));
            }
        }
    }

  private:
    QString Path(const char* name) const { return folder_->filePath(QString::fromLatin1(name)); }
};

QTEST_MAIN(ReportsTest)
#include "reports_test.moc"
