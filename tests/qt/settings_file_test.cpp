#include "qt/settings_file.h"

#include "qt/private_file.h"
#include "qt/single_instance.h"
#include "session.h"

#include <QElapsedTimer>

#include <atomic>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>

using namespace horvanta;

namespace {

QString Path() { return SettingsFile::PathOf(ProgramSettings); }

std::string PathText() { return Path().toStdString(); }

std::string Value(SettingsFile& settings, const char* key) {
    return settings.Read(ProgramSettings, "Item", key).value_or("none");
}

mode_t RightsOf(const std::string& path) {
    struct stat facts {};
    return stat(path.c_str(), &facts) == 0 ? facts.st_mode & 07777 : 0;
}

/// The largest file that the process may write, until the end of the block.
class SizeLimit {
  public:
    explicit SizeLimit(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~SizeLimit() { setrlimit(RLIMIT_FSIZE, &before_); }

  private:
    rlimit before_{};
};

const QByteArray someSettings = "[Horvanta]\nEvents/Top=0\nItem/RD=1000\nProg/Launch=OK\n";

}  // namespace

class SettingsFileTest final : public TestOfProgram {
    Q_OBJECT

  private Q_SLOTS:
    void whatIsWrittenIsReadByTheNextAndByNobodyElse() {
        Put(Path(), someSettings);
        chmod(PathText().c_str(), 0644);
        chmod(SettingsFile::Folder().toUtf8().constData(), 0755);
        {
            SettingsFile settings;
            QCOMPARE(Value(settings, "RD"), "1000");
            QCOMPARE(RightsOf(PathText()), mode_t(0600));
            QCOMPARE(RightsOf(SettingsFile::Folder().toStdString()), mode_t(0700));
            settings.Write(ProgramSettings, "Item", "RD", "2000");
            settings.Write(UserSettings, "User 1", "Name", "Home");
            const FlushReport report = settings.Flush();
            QCOMPARE(report.failure, "");
            QCOMPARE(report.kept, "");
        }
        SettingsFile settings;
        QCOMPARE(Value(settings, "RD"), "2000");
        QCOMPARE(settings.Read(UserSettings, "User 1", "Name").value_or(""), "Home");
        QCOMPARE(RightsOf(SettingsFile::PathOf(UserSettings).toStdString()), mode_t(0600));
        QCOMPARE(QDir(SettingsFile::Folder()).entryList(QDir::Files).size(), 2);
    }

    /// As on a disk that is full.
    void whatDoesNotFitLeavesTheOldFile() {
        Put(Path(), someSettings);
        SettingsFile settings;
        settings.Write(ProgramSettings, "Item", "RD", "2000");
        for (const rlim_t bytes : {0, 1, 30}) {
            const SizeLimit limit(bytes);
            QVERIFY(settings.Flush().failure.find("could not be saved") != std::string::npos);
            QCOMPARE(BytesOf(Path()), someSettings);
            QCOMPARE(QDir(SettingsFile::Folder()).entryList(QDir::Files).size(), 1);
        }
        QCOMPARE(settings.Flush().failure, "");
        QVERIFY(BytesOf(Path()).contains("Item/RD=2000\n"));
    }

    void whatIsNoFileIsNeitherReadNorReplaced_data() {
        QTest::addColumn<QString>("command");
        for (const char* command : {"mkdir %1", "mkfifo %1", "ln -s /dev/null %1", "ln -s nothing %1", "ln -s %1 %1",
                                    "ln -s /dev/zero %1", "truncate -s 1T %1", "echo Item/RD=1 >%1; chmod 400 %1"}) {
            QTest::newRow(command) << QString::fromLatin1(command);
        }
    }

    void whatIsNoFileIsNeitherReadNorReplaced() {
        QFETCH(QString, command);
        QDir().mkpath(SettingsFile::Folder());
        QCOMPARE(std::system(qPrintable(command.arg(Path()))), 0);
        struct stat before {
        }, after{};
        QCOMPARE(lstat(PathText().c_str(), &before), 0);
        SettingsFile settings;
        QCOMPARE(Value(settings, "RD"), command.contains(u"RD=1") ? "1" : "none");
        settings.Write(ProgramSettings, "Item", "RD", "2000");
        QVERIFY(!settings.Flush().failure.empty());
        QCOMPARE(Value(settings, "RD"), "2000");
        QCOMPARE(lstat(PathText().c_str(), &after), 0);
        QCOMPARE(after.st_ino, before.st_ino);
    }

    void aLinkIsFollowed() {
        const QString other = folder_->filePath(QStringLiteral("mine"));
        Put(other, someSettings);
        QDir().mkpath(SettingsFile::Folder());
        QVERIFY(QFile::link(other, Path()));
        SettingsFile settings;
        QCOMPARE(Value(settings, "RD"), "1000");
        settings.Write(ProgramSettings, "Item", "RD", "2000");
        QCOMPARE(settings.Flush().failure, "");
        QVERIFY(QFileInfo(Path()).isSymLink());
        QVERIFY(BytesOf(other).contains("Item/RD=2000\n"));
    }

    /// Not even a disk without room hinders it.
    void theMarkOfAStartLeavesTheSettingsAlone() {
        Put(Path(), someSettings);
        const SizeLimit limit(0);
        {
            SettingsFile settings;
            settings.Write(ProgramSettings, "Prog", "Launch", "");
            QCOMPARE(settings.Flush().failure, "");
        }
        SettingsFile next;
        QCOMPARE(next.Read(ProgramSettings, "Prog", "Launch").value_or("none"), "");
        QCOMPARE(Value(next, "RD"), "1000");
        next.Write(ProgramSettings, "Prog", "Launch", "OK");
        QCOMPARE(next.Flush().failure, "");
        QCOMPARE(BytesOf(Path()), someSettings);
        QCOMPARE(SettingsFile().Read(ProgramSettings, "Prog", "Launch").value_or("none"), "OK");
    }

    void aDamagedLineIsNoMarkOfAStart() {
        Put(Path(), "Prog/Launch=\n");
        QCOMPARE(SettingsFile().Read(ProgramSettings, "Prog", "Launch").value_or("none"), "none");
    }

    /// And a start that fails again does not put next to nothing in the place of what was kept.
    void whatIsClearedIsKept() {
        Put(Path(), someSettings);
        const QString kept = Path() + QStringLiteral(".bad");
        for (int start = 0; start < 3; ++start) {
            SettingsFile settings;
            settings.DeleteApplication(ProgramSettings);
            settings.Write(ProgramSettings, "Prog", "Launch", "");
            const FlushReport report = settings.Flush();
            QCOMPARE(report.kept.find(kept.toStdString()) != std::string::npos, start == 0);
            QCOMPARE(Value(settings, "RD"), "none");
            settings.Write(ProgramSettings, "Prog", "Launch", "OK");
            settings.Flush();
            QCOMPARE(BytesOf(kept), someSettings);
            QCOMPARE(BytesOf(Path()), "[Horvanta]\nProg/Launch=OK\n");
        }
    }

    void aDamagedFileIsKeptWhenItIsReplaced() {
        const QByteArray damaged = someSettings + "RD\n";
        Put(Path(), damaged);
        SettingsFile settings;
        QCOMPARE(Value(settings, "RD"), "1000");
        settings.Write(ProgramSettings, "Item", "RD", "2000");
        QVERIFY(!settings.Flush().kept.empty());
        QCOMPARE(BytesOf(Path() + QStringLiteral(".bad")), damaged);
        settings.Write(ProgramSettings, "Item", "RD", "3000");
        QVERIFY(settings.Flush().kept.empty());
        QCOMPARE(BytesOf(Path() + QStringLiteral(".bad")), damaged);
    }

    void anotherStartIsAnsweredOrGivesUpInTime() {
        using Outcome = SingleInstance::Outcome;
        bool came = false;
        SingleInstance first;
        first.ComeForward = [&came] { came = true; };
        QVERIFY(first.Claim() == Outcome::First);
        QCOMPARE(RightsOf((SettingsFile::Folder() + QStringLiteral("/Horvanta.socket")).toStdString()), mode_t(0600));
        std::atomic<int> outcome = -1;
        std::thread second([&outcome] { outcome = static_cast<int>(SingleInstance().Claim()); });
        QTRY_COMPARE(outcome.load(), static_cast<int>(Outcome::Answered));
        second.join();
        QVERIFY(came);

        QElapsedTimer time;
        time.start();
        QVERIFY(SingleInstance().Claim() == Outcome::Silent);
        QVERIFY2(time.elapsed() < 2500, qPrintable(QString::number(time.elapsed())));
    }

    /// What a crash or another system left, or somebody put there.
    void noRemainsLockAnyoneOut() {
        // clang-format off
        const char* commands[] = {
            "true", "echo 1 >Horvanta.lock", "head -c 99 /dev/urandom >Horvanta.lock", ">Horvanta.lock",
            "mkfifo Horvanta.lock", "mkdir Horvanta.lock", ">Horvanta.socket", "mkfifo Horvanta.socket",
            "ln -s /dev/zero Horvanta.lock",
        };
        // clang-format on
        for (const char* command : commands) {
            QVERIFY(QMetaObject::invokeMethod(this, "init"));
            QDir().mkpath(SettingsFile::Folder());
            const QString line = QStringLiteral("cd '%1' && %2");
            QCOMPARE(std::system(qPrintable(line.arg(SettingsFile::Folder(), QString::fromLatin1(command)))), 0);
            QElapsedTimer time;
            time.start();
            SingleInstance first;
            QVERIFY2(first.Claim() == SingleInstance::Outcome::First, command);
            QVERIFY2(time.elapsed() < 1000, command);
        }
    }
};

QTEST_GUILESS_MAIN(SettingsFileTest)
#include "settings_file_test.moc"
