#include "desk.h"

#include "core/moment.h"
#include "core/text.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

namespace horvanta {
namespace {

TEST(Desk, AnswersEveryLineWithOne) {
    constexpr std::pair<const char*, const char*> rows[] = {
        {"call GregorianToFixed 2024 1 15", "8415"},
        {"call Modulo -1 7", "6"},
        {"call HoursToDays 2.4", "0.099999999999999992"},
        {"call FormatTime never 0 false", "\"never\""},
        {"call Floor never", "never"},
        {"call ExtGCD 240 46", "divisor=2 x=-9 y=47"},
        {"call MaxOf 1 3 2", "3"},
        {"call ReplaceAll \"a b\" \" \" \"\\n\"", "\"a\\nb\""},
        {"call ParseNumber x", "none"},
        {"call Floor", "error: takes 1 arguments"},
        {"call Floor x", "error: not a number: x"},
        {"call GCD 1.5 2", "error: not a whole number that fits: 1.5"},
        {"call Nothing", "error: no such function: Nothing"},
        {"call ReplaceAll \"a", "error: a quote is not closed"},
        {"", "error: no such line: "},
        {"set J2000 1", "error: can't be set: J2000"},
        {"menu FileMenu", "error: no such menu item: FileMenu"},
        {"click Gregorian.Nothing", "error: no such control: Gregorian.Nothing"},
        {"click TimeAstro.JumpToPast 2", "error: no such control: TimeAstro.JumpToPast 2"},
        {"click TimeAstro.DawnDusk 10", "error: no such panel"},
        {"click TimeAstro.SunDecLabel", "error: nothing happens there"},
        {"type Gregorian.Dominical A", "error: nothing can be typed there"},
        {"asked", "none"},
    };
    Desk desk;
    for (const auto& [line, answer] : rows) EXPECT_EQ(desk.Obey(line), answer) << line;
}

void AddMenuLines(const MenuItem& menu, std::vector<std::string>& lines) {
    for (const MenuItem* item : menu.items) {
        if (item->name == "QuitSubMenu") continue;
        if (item->Click) lines.push_back("menu " + item->name);
        AddMenuLines(*item, lines);
    }
}

/// A line for everything the user can do but quit.
std::vector<std::string> LinesOf(const Horvanta& program) {
    std::vector<std::string> lines{"answer yes", "answer text 2.5", "answer color 8421504", "events",
                                   "call ChangeFixedDayEpoch 1 1 x"};
    for (const char* key : {"Space", "Space shift", "PageUp", "PageDown", "Up", "Down", "Plus", "Minus", "Home",
                            "Enter", "Left", "Backspace ctrl", "End alt"}) {
        lines.push_back(std::string("press ") + key);
    }
    for (const Form* form : program.Forms()) {
        lines.push_back("close " + form->name);
        for (const Control* control : form->controls) {
            const std::string name = form->name + "." + control->name;
            for (const char* which : {" up", " down", " 1", " 17", " 1 3"}) lines.push_back("click " + name + which);
            if (dynamic_cast<const ChoiceList*>(control)) {
                for (const char* item : {" 0", " 1", " 3", " 5"}) lines.push_back("choose " + name + item);
            }
            for (const char* act : {"click ", "dblclick ", "rightclick ", "focus "}) {
                lines.push_back(act + form->name + "." + control->name);
            }
        }
    }
    AddMenuLines(program.frame.menuBar, lines);
    return lines;
}

/// Whatever the user does, the moment stays within its range and the date shown is that of its day. HORVANTA_ACTS
/// sets how many random acts.
TEST(Desk, KeepsTheMomentInItsRangeWhateverIsDone) {
    const std::vector<std::string> typed{"", "-", "nan", "1e400", "—5", "9999999", "-9999999", "1e-300", "0x1", "٣"};
    const char* wanted = std::getenv("HORVANTA_ACTS");
    const int acts = wanted ? std::atoi(wanted) : 20'000;
    std::mt19937 random(5784);
    const auto pick = [&](const auto& list) { return list[random() % list.size()]; };
    std::uniform_real_distribution<double> day(-3e6, 5e6);

    Desk desk;
    const std::vector<std::string> lines = LinesOf(desk.program);
    for (int i = 0; i < acts; ++i) {
        std::string line = pick(lines);
        if (random() % 4 == 0) line = "type TimeAstro.FixedDayNum " + GeneralText(day(random));
        if (random() % 16 == 0) line = "type TimeAstro.FixedDayNum " + pick(typed);
        if (random() % 64 == 0) line = "call ChangeFixedDayEpoch " + GeneralText(day(random)) + " 1 x";
        desk.Obey(line);

        const GregorianDate& date = FixedToGregorianDate(DisplayedMoment);
        const bool inRange = DisplayedMoment >= MinFixedDay && DisplayedMoment <= MaxFixedDay;
        const bool convertsBack = GregorianToFixed(date.year, date.month, date.day) == Floor(DisplayedMoment);
        const bool shown = !desk.program.gregorian.form.visible ||
                           desk.program.gregorian.GregorianDate.text == GregorianDateString(date) + " ";
        const bool isNumber = ParseNumber(desk.program.timeAstro.FixedDayNum.text).has_value();
        ASSERT_TRUE(inRange && convertsBack && shown && isNumber)
            << "act " << i << ", " << line << ": " << ExactText(DisplayedMoment);
        if (desk.desktop.asked.size() > 100) desk.desktop.asked.clear();
        if (desk.desktop.answers.size() > 4) desk.desktop.answers.clear();
    }
}

}  // namespace
}  // namespace horvanta
