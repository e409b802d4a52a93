#include "astro/timescales.h"
#include "calendars/calendar_contract.h"
#include "calendars/gregorian.h"
#include "calendars/julian.h"
#include "calendars/oriental_text.h"
#include "calendars/persian.h"
#include "calendars/quartane.h"
#include "calendars/roman.h"
#include "hebrew/hebrew_arithmetic.h"
#include "lunar/yerm.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <limits>

namespace horvanta {
namespace {

/// A calendar under a choice of its options.
struct Law {
    const char* name;
    const CalendarContract& calendar;
    void (*choose)() = [] {};
};

const Law laws[] = {
    {"Gregorian", GregorianCalendar},
    {"ISO", ISOCalendar},
    {"Julian", JulianCalendar},
    {"Revised Julian", JulianCalendar, [] { julian::options.Revise = true; }},
    {"Julian since Rome", JulianCalendar, [] { julian::options.UseAUC = true; }},
    {"Revised Julian since Rome", JulianCalendar, [] { julian::options = {.Revise = true, .UseAUC = true}; }},
    {"Roman", RomanCalendar},
    {"Roman since Rome", RomanCalendar, [] { julian::options.UseAUC = true; }},
    {"Persian", PersianCalendar},
    {"Hebrew", hebrew::Calendar},
    {"Yerm", YermCalendar},
    {"Chinese", oriental::Calendar},
    {"Japanese", oriental::Calendar, [] { oriental::options.OrientVariant = oriental::Japanese; }},
    {"Korean", oriental::Calendar, [] { oriental::options.OrientVariant = oriental::Korean; }},
    {"Vietnamese", oriental::Calendar, [] { oriental::options.OrientVariant = oriental::Vietnamese; }},
    {"Quartane", quartane::Calendar},
    {"Quartane by the ISO year", quartane::Calendar, [] { quartane::options.LeapRuleKey = "ISOalt"; }},
    {"Quartane by the Revised Julian year", quartane::Calendar, [] { quartane::options.LeapRuleKey = "RJISO"; }},
    {"Quartane by days", quartane::Calendar, [] { quartane::options.Qua454 = false; }},
    {"Quartane from Friday", quartane::Calendar,
     [] { quartane::options = {.LeapRuleKey = "41/231", .StartWeekday = 5, .QuarterStructure = "SSL"}; }},
    {"Quartane by a line", quartane::Calendar,
     [] { quartane::options = {.LeapRuleKey = "LANEY", .QuarterStructure = "LSS", .UseZov454 = true}; }},
};

bool isSame(const GridDate& a, const GridDate& b) {
    return a.year == b.year && a.month == b.month && a.day == b.day && a.monthLength == b.monthLength &&
           a.firstWeekday == b.firstWeekday;
}

/// Whether a day of the month that `first` begins is the next one of it, and its date leads back to it.
bool isDayOf(const CalendarContract& calendar, const GridDate& first, FixedDay begin, int day) {
    GridDate expected = first;
    expected.day = static_cast<std::int16_t>(day);
    const FixedDay fixed = begin + day - 1;
    return isSame(calendar.DateOf(fixed + 0.75), expected) && calendar.ToFixed(first.year, first.month, day) == fixed;
}

/// Walks the months from the first day that can be displayed to the last: they follow one another by one step, and so
/// do their days, which convert there and back; the column of a month's first day moves with the weekdays.
void ExpectMonthsToFollow(const CalendarContract& calendar) {
    const bool everyDay = std::getenv("HORVANTA_EVERY_DAY") != nullptr;
    FixedDay begin = MinFixedDay + 40;
    begin -= calendar.DateOf(begin).day - 1;
    GridDate first = calendar.DateOf(begin);
    const double column = Modulo(first.firstWeekday - DayOfWeek(begin), 7);
    for (int faults = 0; begin < MaxFixedDay - 40 && faults < 5;) {
        const int within = 2 + static_cast<int>(Modulo(begin, 25));
        bool sound = first.day == 1 && Modulo(first.firstWeekday - DayOfWeek(begin), 7) == column;
        for (int day = 1; day <= first.monthLength; ++day) {
            const bool looked = everyDay || day == 1 || day == within || day == first.monthLength;
            sound = sound && (!looked || isDayOf(calendar, first, begin, day));
        }
        const auto months = static_cast<std::int32_t>(calendar.MonthNames(first.year).size());
        begin += first.monthLength;
        const GridDate next = calendar.DateOf(begin);
        const bool ends = first.month == months;
        const bool skipsYear0 = first.year == -1 && calendar.HasYear0 && !calendar.HasYear0();
        sound = sound && next.day == 1 && next.month == (ends ? 1 : first.month + 1) &&
                next.year == first.year + (ends ? 1 + skipsYear0 : 0);
        if (!sound) {
            ++faults;
            ADD_FAILURE() << "month " << first.month << " of " << first.year << ", before day " << begin;
        }
        first = next;
    }
}

/// No date depends on how days are numbered, nor on what was remembered under another numbering or without Delta T.
TEST(Calendars, KeepTheirDatesUnderEveryNumbering) {
    for (const auto& [name, calendar, choose] : laws) {
        choose();
        const auto dates = [&calendar] {
            std::string text;
            for (const double day : {-2'500'000.5, -1.0, 0.5, 735329.5, 2'000'000.0}) {
                const GridDate date = calendar.DateOf(GregorianEpoch + day);
                text += std::to_string(date.year) + ' ' + std::to_string(date.month) + ' ' + std::to_string(date.day) +
                        ' ' + std::to_string(date.firstWeekday) + ", ";
            }
            return text;
        };
        SetDeltaTDisabled(true);
        dates();
        SetDeltaTDisabled(false);
        const std::string before = dates();
        for (const double dayOne : {700000.0, -1721424.0, 1.0}) {
            SetFixedDayEpoch(GregorianEpoch + dayOne, dayOne, "moved");
            EXPECT_EQ(dates(), before) << name << dayOne;
        }
        SetFixedDayEpoch(GregorianEpoch, 1, "rata die");
    }
}

/// What no day and no year is, in any calendar.
TEST(Calendars, SurviveWhatNoOneAsksFor) {
    for (const auto& [name, calendar, choose] : laws) {
        choose();
        for (const double x : {NeverMoment, -NeverMoment, 1e15, std::nan("")}) calendar.DateOf(x);
        for (const std::int32_t n :
             {std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()}) {
            calendar.ToFixed(n, n, n);
            EXPECT_GE(calendar.MonthNames(n).size(), 12U) << name;
        }
    }
}

TEST(Calendars, MonthsAndDaysFollowOneAnotherOverTheWholeRange) {
    for (const auto& [name, calendar, choose] : laws) {
        julian::options = {};
        quartane::options = {};
        choose();
        SetFixedDayEpoch(Epoch2001, 1, "as the program starts");
        SCOPED_TRACE(name);
        ExpectMonthsToFollow(calendar);
    }
}

}  // namespace
}  // namespace horvanta
