#include "app/horvanta.h"
#include "app/lunar_searches.h"
#include "desk_rows.h"
#include "views/lunar_events.h"
#include "views/moon_look.h"

namespace horvanta {

std::string AnswerOf(const MoonPicture::Look& look) {
    return RecordAnswer("lit turn size up", look.lit, look.turn, look.size, look.up);
}

namespace {

/// A command of the time window.
template <class... Arguments>
DeskFunction TimeRow(std::string_view name, void (TimeAstro::*command)(Arguments...)) {
    return {std::string(name), [command](Horvanta& program, std::span<const std::string> words) {
                return CallWith<Arguments...>(words, [&](Arguments... a) { (program.timeAstro.*command)(a...); });
            }};
}

/// Whether a slot of the user's places was never filled.
DeskFunction ClearRow() {
    return {"isClear", [](Horvanta&, std::span<const std::string> words) {
                return CallWith<std::size_t>(words, [](std::size_t slot) {
                    if (slot < 1 || slot >= UserLocales.size()) throw BadLine("no such slot");
                    return UserLocalesWindow::isClear(slot);
                });
            }};
}

}  // namespace

std::vector<DeskFunction> ViewFunctions() {
    return {
        TimeRow("JumpDate", &TimeAstro::JumpDate),
        TimeRow("DayUpDown", &TimeAstro::DayUpDown),
        TimeRow("StepMenu_Click", &TimeAstro::StepMenu_Click),
        ClearRow(),
        Row("LocalTimes", LocalTimes),
        Row("PhaseName", PhaseName),
        Row("PhaseText", PhaseText),
        Row("QuarterText", QuarterText),
        PlaceRow("MoonInWords", MoonInWords),
        PlaceRow("LookOfMoon", LookOfMoon),
        PlaceRow(
            "LunarEventsOn",
            +[](Moment universal, const LocaleRecord& place) {
                std::vector<std::string> lines;
                for (const auto& [time, text] : LunarEventsOn(universal, place)) lines.push_back(time + " " + text);
                return lines;
            }),
        Row("JumpLunarEvent", JumpLunarEvent),
        Row("JumpNewMoon", JumpNewMoon),
        Row("JumpQuarter", JumpQuarter),
    };
}

}  // namespace horvanta
