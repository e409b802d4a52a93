#pragma once

#include "core/controls.h"
#include "core/shell.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// Texts that several calendars share.
namespace horvanta {

/// The letter of the Sundays of a year, where A is January 1, and in a leap year behind it the letter of its Sundays
/// from March on. The weekday is that of the last day of the year before, 0 = Sunday.
inline std::string DominicalLetters(std::int32_t weekdayBefore, bool leap) {
    constexpr std::string_view fromJanuary = "ABCDEFG";
    constexpr std::string_view fromMarch = "GABCDEF";
    const auto i = static_cast<std::size_t>(6 - weekdayBefore);
    std::string letters{fromJanuary[i]};
    if (leap) letters += fromMarch[i];
    return letters;
}

/// Makes a click on a label copy what it shows.
inline void CopyOnClick(HorvantaMDI& frame, Label& label) {
    label.Click = [&frame, &label] { frame.SetClipboardText(label.text); };
}

}  // namespace horvanta
