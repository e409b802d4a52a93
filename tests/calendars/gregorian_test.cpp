#include "calendars/gregorian.h"

#include "core/numbering.h"

#include <gtest/gtest.h>

#include <chrono>

namespace horvanta {
namespace {

/// Every day that can be displayed, against the C++ library; and its ISO
/// week.
TEST(Gregorian, AgreesWithTheLibraryOnEveryDay) {
    EXPECT_EQ(ISODateString(FixedToISODate(GregorianToFixed(1929, 8, 25))), "1929-W34-7");
    EXPECT_EQ(FixedToGregorianYear(GregorianToFixed(2024, 1, 1) - 1e-10), 2024);  // the residue of day arithmetic
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

}  // namespace
}  // namespace horvanta
