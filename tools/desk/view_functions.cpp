#include "app/horvanta.h"
#include "desk_rows.h"

namespace horvanta {

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
    };
}

}  // namespace horvanta
