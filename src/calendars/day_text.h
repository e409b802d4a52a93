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

/// The kind of a day that is all this: that of the last of them that has one.
inline DayKind KindOf(const std::vector<DayText>& day) {
    DayKind kind = DayKind::None;
    for (const DayText& each : day) {
        if (each.kind != DayKind::None) kind = each.kind;
    }
    return kind;
}

/// The texts alone.
inline std::vector<std::string> TextsOf(const std::vector<DayText>& day) {
    std::vector<std::string> texts;
    texts.reserve(day.size());
    for (const DayText& each : day) texts.push_back(each.text);
    return texts;
}

}  // namespace horvanta
