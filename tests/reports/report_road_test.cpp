#include "reports/report_road.h"

#include "desk_fixture.h"
#include "hebrew/hebrew_arithmetic.h"

#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sys/resource.h>
#include <unistd.h>

namespace horvanta {
namespace {

namespace fs = std::filesystem;

/// A folder of its own with an older report in it.
class ReportRoadTest : public DeskTest {
  protected:
    ReportRoadTest() {
        fs::remove_all(folder);
        fs::create_directories(folder);
        std::ofstream(file) << "older";
    }
    ~ReportRoadTest() override { fs::remove_all(folder); }

    /// Chooses a file for the report of a menu item, and returns what was asked meanwhile.
    std::string Make(const std::string& path, const std::string& item = "ReportOmer") {
        desk.desktop.answers.push_front({BoxAnswer::text, Color(), path});
        desk.Obey("asked");
        EXPECT_EQ(desk.Obey("menu " + item), "ok");
        const std::string asked = desk.Obey("asked");
        return asked.substr(asked.find("; ") + 2);
    }

    std::string Text(const fs::path& path) const {
        std::ifstream stream(path);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    /// The older file is alone in its folder, and whole.
    void ExpectNothingHappened() const {
        EXPECT_EQ(Text(file), "older");
        EXPECT_EQ(std::distance(fs::directory_iterator(folder), {}), 1);
        EXPECT_FALSE(desk.program.reports.progress.form.visible);
        EXPECT_FALSE(desk.program.reports.finished.form.visible);
        EXPECT_EQ(BusyCount, 0);
        EXPECT_EQ(&desk.desktop.focused->form, &desk.program.timeAstro.form);
    }

    const fs::path folder = fs::temp_directory_path() / ("horvanta-reports-" + std::to_string(getpid()));
    const fs::path file = folder / "a, b – ירושלים.csv";
};

TEST_F(ReportRoadTest, EndsInAWindowThatDoesWhatItSays) {
    const Moment before = DisplayedMoment;
    Make(file);
    EXPECT_TRUE(Text(file).starts_with("\"Evening\",")) << Text(file);
    EXPECT_EQ(DisplayedMoment, before);
    EXPECT_EQ(desk.Obey("click TimeAstro.NextUp"), "error: not in reach: TimeAstro.NextUp");
    EXPECT_EQ(desk.Obey("menu ReportOmer"), "error: not in reach: HorvantaMDI");
    Obey({"click ReportFinished.LaunchButton", "click ReportFinished.SelectButton"});
    EXPECT_EQ(desk.Obey("asked"), "open " + Quoted(file.string()) + "; select " + Quoted(file.string()));
    EXPECT_EQ(desk.desktop.focused, &desk.program.timeAstro.FixedDayNum);

    Make(file, "ListPostpone19years");
    EXPECT_EQ(AskedBy("click ReportFinished.CopyPathButton"), "clipboard " + Quoted(file.string()));
    Make(file, "ListPossibleWeekdayStats");
    EXPECT_EQ(desk.Obey("press Escape"), "ok");
    EXPECT_TRUE(Text(file).starts_with("\"Month\","));
    Make(file);
    desk.Obey("click ReportFinished.CancelButton");
    EXPECT_FALSE(fs::exists(file));
}

TEST_F(ReportRoadTest, CanBeGivenUpAllAlong) {
    Obey({"answer cancel", "menu ListPostpone1000years"});
    ExpectNothingHappened();
    const Moment before = DisplayedMoment;
    for (const char* end : {"click Progress.CancelButton", "close Progress", "press Escape"}) {
        for (const int rounds : {0, 20, 48}) {
            for (const char* lost :
                 {"click TimeAstro.NextUp", "menu MenuJumpToNow", "press PageUp", "close TimeAstro"}) {
                desk.Obey("during " + std::string(lost));
            }
            desk.Obey("during " + std::to_string(rounds > 4 ? rounds - 4 : 0) + " " + end);
            EXPECT_TRUE(Make(file).ends_with(" ok; beep"));
            ExpectNothingHappened();
            EXPECT_EQ(DisplayedMoment, before);
        }
    }
    Make(file);
    EXPECT_TRUE(Text(file).starts_with("\"Evening\","));
}

TEST_F(ReportRoadTest, EndsWithTheProgram) {
    desk.desktop.duringEvents = [this] { desk.program.EndSession(); };
    Make(file);
    EXPECT_TRUE(desk.desktop.ended);
    ExpectNothingHappened();
}

TEST_F(ReportRoadTest, TellsWhereNoFileCanBe) {
    const fs::path link = folder / "link.csv";
    const std::pair<fs::path, const char*> rows[] = {
        {folder, "Is a directory"},
        {folder / "none" / "x.htm", "No such file or directory"},
        {file / "x.htm", "Not a directory"},
        {"/dev/null", "Not a file"},
        {folder / std::string(300, 'x'), "File name too long"},
    };
    for (const auto& [path, reason] : rows) {
        EXPECT_EQ(Make(path), "box \"Omer Count\" " +
                                  Quoted("The report can't be written to\n" + path.string() + "\n\n" + reason + "."));
        ExpectNothingHappened();
    }
    EXPECT_TRUE(fs::is_character_file("/dev/null"));

    fs::create_symlink(file, link);
    Make(link);
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_TRUE(Text(file).starts_with("\"Evening\","));
}

TEST_F(ReportRoadTest, KeepsTheOlderFileWhereTheDiskFails) {
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    for (const rlim_t room : {0, 5000, 80'000}) {
        const rlimit limit{room, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
        const std::string asked = Make(file, "ListPostpone1000years");
        setrlimit(RLIMIT_FSIZE, &before);
        EXPECT_TRUE(asked.ends_with("\\n\\nFile too large.\"")) << asked;
        ExpectNothingHappened();
    }
    std::signal(SIGXFSZ, SIG_DFL);
}

/// What was written disappears in the middle, so that it can't take the older file's place.
TEST_F(ReportRoadTest, AsksAgainWhileTheOlderFileCantBeReplaced) {
    desk.desktop.duringEvents = [this] { fs::remove(file.string() + ".unfinished"); };
    desk.Obey("answer yes");
    const std::string question =
        "box \"File In Use\" " +
        Quoted("Can't delete file:\n" + file.string() +
               "\n(No such file or directory)\n\nIs the file open in another program?\nClose it now, then click OK to "
               "continue:");
    EXPECT_EQ(Make(file), question + " yes; " + question + " cancel");
    ExpectNothingHappened();
}

TEST_F(ReportRoadTest, IsThereForDaysThatTheHebrewCalendarHas) {
    const auto isOffered = [this] { return desk.Obey("menu ReportOmer") == "ok"; };
    EXPECT_TRUE(isOffered());
    EXPECT_EQ(desk.program.frame.ReportOmer.caption, "&Omer Count for Year 5784");
    desk.Obey("close Hebrew");
    EXPECT_FALSE(isOffered());
    desk.Obey("menu HebrewCal");
    Show(HebrewEpoch - 0.5);
    EXPECT_FALSE(isOffered());
    Show(HebrewEpoch);
    EXPECT_TRUE(isOffered());
}

TEST_F(ReportRoadTest, SuggestsNamesThatAnyDiskTakes) {
    EXPECT_EQ(CleanFileName("Zmanim, 5781/January"), "Zmanim-5781-January");
    desk.Obey("menu ListPostpone57years");
    EXPECT_TRUE(desk.Obey("asked").starts_with(
        "save \"Save As (Rosh Hashanah Postponements)\" \"Postponements-5784-5840-(57-years).htm\" \"Web Page *.htm\" "));
}

}  // namespace
}  // namespace horvanta
