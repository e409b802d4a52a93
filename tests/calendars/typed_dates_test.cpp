#include "calendars/typed_dates.h"

#include "calendars/gregorian.h"
#include "calendars/julian.h"
#include "calendars/oriental_text.h"
#include "calendars/persian.h"
#include "calendars/quartane.h"
#include "calendars/roman.h"
#include "hebrew/hebrew_arithmetic.h"
#include "lunar/yerm.h"

#include <gtest/gtest.h>

namespace horvanta {
namespace {

const CalendarContract* const calendars[] = {
    &GregorianCalendar, &quartane::Calendar, &ISOCalendar,        &JulianCalendar, &RomanCalendar,
    &PersianCalendar,   &hebrew::Calendar,   &oriental::Calendar, &YermCalendar,
};
const CalendarContract* const julianFirst[] = {&JulianCalendar, &GregorianCalendar};

struct Row {
    const char* text;
    std::int32_t year, month, day;  // Gregorian, by other almanacs
    const char* told;
};

void ExpectRead(const Row& row, std::span<const CalendarContract* const> among) {
    const TypedDate read = ReadDate(row.text, among);
    EXPECT_EQ(read.moment, GregorianToFixed(row.year, row.month, row.day)) << row.text;
    EXPECT_EQ(read.told, row.told);
}

TEST(TypedDates, AreReadAndToldHow) {
    // clang-format off
    const Row rows[] = {
        {"2024-02-29", 2024, 2, 29, "Gregorian calendar, 29 February 2024"},
        {" -0043-3-13 ", -43, 3, 13, "Gregorian calendar, 13 March -43"},
        {"2024-W09-4", 2024, 2, 29, "ISO calendar, 2024-W09-4"},
        {"JD 2460000.5", 2023, 2, 25, "Julian Day 2460000.5, in Universal Time"},
        {"mjd60000", 2023, 2, 25, "Modified Julian Day 60000, in Universal Time"},
        {"March 15, 44 B.C.", -43, 3, 13, "Julian calendar, 15 March 44 BC"},
        {"14 oct 1066 AD", 1066, 10, 14, "Gregorian calendar, 14 October 1066"},
        {"2024 Sept. 5", 2024, 9, 5, "Gregorian calendar, 5 September 2024"},
        {"21 April 1 AUC", -752, 4, 13, "Julian calendar, 21 April 753 BC"},
        {"15 Nisan 5784", 2024, 4, 23, "Hebrew calendar, 15 Nisan 5784"},
        {"14 adar sheini 5784", 2024, 3, 24, "Hebrew calendar, 14 Adar Sheini 5784"},
        {"1 Khordad 1403", 2024, 5, 21, "Persian calendar, 1 Khordâd 1403"},
        {"Sunday, November 22, 2026 ", 2026, 11, 22, "Gregorian calendar, 22 November 2026"},
        {"Sun. 22\u00A0November\t2026", 2026, 11, 22, "Gregorian calendar, 22 November 2026"},
    };
    // clang-format on
    for (const Row& row : rows) ExpectRead(row, calendars);
    EXPECT_EQ(ReadDate("JD 2460000.25", calendars).moment, GregorianToFixed(2023, 2, 24) + 0.75);
}

TEST(TypedDates, AreMeantInTheFirstCalendarThatKnowsThem) {
    const Row rows[] = {
        {"14 October 1066", 1066, 10, 20, "Julian calendar, 14 October 1066 AD"},
        {"1066-10-20", 1066, 10, 20, "Gregorian calendar, 20 October 1066"},
    };
    for (const Row& row : rows) ExpectRead(row, julianFirst);
    const Row rowsSinceRome[] = {
        {"15 March 710", -43, 3, 13, "Julian calendar, 15 March 710 AUC"},
        {"15 March 44 BC", -43, 3, 13, "Julian calendar, 15 March 710 AUC"},
        {"14 October 1066 AD", 1066, 10, 20, "Julian calendar, 14 October 1819 AUC"},
    };
    julian::options.UseAUC = true;
    for (const Row& row : rowsSinceRome) ExpectRead(row, julianFirst);
    julian::options = {};
}

TEST(TypedDates, TellWhyTheyAreNone) {
    // clang-format off
    constexpr std::pair<const char*, const char*> rows[] = {
        {"", "an empty text is not a date"}, {"abc", "abc is not a date"}, {"2024", "2024 is not a date"},
        {"JD 9e9", "the range ends at year 12000"}, {"1 March 12001", "the range ends at year 12000"},
        {"1 March 1e300", "1 March 1e300 is not a date"}, {"2023-02-29", "February 2023 has 28 days"},
        {"0 March 44 BC", "March 44 BC has 31 days"}, {"2024-13-01", "a year has months 1 to 12"},
        {"2023-W53-1", "the ISO year 2023 has weeks 1 to 52"},
        {"1 Adar Rishon 5785", "no calendar has a month \"adar rishon\" in year 5785"},
        {"1 Nisan 44 BC", "the Julian calendar has no month \"nisan\" in year 44"},
        {"Monday, November 22, 2026", "Gregorian calendar, 22 November 2026, is a Sunday"},
        {"1 Farvardin 0", "the Persian calendar has no year 0"}, {"1.5 March 2024", "1.5 March 2024 is not a date"},
    };
    // clang-format on
    for (const auto& [text, why] : rows) {
        const TypedDate read = ReadDate(text, calendars);
        EXPECT_TRUE(isNever(read.moment)) << text;
        EXPECT_EQ(read.told, why);
    }
}

}  // namespace
}  // namespace horvanta
