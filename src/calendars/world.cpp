#include "calendars/world.h"

#include <algorithm>
#include <span>

namespace horvanta {
namespace {

/// A day outside the week, in a month or, with month 0, in any.
struct FreeDay {
    std::int32_t month;
    std::int32_t day;
};

constexpr FreeDay worldFreeDays[] = {{0, 32}, {6, 31}, {12, 31}};
constexpr FreeDay thirteenMonthFreeDays[] = {{0, 30}, {6, 29}, {13, 29}};

std::string CellText(std::span<const FreeDay> freeDays, std::int32_t month, std::int32_t day) {
    const bool free = std::ranges::any_of(
        freeDays, [month, day](const FreeDay& f) { return f.day == day && (f.month == 0 || f.month == month); });
    return free ? "" : std::to_string(day);
}

}  // namespace

std::string WorldCellText(const GridDate& shown, std::int32_t day) { return CellText(worldFreeDays, shown.month, day); }

std::string ThirteenMonthCellText(const GridDate& shown, std::int32_t day) {
    return CellText(thirteenMonthFreeDays, shown.month, day);
}

}  // namespace horvanta
