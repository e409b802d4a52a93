#include "desk.h"

#include "core/moment.h"
#include "core/text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <random>
#include <utility>

namespace horvanta {
namespace {

TEST(Desk, AnswersEveryLineWithOne) {
    // clang-format off
    constexpr std::pair<const char*, const char*> rows[] = {
        {"call GregorianToFixed 2024 1 15", "8415"}, {"call HoursToDays 2.4", "0.099999999999999992"},
        {"call FormatTime never 0 false", "\"never\""}, {"call Floor never", "never"},
        {"call ExtGCD 240 46", "divisor=2 x=-9 y=47"}, {"call MaxOf 1 3 2", "3"},
        {"call ReplaceAll \"a b\" \" \" \"\\n\"", "\"a\\nb\""}, {"call Floor", "error: takes 1 arguments"},
        {"call GCD 1.5 2", "error: not a whole number that fits: 1.5"},
        {"call Nothing", "error: no such function: Nothing"}, {"call ReplaceAll \"a", "error: a quote is not closed"},
        {"", "error: no such line: "}, {"set J2000 1", "error: can't be set: J2000"},
        {"menu FileMenu", "error: no such menu item: FileMenu"},
        {"click Gregorian.Nothing", "error: no such control: Gregorian.Nothing"},
        {"click TimeAstro.JumpToPast 2", "error: no such control: TimeAstro.JumpToPast 2"},
        {"click TimeAstro.DawnDusk 10", "error: no such panel"},
        {"click TimeAstro.SunDecLabel", "error: nothing happens there"},
        {"type Gregorian.Dominical A", "error: nothing can be typed there"},
        {"type User.LocName Home", "error: not in reach: User.LocName"}, {"close User", "error: not in reach: User"},
        {"asked", "none"},
    };
    // clang-format on
    Desk desk;
    for (const auto& [line, answer] : rows) EXPECT_EQ(desk.Obey(line), answer) << line;
}

void AddMenuLines(const MenuItem& menu, std::vector<std::string>& lines) {
    for (const MenuItem* item : menu.items) {
        if (item->name == "QuitSubMenu" || item->name == "ReportS") continue;  // they end it, or write files
        if (item->Click) lines.push_back("menu " + item->name);
        AddMenuLines(*item, lines);
    }
}

/// What is typed, but mostly by nobody or by mistake.
std::vector<std::string> OddTexts() {
    // clang-format off
    return {"", "-", "nan", "inf", "1e400", "—5", "9999999", "-9999999", "1e-300", "0x1", "٣", "90", "-90", "180",
            "59.9999", "24", "30", "1e308", "&", "&&a&", "[*]", "<b>a</b><img src='/dev/zero'>", "\x01\x02\x7F",
            "a\tb\nc", "%n%s%1", "\"\\", "ירושלים\u202E", "\xFF\xC0\xAF", "a;b,c=d]", "@@", "2024-02-29",
            "12 March 44 BC", "15 Nisan 5784", "JD 2460000.25", std::string(3, '\0'), std::string(5000, 'x')};
    // clang-format on
}

/// A line for everything the user can do but quit.
std::vector<std::string> LinesOf(Horvanta& program) {
    std::vector<std::string> lines{"answer yes", "answer no", "answer color 8421504", "events", "status"};
    for (const std::string& text : OddTexts()) lines.push_back("answer text " + text);
    for (const char* key : {"Space", "Space shift", "PageUp", "PageDown", "Up", "Down", "Plus", "Minus", "Home",
                            "Enter", "Left", "Backspace ctrl", "End alt", "Escape"}) {
        lines.push_back(std::string("press ") + key);
    }
    for (int slot = 1; slot <= 30; ++slot) lines.push_back("menu UserLoc " + std::to_string(slot));
    std::vector<Form*> forms = program.Forms();
    forms.push_back(&program.dateBox.form);
    for (const Form* form : forms) {
        lines.push_back("close " + form->name);
        for (const Control* control : form->controls) {
            const std::string name = form->name + "." + control->name;
            for (const char* which : {" up", " down", " 1", " 17", " 1 3"}) lines.push_back("click " + name + which);
            if (dynamic_cast<const ChoiceList*>(control)) {
                for (const char* item : {" 0", " 1", " 3", " 5"}) lines.push_back("choose " + name + item);
            }
            if (dynamic_cast<const TextField*>(control)) {
                for (const std::string& text : OddTexts()) lines.push_back("type " + name + " " + text);
            }
            for (const char* act : {"click ", "dblclick ", "rightclick ", "focus "}) lines.push_back(act + name);
        }
    }
    AddMenuLines(program.frame.menuBar, lines);
    return lines;
}

/// A number that the environment sets, for runs that are longer or take another way.
int Wanted(const char* name, int otherwise) {
    const char* wanted = std::getenv(name);
    return wanted ? std::atoi(wanted) : otherwise;
}

/// Ends the program in one of two ways and starts it anew on what it saved. The saved moment keeps its date.
void Restart(std::optional<Desk>& desk, bool bySession) {
    desk->desktop.answers.assign(1, {BoxAnswer::no, Color(), ""});
    desk->Obey("click DateBox.CancelDate");
    if (bySession) {
        desk->program.EndSession();
    } else {
        desk->Obey("menu MenuExit");
    }
    ASSERT_TRUE(desk->desktop.ended);
    const StoredSettings left = desk->desktop.settings.flushed;
    const double saved = SavedMoment - GregorianEpoch;
    desk.reset();
    desk.emplace(left);
    ASSERT_NEAR(SavedMoment - GregorianEpoch, saved, 1e-8);
    ASSERT_EQ(desk->desktop.status, "");
}

/// Whatever the user does, over many starts, the moment stays within its range and the date shown is that of its day.
/// HORVANTA_ACTS sets how many random acts, HORVANTA_SEED which.
TEST(Desk, KeepsTheMomentInItsRangeWhateverIsDone) {
    const int acts = Wanted("HORVANTA_ACTS", 20'000);
    std::mt19937 random(static_cast<std::mt19937::result_type>(Wanted("HORVANTA_SEED", 5784)));
    const auto pick = [&](const auto& list) { return list[random() % list.size()]; };
    std::uniform_real_distribution<double> day(-3e6, 5e6);

    std::optional<Desk> desk(std::in_place);
    const std::vector<std::string> lines = LinesOf(desk->program);
    for (int i = 0; i < acts; ++i) {
        std::string line = pick(lines);
        if (random() % 4 == 0) line = "type TimeAstro.FixedDayNum " + GeneralText(day(random));
        if (random() % 64 == 0) {
            day_numbering::options.FixedDayOption = 1;
            const Moment dayOne = std::clamp<double>(day(random), MinFixedDay, MaxFixedDay);
            line = "call ChangeFixedDayEpoch " + GeneralText(dayOne) + " 1 x";
        }
        if (random() % 1024 == 0) Restart(desk, random() % 2 == 0);
        desk->Obey(line);

        const GregorianDate& date = FixedToGregorianDate(DisplayedMoment);
        const bool inRange = DisplayedMoment >= MinFixedDay && DisplayedMoment <= MaxFixedDay;
        const bool convertsBack = GregorianToFixed(date.year, date.month, date.day) == Floor(DisplayedMoment);
        const bool shown = !desk->program.gregorian.form.visible ||
                           desk->program.gregorian.GregorianDate.text == GregorianDateString(date) + " ";
        const bool isNumber = ParseNumber(desk->program.timeAstro.FixedDayNum.text).has_value();
        ASSERT_TRUE(inRange && convertsBack && shown && isNumber)
            << "act " << i << ", " << line << ": " << ExactText(DisplayedMoment);
        if (HasFatalFailure()) return;
        if (desk->desktop.asked.size() > 100) desk->desktop.asked.clear();
        if (desk->desktop.answers.size() > 4) desk->desktop.answers.clear();
    }
}

}  // namespace
}  // namespace horvanta
