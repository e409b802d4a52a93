#include "calendars/calendar_text.h"

#include "core/numerics.h"
#include "core/text.h"

namespace horvanta {

std::string PartAndRest(int part, int whole) {
    return std::to_string(part) + "+" + std::to_string(whole - part) + "=" + std::to_string(whole);
}

std::string YearOfCycle(std::int32_t year, std::int32_t length, std::string_view kind) {
    const std::int64_t past = FloorModulo(std::int64_t{year} - 1, length);
    const auto cycle = static_cast<std::int32_t>(FloorDivide(std::int64_t{year} - 1, length) + 1);
    const bool beforeChrist = cycle < 1;
    return OrdinalString(static_cast<std::int32_t>(past + 1)) + " year of " +
           OrdinalString(beforeChrist ? 1 - cycle : cycle) + " " + std::string(kind) + (beforeChrist ? " BC" : " AD");
}

std::string DateInWords(std::string_view weekday, std::string_view month, int day, std::string_view year) {
    return std::string(weekday) + ", " + std::string(month) + " " + std::to_string(day) + ", " + std::string(year);
}

}  // namespace horvanta
