#pragma once

#include "core/locale.h"
#include "hebrew/hebrew_arithmetic.h"

#include <cstdint>
#include <string>
#include <vector>

/// What a day is in the Hebrew calendar: festivals, fasts, new months, named Sabbaths, the count of the Omer and the
/// remembrance days of Israel. Israel and the diaspora keep different days: the place's `Diaspora` decides, and a place
/// whose short name holds "Jerusalem" keeps Shushan Purim. Every day has its first year.
namespace horvanta {

/// May 14, 1948, when the state of Israel was founded.
inline constexpr Epoch FoundingOfIsrael{711260};

/// A Hebrew date and what its day is. Texts of one field are joined with "/".
struct HebrewDay {
    HebrewDateRecord date;
    std::string BirkatHachodesh = "n/a";  ///< What a Sabbath announces: "no", or the new month and its weekdays.
    std::string MoladText{};              ///< The molad that it announces.
    std::int32_t RoshChodesh = 0;         ///< -1 on day 30; on day 1 the number of the day of the celebration, 1 or 2.
    std::string ShabbatName{};            ///< Of a named Sabbath, without the word itself.
    std::string YomTov{};                 ///< A festival on which work is forbidden.
    std::string CholHamoed{};             ///< A festival's days between.
    std::string Holiday{};                ///< Another named day.
    std::string Fast{};
    std::string OmerText{};
    std::string Notes{};
    bool Chanukah = false;

    std::vector<std::string> texts{};  ///< What is told of the day, in order.

    bool isShabbat() const { return date.WeekDay == 7; }
};

/// The day of a date of a reckoning. Nothing is told of days before `HebrewEpoch`.
HebrewDay HebrewHolidays(const HebrewDateRecord& date, const HebrewReckoning& reckoning,
                         const LocaleRecord& place = Locale);

/// The day of a moment in the traditional reckoning.
HebrewDay HebrewDayOf(Moment moment, const LocaleRecord& place = Locale);

/// The first day of Passover of a Gregorian year.
FixedDay Passover(std::int32_t gregorianYear, const HebrewReckoning& reckoning = TraditionalReckoning);

/// The next day of a Hebrew date after a moment (direction 1) or the last one before it (-1).
Moment JumpYomTov(Moment from, int direction, std::int32_t month, std::int32_t day);

/// "8th day of the Omer (1 week and 1 day)"; empty but on the 49 days from the second of Passover on.
std::string Omer(Moment moment, const HebrewReckoning& reckoning = TraditionalReckoning);

/// Israel's Memorial Day, moved away from the Sabbath; Independence Day follows it. Up to year 5708 the day before the
/// founding.
FixedDay YomHaZikaron(std::int32_t year, const HebrewReckoning& reckoning = TraditionalReckoning);

// The summer's fasts, put off from the Sabbath.
FixedDay TzomTammuz(std::int32_t year);
FixedDay TishaBAv(std::int32_t year);

/// Days with neither weekday work nor a portion of the week, by their place in the year.
struct FestivalDays {
    std::int32_t month;
    std::int32_t firstDay;
    std::int32_t lastDay;
};

/// The festivals and their days between, as they are kept in Israel or in the diaspora.
std::vector<FestivalDays> Festivals(bool diaspora);

}  // namespace horvanta
