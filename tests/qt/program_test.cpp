#include "core/moment.h"
#include "session.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QLineEdit>
#include <QProcess>

using namespace horvanta;

namespace {

/// Keeps the addresses that the program opens, in place of a browser.
class Browser final : public QObject {
    Q_OBJECT
  public:
    Browser() { QDesktopServices::setUrlHandler(QStringLiteral("http"), this, "Open"); }
    ~Browser() override { QDesktopServices::unsetUrlHandler(QStringLiteral("http")); }

    Q_INVOKABLE void Open(const QUrl& address) { opened = address; }

    QUrl opened;
};

}  // namespace

class ProgramTest final : public TestOfProgram {
    Q_OBJECT

  private Q_SLOTS:
    void aMapOpensWithItsAddressAsItIs() {
        Session session;
        Browser browser;
        CloseNextInformation();
        session.program.frame.Presets[20].Click();  // a place with a space in its name
        session.program.frame.MapLocale.Click();
        const QString address = QString::fromLatin1(browser.opened.toEncoded());
        QVERIFY2(address.startsWith(QStringLiteral("http://")), qPrintable(address));
        QVERIFY2(address.endsWith(QStringLiteral("&zoom=9&q=Times%20Square")), qPrintable(address));
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
        Put(SettingsPath(), bytes);
        {
            Session session;
            QCOMPARE(DisplayedMoment, Today());
            QVERIFY(session.Window(session.program.timeAstro.form)->isVisible());
            QVERIFY(QRect(0, 0, 1400, 900).intersects(session.Window(session.program.gregorian.form)->geometry()));
            session.program.Form_Unload();
        }
        QVERIFY(Settings().contains("Launch=OK"));
    }

    void aReadOnlySettingsFileIsReadAndLeftAlone() {
        const QByteArray kept = "[Item]\nRD=1000\nSD=\"2000,5\"\n[TimeAstro]\nChk=False\nLeft=150,5\n";
        Put(SettingsPath(), kept);
        QVERIFY(QFile::setPermissions(SettingsPath(), QFileDevice::ReadOwner));
        {
            Session session;
            QCOMPARE(DisplayedMoment, 1000);
            QCOMPARE(SavedMoment, 2000);
            QCOMPARE(session.program.timeAstro.form.position.left, 150);
            AnswerNextBox(QMessageBox::Yes);  // to end all the same
            QVERIFY(session.program.Form_Unload());
        }
        QCOMPARE(Settings(), kept);
    }

    void aSecondStartEndsAndTheFirstGoesOn() {
        QProcess first;
        first.start(QStringLiteral(HORVANTA_PROGRAM), {});
        QTRY_VERIFY_WITH_TIMEOUT(Settings().contains("Launch=OK"), 20000);
        QProcess second;
        second.start(QStringLiteral(HORVANTA_PROGRAM), {});
        QVERIFY(second.waitForFinished(10000));
        QCOMPARE(second.exitCode(), 0);
        QCOMPARE(first.state(), QProcess::Running);
        QVERIFY(Settings().contains("Launch=OK"));

        first.kill();
        first.waitForFinished();
        QFile::remove(SettingsPath());
        QProcess third;  // the lock of a program that was killed holds nobody up
        third.start(QStringLiteral(HORVANTA_PROGRAM), {});
        QTRY_VERIFY_WITH_TIMEOUT(Settings().contains("Launch=OK"), 20000);
        third.kill();
        third.waitForFinished();
    }

    void aProgramThatIsTerminatedSavesItsSettings() {
        QProcess program;
        program.start(QStringLiteral(HORVANTA_PROGRAM), {});
        QTRY_VERIFY_WITH_TIMEOUT(Settings().contains("Launch=OK"), 20000);
        QVERIFY(!Settings().contains("TimeAstro/"));
        program.terminate();
        QVERIFY(program.waitForFinished(10000));
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QVERIFY(Settings().contains("TimeAstro/"));
        QVERIFY(Settings().contains("Launch=OK"));
    }
};

QTEST_MAIN(ProgramTest)
#include "program_test.moc"
