#pragma once

#include <string>
#include <vector>

namespace horvanta {

/// How much of a holiday a day is. Days of no kind are only told of.
enum class DayKind { None, Church, Public, Civic, Other };

/// What a day is, and of which kind that makes it.
struct DayText {
    std::string text;
    DayKind kind = DayKind::None;
};

/// Of all that a day is, the last that has a kind, which is that of the day; nothing where none has.
inline DayText HolidayOf(const std::vector<DayText>& day) {
    DayText holiday;
    for (const DayText& each : day) {
        if (each.kind != DayKind::None) holiday = each;
    }
    return holiday;
}
inline DayKind KindOf(const std::vector<DayText>& day) { return HolidayOf(day).kind; }

/// The texts alone.
inline std::vector<std::string> TextsOf(const std::vector<DayText>& day) {
    std::vector<std::string> texts;
    texts.reserve(day.size());
    for (const DayText& each : day) texts.push_back(each.text);
    return texts;
}

}  // namespace horvanta
