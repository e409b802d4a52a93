#include "calendars/gregorian.h"
#include "calendars/oriental_text.h"
#include "calendars/persian.h"
#include "calendars/quartane.h"
#include "calendars/roman.h"
#include "core/moment.h"
#include "desk_rows.h"
#include "hebrew/hebrew_arithmetic.h"
#include "lunar/yerm.h"

namespace horvanta {

std::string AnswerOf(const GridDate& d) {
    return RecordAnswer("year month day monthLength firstWeekday", d.year, d.month, d.day, d.monthLength,
                        d.firstWeekday);
}

namespace {

using Words = std::span<const std::string>;

/// What a calendar answers to the month grid, for the displayed moment.
struct Operation {
    const char* name;
    std::string (*answer)(const CalendarContract& calendar, Words words);
};

std::string MonthNames(const CalendarContract& calendar, Words) {
    const GridDate date = calendar.DateOf(DisplayedMoment);
    return ListAnswer(calendar.MonthNames(date.year)) + "; selected=" + std::to_string(date.month - 1);
}

std::string DayNames(const CalendarContract& calendar, Words) {
    const NamesOfDays names = calendar.DayNames();
    return ListAnswer(names.full) + "; " + ListAnswer(names.brief);
}

constexpr Operation operations[] = {
    {"ToFixed",
     [](const CalendarContract& calendar, Words words) {
         return CallWith<std::int32_t, std::int32_t, std::int32_t>(words, calendar.ToFixed);
     }},
    {"GetDate", [](const CalendarContract& calendar,
                   Words words) { return CallWith<>(words, [&] { return calendar.DateOf(DisplayedMoment); }); }},
    {"SetMonthNames", MonthNames},
    {"SetDayNames", DayNames},
};

/// A window's calendar; the names of the operations of its second one end in "Alt".
struct WindowCalendar {
    const char* window;
    const CalendarContract& calendar;
    const char* ending = "";
};

const WindowCalendar calendars[] = {
    {"Gregorian", GregorianCalendar}, {"Gregorian", ISOCalendar, "Alt"}, {"Julian", JulianCalendar},
    {"Julian", RomanCalendar, "Alt"}, {"Persian", PersianCalendar},      {"Quartane", quartane::Calendar},
    {"Hebrew", hebrew::Calendar},     {"Lunar", YermCalendar},           {"Chinese", oriental::Calendar},
};

}  // namespace

std::vector<DeskFunction> ContractFunctions() {
    std::vector<DeskFunction> functions;
    for (const auto& [window, calendar, ending] : calendars) {
        for (const auto& [name, answer] : operations) {
            functions.push_back(
                {std::string(window) + "." + name + ending,
                 [&calendar = calendar, answer = answer](Horvanta&, Words words) { return answer(calendar, words); }});
        }
    }
    return functions;
}

}  // namespace horvanta
