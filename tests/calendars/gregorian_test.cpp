#include "calendars/gregorian.h"

#include "core/numbering.h"

#include <gtest/gtest.h>

#include <chrono>

namespace horvanta {
namespace {

/// Published sample dates (Reingold and Dershowitz, Calendrical Calculations, appendix C).
TEST(Gregorian, AgreesWithPublishedDates) {
    constexpr std::tuple<FixedDay, const char*, const char*> rows[] = {
        {-214193, "Sunday, July 24, -586", "-586-W29-7"},
        {25469, "Wednesday, September 24, 70", "70-W39-3"},
        {764652, "Sunday, July 18, 2094", "2094-W28-7"},
    };
    for (const auto& [fixed, gregorian, iso] : rows) {
        EXPECT_EQ(FixedToGregorianString(fixed + 0.75), gregorian);
        EXPECT_EQ(ISODateString(FixedToISODate(fixed)), iso);
    }
}

/// Every day that can be displayed, against the C++ library; and its ISO
/// week.
TEST(Gregorian, AgreesWithTheLibraryOnEveryDay) {
    ISODate isoBefore = FixedToISODate(MinFixedDay - 1);
    int faults = 0;
    for (FixedDay fixed = MinFixedDay; fixed <= MaxFixedDay && faults < 10; ++fixed) {
        const GregorianDate date = FixedToGregorianDate(fixed);
        const std::chrono::year_month_day library{std::chrono::sys_days{} +
                                                  std::chrono::days{static_cast<int>(fixed - UnixEpoch)}};
        const bool agrees = int{library.year()} == date.year &&
                            static_cast<int>(unsigned{library.month()}) == date.month &&
                            static_cast<int>(unsigned{library.day()}) == date.day && date.weekday == DayOfWeek(fixed) &&
                            date.yearDay == fixed - GregorianYearEnd(date.year - 1);
        const ISODate iso = FixedToISODate(fixed);
        const bool isoYearEnds = isoBefore.ordinalDay == ISOYearLength(isoBefore.isLeap);
        const bool isoFollows =
            iso.ordinalDay == (isoYearEnds ? 1 : isoBefore.ordinalDay + 1) && iso.weekday == isoBefore.weekday % 7 + 1;
        if (!agrees || !isoFollows || ISOToFixed(iso.year, iso.week, iso.weekday) != fixed) {
            ++faults;
            ADD_FAILURE() << fixed << ": " << GregorianDateString(date) << ", " << ISODateString(iso);
        }
        isoBefore = iso;
    }
}

TEST(Gregorian, KnowsItsYears) {
    for (const int leap : {-400, -4, 0, 4, 2000, 2024}) EXPECT_TRUE(isGregorianLeapYear(leap)) << leap;
    for (const int common : {-100, -1, 1, 1900, 2023}) EXPECT_FALSE(isGregorianLeapYear(common)) << common;
    EXPECT_EQ(GregorianYearEnd(0), GregorianEpoch - 1);
    EXPECT_EQ(GregorianYearEnd(2023) + 1, GregorianToFixed(2024, 1, 1));
    EXPECT_EQ(FixedToGregorianYear(GregorianToFixed(2024, 1, 1) - 1e-10), 2024);  // the residue of day arithmetic

    constexpr std::pair<int, const char*> letters[] = {{2000, "BA"}, {2023, "A"}, {2024, "GF"}, {1999, "C"}, {0, "BA"}};
    for (const auto& [year, text] : letters) EXPECT_EQ(GregorianDominicalLetters(year), text) << year;
}

}  // namespace
}  // namespace horvanta
