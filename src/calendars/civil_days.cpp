#include "calendars/civil_days.h"

#include "astro/timescales.h"
#include "calendars/day_rules.h"
#include "calendars/easter.h"
#include "core/memo.h"
#include "core/text.h"

#include <algorithm>
#include <string>

namespace horvanta {
namespace {

using namespace day_rules;

constexpr std::int32_t firstChristianYear = 326;
constexpr std::int32_t firstJanuaryOfUSA = 1777;
constexpr Years Christian = From(firstChristianYear);

/// A blank and how many years it is since one.
template <std::int32_t first>
std::string YearsSince(const Date& date) {
    return OrdinalDiff(first, date.year);
}

// clang-format off
constexpr Rule civilRules[] = {
    {1, Day(1), AllYears, "New Year Day", DayKind::Public},
    {1, On(Monday, 2, 3), AllYears, "Holiday for New Year Day", DayKind::Public},
    {1, Day(6), FromTo(firstChristianYear, firstJanuaryOfUSA - 1), "Epiphany"},
    {1, Day(6), From(firstJanuaryOfUSA), "Epiphany (outside USA)"},
    {1, On(Sunday, 15, 21), From(1950), "World Religion Day"},
    {1, On(Sunday, 2, 8), From(firstJanuaryOfUSA), "USA Epiphany"},
    {1, On(Monday, 15, 21), From(1969), "USA Martin Luther King Jr Day"},
    {1, Day(20), Every(4, 1933), "USA Inauguration Day"},
    {2, Day(2), AllYears, "Groundhog Day"},
    {2, Day(2), AllYears, "Candlemas"},
    {2, Day(14), AllYears, "Valentine Day"},
    {2, Day(15), From(1965), "Canada Flag Day"},
    {2, On(Sunday, 1, 7), From(1911), "USA Scout Sunday"},
    {2, On(Monday, 15, 21), From(1971), "USA Presidents Day"},
    {3, Day(4), Every(4, 1789, 1932), "USA Inauguration Day"},
    {3, Day(6), From(1836), "USA Alamo Day"},
    {3, On(Monday, 8, 14), From(1977), "Commonwealth Day"},
    {3, Day(17), From(1737), "St. Patrick's Day"},
    {3, Day(30), From(1933), "USA National Doctors Day"},
    {4, Day(1), From(1582), "April Fools Day"},
    {4, Day(8), AllYears, "Flower Festival (Japan)"},
    {4, Day(14), From(1931), "Pan-American Day"},
    {4, Day(15, MondayToFriday), From(1954), "USA Tax Day"},
    {4, On(Monday, 16, 17), From(1954), "USA Tax Day"},
    {4, On(Monday, 15, 21), From(1969), "USA Marathon Monday"},
    {4, Day(19), FromTo(1894, 1968), "USA Patriots Day"},
    {4, Day(22), From(1970), "Earth Day"},
    {4, LastOfMonth(Friday), From(1872), "USA Arbor Day"},
    {4, Day(30, MondayToFriday), From(1917), "Canada Tax Day"},
    {5, Day(1), AllYears, "May Day"},
    {5, On(Monday, 1, 2), From(1917), "Canada Tax Day"},
    {5, Day(5), From(1862), "Cinco de Mayo"},
    {5, Day(22), From(1933), "USA National Maritime Day"},
    {5, Day(30), FromTo(1866, 1970), "USA Memorial Day"},
    {5, On(Sunday, 8, 14), From(1908), "Mothers Day"},
    {5, On(Sunday, 8, 14), From(1921), "Joan of Arc Day"},
    {5, On(Monday, 18, 24), From(1952), "Victoria Day (Canada)"},
    {5, LastOfMonth(Monday), From(1971), "USA Memorial Day"},
    {5, On(Saturday, 15, 21), From(1947), "USA Armed Forces Day"},
    {6, On(Sunday, 8, 14), From(1957), "Race Unity Day (Bahá'í sponsored)"},
    {6, On(Sunday, 15, 21), From(1910), "Fathers Day"},
    {6, Day(14), From(1877), "USA Flag Day"},
    {6, Day(24), From(1925), "St. Jean-Baptiste Day (Québec)"},
    {6, Day(27), From(2003), "Multiculturalism Day (Canada)"},
    {7, Day(1), FromTo(1867, 1982), "Dominion Day (Canada)", DayKind::None, YearsSince<1867>},
    {7, Day(1), From(1983), "Canada Day", DayKind::None, YearsSince<1867>},
    {7, On(Monday, 2, 3), FromTo(1867, 1982), "Holiday for Dominion Day (Canada)", DayKind::None, YearsSince<1867>},
    {7, On(Monday, 2, 3), From(1983), "Holiday for Canada Day", DayKind::None, YearsSince<1867>},
    {7, Day(4), From(1776), "USA Independence Day", DayKind::None, YearsSince<1776>},
    {7, Day(5, Monday), From(1776), "Holiday for USA Independence Day", DayKind::None, YearsSince<1776>},
    {7, Day(14), From(1789), "Bastille Day (France)"},
    {7, Day(24), From(1847), "Pioneer Day (Mormon)"},
    {8, On(Monday, 1, 7), AllYears, "Civic Holiday", DayKind::Civic},
    {8, Day(6), From(1945), "Hiroshima Day"},
    {8, Day(15), Christian, "Assumption"},
    {8, Day(19), From(1939), "USA National Aviation Day"},
    {9, On(Monday, 1, 7), From(1867), "Labour Day (Canada)"},
    {9, On(Monday, 1, 7), From(1776), "USA Labor Day"},
    {9, On(Sunday, 7, 13), From(1978), "USA Grandparents Day"},
    {9, Day(11), From(2002), "USA Patriot Day"},
    {9, Day(17), FromTo(1787, 1951), "USA Constitution Day"},
    {9, Day(17), From(1952), "USA Citizenship Day"},
    {10, Day(12), From(1918), "Día de la Raza"},
    {10, On(Monday, 8, 14), From(1957), "Thanksgiving Day (Canada)"},
    {10, On(Monday, 8, 14), From(1971), "USA Columbus Day"},
    {10, On(Monday, 22, 28), FromTo(1968, 1977), "USA Veterans Day"},
    {10, On(Saturday, 15, 21), From(1922), "USA Sweetest Day"},
    {10, Day(24), From(1947), "United Nations Day"},
    {10, Day(31), From(1900), "Halloween"},
    {11, On(Tuesday, 2, 8), From(1845), "USA Election Day"},
    {11, On(Thursday, 22, 28), From(1942), "USA Thanksgiving Day"},
    {11, On(Friday, 23, 29), From(1966), "USA Black Friday"},
    {11, On(Sunday, 8, 14), From(1919), "UK Remembrance Day"},
    {11, Day(1), From(836), "All Saints Day"},
    {11, Day(2), From(836), "All Souls Day"},
    {11, Day(5), From(1606), "UK Guy Fawkes Day (Bonfire Night)"},
    {11, Day(11), From(1919), "Remembrance Day (Canada)"},
    {11, Day(11), FromTo(1919, 1953), "USA Armistice Day"},
    {11, Day(11), FromTo(1954, 1967), "USA Veterans Day"},
    {11, Day(11), From(1978), "USA Veterans Day"},
    {11, On(Sunday, -3, 3), From(1518), "Reformation Sunday (Protestant)"},
    {12, On(Sunday, -3, 3), Christian, "Advent Sunday"},
    {12, Day(7), From(1941), "USA Pearl Harbor Day"},
    {12, Day(15), From(1941), "USA Bill of Rights Day"},
    {12, Day(25), Christian, "Christmas", DayKind::Church},
    {12, Day(26), AllYears, "Boxing Day", DayKind::Public},
    {12, On(Monday, 27, 28), AllYears, "Holiday for Boxing Day", DayKind::Public},
    {12, On(Tuesday, 27, 28), Christian, "Holiday for Christmas", DayKind::Public},
    {12, Day(31), AllYears, "New Year Eve"},
};

/// A common date of a calendar whose February has five weeks.
constexpr Rule gregorianRules[] = {
    {2, Day(29), AllYears, "Leap Day"},
};

template <int daysBefore>
std::string DayOfLent(const Date& date) { return " (day " + std::to_string(date.day + daysBefore) + " of 40)"; }

constexpr Rule orthodoxRules[] = {
    {1, Day(6), AllYears, "Theophany"},
    {2, Day(2), AllYears, "Candlemas"},
    {2, Day(29), AllYears, "Leap Day"},
    {3, Day(25), AllYears, "Annunciation of Mary"},
    {8, On(AnyWeekday, 1, 14), AllYears, "Fast of the Repose of Mary"},
    {8, Day(6), AllYears, "Transfiguration"},
    {8, Day(15), AllYears, "Repose of Mary"},
    {9, Day(8), AllYears, "Nativity of Mary"},
    {9, Day(14), AllYears, "Elevation of the Cross"},
    {11, On(AnyWeekday, 15, 30), AllYears, "Winter Lent", DayKind::None, DayOfLent<-14>},
    {11, Day(21), AllYears, "Presentation of Mary in the Temple"},
    {12, On(AnyWeekday, 1, 24), AllYears, "Winter Lent", DayKind::None, DayOfLent<16>},
    {12, Day(25), AllYears, "Eastern Orthodox Christmas"},
};
// clang-format on
static_assert(std::ranges::is_sorted(civilRules, {}, &Rule::month));
static_assert(std::ranges::is_sorted(orthodoxRules, {}, &Rule::month));

void AddMovable(FixedDay fixed, FixedDay easter, std::string_view prefix, std::vector<DayText>& day) {
    DayText movable = WesternMovableDay(fixed, easter, prefix);
    if (!movable.text.empty()) day.push_back(std::move(movable));
}

/// By the option, as all who show it.
void AddWestern(FixedDay fixed, std::int32_t year, std::vector<DayText>& day) {
    if (year < firstChristianYear) return;
    AddMovable(fixed, EasterSunday(year, false), easter::options.UniformEaster ? "Uniform " : "", day);
}

}  // namespace

std::vector<DayText> CivilDays(const GregorianDate& date) {
    std::vector<DayText> day;
    AddWestern(date.fixed, date.year, day);
    const Date asked{date.year, date.month, date.day, GregorianMonthLength(date.year, date.month), date.weekday};
    Apply(civilRules, asked, day);
    Apply(gregorianRules, asked, day);
    return day;
}

namespace {

std::vector<DayText> FindCivilDays(FixedDay day) { return CivilDays(DateOn<FixedToGregorianDate>(day)); }

}  // namespace

std::vector<DayText> CivilDaysOf(Moment x) { return DateOn<FindCivilDays>(x, DeltaTSerial, easter::options); }

std::vector<std::string> OrthodoxDays(const JulianDate& date) {
    if (date.year < firstChristianYear) return {};
    std::vector<DayText> day;
    const FixedDay easter = OrthodoxEaster(date.year);
    constexpr int dayAfterAllSaintsWeek = 57;
    const bool isBeforePeterAndPaul = date.month < 6 || (date.month == 6 && date.day < 29);
    if (date.fixed - easter >= dayAfterAllSaintsWeek && isBeforePeterAndPaul) {
        day.push_back({"Fast of the Apostles"});
    }
    const bool isAdvent = date.fixed == KDayNearest(0, JulianToFixed(date.year, 11, 30, true));
    std::string movable = isAdvent ? "Advent Sunday" : MovableChristianHoliday(date.fixed, easter, true, false);
    if (!movable.empty()) day.push_back({std::move(movable)});
    const int monthLength = JulianMonthLength(date.year, date.month, true);
    Apply(orthodoxRules, {date.year, date.month, date.day, monthLength, DayOfWeek(date.fixed)}, day);
    return TextsOf(day);
}

namespace quartane {
namespace {

bool FollowsGregorianYear() { return options.LeapRuleKey == "ISO" || options.LeapRuleKey == "71/400"; }

}  // namespace

std::vector<DayText> CivilDays(const QuaDate& date) {
    std::vector<DayText> day;
    if (FollowsGregorianYear()) {
        AddWestern(date.fixed, date.year, day);
    } else if (date.year >= firstChristianYear) {
        AddMovable(date.fixed, EasterSunday(date.year, true), "Uniform ", day);
        AddMovable(date.fixed, FixedEaster(date.year), "Fixed ", day);
    }
    Apply(civilRules, {date.year, date.month, date.day, date.monthLength, date.weekday}, day);
    return day;
}

namespace {

std::vector<DayText> FindCivilDays(FixedDay day) { return CivilDays(QuaDateOn(day)); }

}  // namespace

std::vector<DayText> CivilDaysOf(Moment x) { return DateOn<FindCivilDays>(x, DeltaTSerial, options, easter::options); }

}  // namespace quartane

}  // namespace horvanta
