#include "desk_functions.h"

#include "app/horvanta.h"
#include "astro/sun.h"
#include "astro/sun_events.h"
#include "astro/timescales.h"
#include "calendars/gregorian.h"
#include "calendars/gregorian_window.h"
#include "calendars/julian.h"
#include "calendars/julian_window.h"
#include "calendars/persian.h"
#include "calendars/persian_window.h"
#include "calendars/quartane.h"
#include "calendars/quartane_leap_text.h"
#include "calendars/roman.h"
#include "core/moment.h"
#include "core/text.h"
#include "hebrew/hebrew_arithmetic.h"
#include "hebrew/hebrew_modes.h"
#include "hebrew/molad.h"
#include "locale/locale_text.h"
#include "locale/presets.h"
#include "locale/zone_time.h"
#include "recording_desktop.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace horvanta {
namespace {

// From words to arguments.

template <class T>
struct Read;

template <>
struct Read<double> {
    static double From(const std::string& word) {
        if (word == "never") return NeverMoment;
        const auto number = ParseNumber(word);
        if (!number) throw BadLine("not a number: " + word);
        return *number;
    }
};

template <std::integral Integer>
struct Read<Integer> {
    static Integer From(const std::string& word) {
        const double number = Read<double>::From(word);
        const auto whole = WholeNumber<Integer>(number);
        if (static_cast<double>(whole) != number) throw BadLine("not a whole number that fits: " + word);
        return whole;
    }
};

template <>
struct Read<bool> {
    static bool From(const std::string& word) {
        if (word != "true" && word != "false") throw BadLine("neither true nor false: " + word);
        return word == "true";
    }
};

template <>
struct Read<std::string> {
    static std::string From(const std::string& word) { return word; }
};

template <>
struct Read<std::string_view> : Read<std::string> {};

template <class T>
struct Read<std::optional<T>> {
    static std::optional<T> From(const std::string& word) {
        return word == "none" ? std::nullopt : std::optional(Read<T>::From(word));
    }
};

/// A preset by its short name, or the current place.
template <>
struct Read<LocaleRecord> {
    static LocaleRecord From(const std::string& word) {
        if (word == "Locale") return Locale;
        const LocaleRecord* place = FindLocale(word);
        if (!place) throw BadLine("no such place: " + word);
        return *place;
    }
};

// From results to answers.

std::string AnswerOf(double x) { return NumberAnswer(x); }
std::string AnswerOf(std::integral auto x) { return std::to_string(x); }
std::string AnswerOf(bool x) { return x ? "true" : "false"; }
std::string AnswerOf(std::string_view text) { return Quoted(text); }

template <class T>
std::string AnswerOf(const std::optional<T>& x) {
    return x ? AnswerOf(*x) : "none";
}

/// A record as name=value fields in their order.
class Fields {
  public:
    Fields& Add(std::string_view name, const auto& value) {
        text_ += (text_.empty() ? "" : " ") + std::string(name) + "=" + AnswerOf(value);
        return *this;
    }
    const std::string& Text() const { return text_; }

  private:
    std::string text_;
};

std::string AnswerOf(const GregorianDate& d) {
    return Fields()
        .Add("fixed", d.fixed)
        .Add("yearDay", d.yearDay)
        .Add("year", d.year)
        .Add("month", d.month)
        .Add("day", d.day)
        .Add("weekday", d.weekday)
        .Add("weekdayName", d.weekdayName)
        .Text();
}

std::string AnswerOf(const ISODate& d) {
    return Fields()
        .Add("fixed", d.fixed)
        .Add("year", d.year)
        .Add("week", d.week)
        .Add("weekday", d.weekday)
        .Add("ordinalDay", d.ordinalDay)
        .Add("isLeap", d.isLeap)
        .Text();
}

std::string AnswerOf(const PersianDate& d) {
    return Fields()
        .Add("fixed", d.fixed)
        .Add("newYear", d.newYear)
        .Add("nextNewYear", d.nextNewYear)
        .Add("isLeap", d.isLeap)
        .Add("yearDay", d.yearDay)
        .Add("weekOfYear", d.weekOfYear)
        .Add("year", d.year)
        .Add("month", d.month)
        .Add("day", d.day)
        .Add("daysBeforeMonth", d.daysBeforeMonth)
        .Add("monthLength", d.monthLength)
        .Add("weekday", d.weekday)
        .Text();
}

std::string AnswerOf(const JulianDate& d) {
    return Fields().Add("fixed", d.fixed).Add("year", d.year).Add("month", d.month).Add("day", d.day).Text();
}

std::string AnswerOf(const RomanDate& d) {
    return Fields()
        .Add("fixed", d.fixed)
        .Add("year", d.year)
        .Add("month", d.month)
        .Add("event", d.event)
        .Add("count", d.count)
        .Add("leap", d.leap)
        .Text();
}

std::string AnswerOf(const Olympiad& o) { return Fields().Add("cycle", o.cycle).Add("year", o.year).Text(); }

std::string AnswerOf(const quartane::QuaYear& y) {
    return Fields().Add("year", y.year).Add("newYear", y.newYear).Text();
}

std::string AnswerOf(const quartane::QuaDate& d) {
    return Fields()
        .Add("fixed", d.fixed)
        .Add("yearDay", d.yearDay)
        .Add("isLeap", d.isLeap)
        .Add("quarter", d.quarter)
        .Add("dayOfQuarter", d.dayOfQuarter)
        .Add("weekOfQuarter", d.weekOfQuarter)
        .Add("monthInQuarter", d.monthInQuarter)
        .Add("weekOfMonth", d.weekOfMonth)
        .Add("monthLength", d.monthLength)
        .Add("year", d.year)
        .Add("month", d.month)
        .Add("day", d.day)
        .Add("weekday", d.weekday)
        .Add("weekdayName", d.weekdayName)
        .Add("weekOfYear", d.weekOfYear)
        .Text();
}

std::string AnswerOf(const quartane::LeapRule& r) {
    return Fields()
        .Add("IsCycleRule", r.IsCycleRule)
        .Add("LeapNumerator", r.LeapNumerator)
        .Add("CycleLength", r.CycleLength)
        .Add("CycleOffset", r.CycleOffset)
        .Add("CycleDays", r.CycleDays)
        .Add("DayExcess", r.DayExcess)
        .Add("ReducedNumerator", r.ReducedNumerator)
        .Add("ReducedDenominator", r.ReducedDenominator)
        .Add("ReducedRatio", r.ReducedRatio)
        .Add("MeanYear", r.MeanYear)
        .Add("MeanLunation", r.MeanLunation)
        .Add("ModularInverse", r.ModularInverse)
        .Text();
}

std::string AnswerOf(const HebrewDateRecord& d) {
    return Fields()
        .Add("Fixed", d.Fixed)
        .Add("Year", d.Year)
        .Add("Month", d.Month)
        .Add("Day", d.Day)
        .Add("YearDay", d.YearDay)
        .Add("WeekDay", d.WeekDay)
        .Add("WeekDayName", d.WeekDayName)
        .Text();
}

std::string AnswerOf(const GridDate& d) {
    return Fields()
        .Add("year", d.year)
        .Add("month", d.month)
        .Add("day", d.day)
        .Add("monthLength", d.monthLength)
        .Add("firstWeekday", d.firstWeekday)
        .Text();
}

std::string AnswerOf(const LocaleRecord& r) {
    return Fields()
        .Add("Name", r.Name)
        .Add("Location", r.Location)
        .Add("Latitude", r.Latitude)
        .Add("KmPerDegLat", r.KmPerDegLat)
        .Add("LatRad", r.LatRad)
        .Add("Longitude", r.Longitude)
        .Add("KmPerDegLong", r.KmPerDegLong)
        .Add("LongRad", r.LongRad)
        .Add("North", r.North)
        .Add("South", r.South)
        .Add("East", r.East)
        .Add("West", r.West)
        .Add("Elevation", r.Elevation)
        .Add("Zone", r.Zone)
        .Add("Diaspora", r.Diaspora)
        .Add("NoDST", r.NoDST)
        .Add("UseLMT", r.UseLMT)
        .Text();
}

struct Bezout {
    std::int32_t divisor;
    std::int32_t x;
    std::int32_t y;
};

std::string AnswerOf(const Bezout& b) { return Fields().Add("divisor", b.divisor).Add("x", b.x).Add("y", b.y).Text(); }

std::string ListAnswer(const auto& items) {
    std::string text;
    for (const std::string& item : items) text += (text.empty() ? "" : "; ") + Quoted(item);
    return text;
}

std::string AnswerOf(const std::vector<std::string>& list) { return ListAnswer(list); }

std::string AnswerOf(const ChoiceList& list) {
    return ListAnswer(list.items) + "; selected=" + std::to_string(list.selected);
}

// Rows.

/// Calls a function with the words read as its arguments.
template <class... Arguments, class Function>
std::string CallWith(std::span<const std::string> words, const Function& function) {
    if (words.size() != sizeof...(Arguments)) {
        throw BadLine("takes " + std::to_string(sizeof...(Arguments)) + " arguments");
    }
    const auto call = [&]<std::size_t... i>(std::index_sequence<i...>) {
        return function(Read<std::remove_cvref_t<Arguments>>::From(words[i])...);
    };
    constexpr auto indices = std::index_sequence_for<Arguments...>();
    if constexpr (std::is_void_v<decltype(call(indices))>) {
        call(indices);
        return "ok";
    } else {
        return AnswerOf(call(indices));
    }
}

template <class Result, class... Arguments>
DeskFunction Row(std::string_view name, Result (*function)(Arguments...)) {
    return {name, [function](Horvanta&, std::span<const std::string> words) {
                return CallWith<Arguments...>(words, function);
            }};
}

DeskFunction ListRow(std::string_view name, double (*function)(std::span<const double>)) {
    return {name, [function](Horvanta&, std::span<const std::string> words) {
                std::vector<double> list;
                std::transform(words.begin(), words.end(), std::back_inserter(list), Read<double>::From);
                return AnswerOf(function(list));
            }};
}

/// A command of the time window.
template <class... Arguments>
DeskFunction TimeRow(std::string_view name, void (TimeAstro::*command)(Arguments...)) {
    return {name, [command](Horvanta& program, std::span<const std::string> words) {
                return CallWith<Arguments...>(words, [&](Arguments... a) { (program.timeAstro.*command)(a...); });
            }};
}

/// Whether a slot of the user's places was never filled.
DeskFunction ClearRow() {
    return {"isClear", [](Horvanta&, std::span<const std::string> words) {
                return CallWith<std::size_t>(words, [](std::size_t slot) {
                    if (slot < 1 || slot >= UserLocales.size()) throw BadLine("no such slot");
                    return UserLocalesWindow::isClear(slot);
                });
            }};
}

DeskFunction MonthNamesRow(std::string_view name, const CalendarContract& calendar) {
    return {name, [&calendar](Horvanta&, std::span<const std::string>) {
                Form form("Desk", "");
                ChoiceList list(form, "Months");
                calendar.SetMonthNames(list, calendar.GetDate().year);
                return AnswerOf(list);
            }};
}

DeskFunction DayNamesRow(std::string_view name, const CalendarContract& calendar) {
    return {name, [&calendar](Horvanta&, std::span<const std::string>) {
                DayNames longNames;
                DayNames shortNames;
                calendar.SetDayNames(longNames, shortNames);
                return ListAnswer(longNames) + "; " + ListAnswer(shortNames);
            }};
}

constexpr CalendarContract hebrewMonths{"Hebrew", hebrew::ToFixed, hebrew::GetDate, hebrew::SetMonthNames,
                                        hebrew::SetDayNames};

using OneNumber = double (*)(double);
using TwoNumbers = double (*)(double, double);
using NumberAndPlaces = double (*)(double, int);
using NumberList = double (*)(std::span<const double>);

const std::vector<DeskFunction> functions{
    Row("Floor", Floor),
    Row("Ceiling", Ceiling),
    Row("Modulo", Modulo),
    Row("AdjustedModulo", AdjustedModulo),
    Row("ModuloRange", ModuloRange),
    Row("Quotient", Quotient),
    Row("Round", static_cast<OneNumber>(Round)),
    Row("RoundToPlaces", static_cast<NumberAndPlaces>(Round)),
    Row("Sign", Sign),
    Row("GCD", GCD),
    Row(
        "ExtGCD",
        +[](std::int32_t a, std::int32_t b) {
            Bezout result{};
            result.divisor = ExtGCD(a, b, result.x, result.y);
            return result;
        }),
    Row("ModInverse", ModInverse),
    ListRow("MaxOf", static_cast<NumberList>(MaxOf)),
    ListRow("MinOf", static_cast<NumberList>(MinOf)),
    Row("HoursToDays", HoursToDays),
    Row("SecToDeg", SecToDeg),
    Row("Deg", Deg),
    Row("Degrees", Degrees),
    Row("Radians", Radians),
    Row("RadToDeg", RadToDeg),
    Row("SinDeg", SinDeg),
    Row("CosDeg", CosDeg),
    Row("TanDeg", TanDeg),
    Row("ArcSinRad", ArcSinRad),
    Row("ArcCosRad", ArcCosRad),
    Row("ArcSinDeg", ArcSinDeg),
    Row("ArcCosDeg", ArcCosDeg),
    Row("ArcTanRad", static_cast<TwoNumbers>(ArcTanRad)),
    Row("ArcTan2Rad", ArcTan2Rad),
    Row("ArcTan2Deg", ArcTan2Deg),
    Row("DegMinSec", DegMinSec),
    Row("HMSToHours", HMSToHours),
    Row("HMSToDegrees", HMSToDegrees),
    Row("FeetToMeters", FeetToMeters),
    Row("MetersToFeet", MetersToFeet),
    Row("ZoneFromLongitude", ZoneFromLongitude),
    Row("DayFraction", DayFraction),
    Row("RoundToDigits", RoundToDigits),

    Row("SetFixedDayEpoch", SetFixedDayEpoch),
    Row("ChangeFixedDayEpoch", ChangeFixedDayEpoch),
    Row("DayOfWeek", DayOfWeek),
    Row("KDayOnOrBefore", KDayOnOrBefore),
    Row("KDayBefore", KDayBefore),
    Row("KDayOnOrAfter", KDayOnOrAfter),
    Row("KDayAfter", KDayAfter),
    Row("KDayNearest", KDayNearest),
    Row("NthKDay", NthKDay),
    Row("FirstKDay", FirstKDay),
    Row("LastKDay", LastKDay),
    Row("CountKDaysInRange", CountKDaysInRange),

    Row("GeneralText", GeneralText),
    Row("FormatNumber", FormatNumber),
    Row("ParseNumber", ParseNumber),
    Row("ParseLeadingNumber", ParseLeadingNumber),
    Row("SignedStr", SignedStr),
    Row("OrdinalString", OrdinalString),
    Row("OrdinalDiff", OrdinalDiff),
    Row("FormatTime", FormatTime),
    Row("DurationString", DurationString),
    Row("TimeOfDayFormat", TimeOfDayFormat),
    Row("AngleString", AngleString),
    Row("MinutesString", MinutesString),
    Row("FractionText", FractionText),
    Row("FractionParts", FractionParts),
    Row("ReplaceAll", ReplaceAll),
    Row("RemoveAmpersands", RemoveAmpersands),
    Row("UnderscoresToBlanks", UnderscoresToBlanks),
    Row("WrapIfNotEmpty", WrapIfNotEmpty),

    Row("ClampToRange", ClampToRange),
    Row("UpdateStatus", UpdateStatus),
    Row("Today", Today),
    Row("Now", Now),
    TimeRow("JumpDate", &TimeAstro::JumpDate),
    TimeRow("DayUpDown", &TimeAstro::DayUpDown),
    TimeRow("StepMenu_Click", &TimeAstro::StepMenu_Click),

    ClearRow(),
    Row("MakeLocale", MakeLocale),
    Row(
        "PresetLocale", +[](const LocaleRecord& place) { return place; }),
    Row("SphericalDistance", SphericalDistance),
    Row("OblateDistance", OblateDistance),
    Row("DirectionTo", DirectionTo),
    Row("CompassPoint", CompassPoint),
    Row("LocaleSummary", LocaleSummary),
    Row("LocaleChangeReport", LocaleChangeReport),
    Row("MapLink", MapLink),
    Row("isDaylightTime", isDaylightTime),
    Row("DaylightStart", DaylightStart),
    Row("DaylightEnd", DaylightEnd),
    Row("StandardToDaylight", StandardToDaylight),
    Row("DaylightToStandard", DaylightToStandard),
    Row("DaylightSwitchText", DaylightSwitchText),
    Row("LocalTimes", LocalTimes),

    Row("DeltaT", DeltaT),
    Row("SetDeltaTDisabled", SetDeltaTDisabled),
    Row("UniversalToTerrestrial", UniversalToTerrestrial),
    Row("TerrestrialToUniversal", TerrestrialToUniversal),
    Row("LocalToUniversal", LocalToUniversal),
    Row("UniversalToLocal", UniversalToLocal),
    Row("UniversalToStandard", UniversalToStandard),
    Row("StandardToUniversal", StandardToUniversal),
    Row("LocalToStandard", LocalToStandard),
    Row("EquationOfTime", EquationOfTime),
    Row("LocalToApparent", LocalToApparent),
    Row("ApparentToLocal", ApparentToLocal),
    Row("ApparentToUniversal", ApparentToUniversal),
    Row("JulianCenturies", JulianCenturies),
    Row("JulianMillennia", JulianMillennia),
    Row("MomentToJD", MomentToJD),
    Row("JDToMoment", JDToMoment),
    Row("MomentToMJD", MomentToMJD),
    Row("MJDToMoment", MJDToMoment),
    Row("MomentToOrbitalDate", MomentToOrbitalDate),
    Row("OrbitalDateToMoment", OrbitalDateToMoment),
    Row("MomentToRAYDate", MomentToRAYDate),
    Row("RAYDateToMoment", RAYDateToMoment),
    Row("RAYYearLength", RAYYearLength),
    Row("StepByOrbitalYear", StepByOrbitalYear),
    Row("MeanSiderealDegrees", MeanSiderealDegrees),
    Row("ApparentSiderealDegrees", ApparentSiderealDegrees),
    Row("SiderealDegrees", SiderealDegrees),

    Row("SolarLongitude", SolarLongitude),
    Row("Aberration", Aberration),
    Row("Nutation", Nutation),
    Row("Obliquity", Obliquity),
    Row("SolarDeclination", SolarDeclination),
    Row("SolarAltitude", SolarAltitude),
    Row("SolarHourAngle", SolarHourAngle),
    Row("SolarLongitudeAfter", SolarLongitudeAfter),
    Row("EstimateSolarLongitudeBefore", EstimateSolarLongitudeBefore),
    Row("SeasonMoment", SeasonMoment),
    Row("MeanSeasonMoment", MeanSeasonMoment),
    Row("SameLongitudeYearsLater", SameLongitudeYearsLater),

    Row("MomentDifference", MomentDifference),
    Row("HorizonDip", HorizonDip),
    Row("SunDepression", SunDepression),
    Row("SineOffset", SineOffset),
    Row("ApproxMomentOfDepression", ApproxMomentOfDepression),
    Row("MomentOfDepression", MomentOfDepression),
    Row("Dawn", Dawn),
    Row("Dusk", Dusk),
    Row("Sunrise", Sunrise),
    Row("Sunset", Sunset),
    Row("SolarMidday", SolarMidday),
    Row("SolarMidnight", SolarMidnight),
    Row("DayTemporalHour", DayTemporalHour),
    Row("NightTemporalHour", NightTemporalHour),
    Row("MorningTemporalHour", MorningTemporalHour),
    Row("AfternoonTemporalHour", AfternoonTemporalHour),
    Row("EveningTemporalHour", EveningTemporalHour),
    Row("PreDawnTemporalHour", PreDawnTemporalHour),
    Row("SundialToStandard", SundialToStandard),
    Row("RiseSetAzimuth", RiseSetAzimuth),

    Row("isGregorianLeapYear", isGregorianLeapYear),
    Row("GregorianToFixed", GregorianToFixed),
    Row("GregorianYearEnd", GregorianYearEnd),
    Row("FixedToGregorianYear", FixedToGregorianYear),
    Row("FixedToGregorianDate", FixedToGregorianDate),
    Row("GregorianMonthLength", GregorianMonthLength),
    Row("FixedToGregorianString", FixedToGregorianString),
    Row("GregorianDominicalLetters", GregorianDominicalLetters),
    Row("ISOToFixed", ISOToFixed),
    Row("isISOLeapYear", isISOLeapYear),
    Row("FixedToISODate", FixedToISODate),
    Row(
        "FixedToISOString", +[](Moment x) { return ISODateString(FixedToISODate(x)); }),
    Row("Gregorian.ToFixed", GregorianWindow::ToFixed),
    Row("Gregorian.GetDate", GregorianWindow::GetDate),
    MonthNamesRow("Gregorian.SetMonthNames", GregorianCalendar),
    DayNamesRow("Gregorian.SetDayNames", GregorianCalendar),
    Row("Gregorian.ToFixedAlt", GregorianWindow::ToFixedAlt),
    Row("Gregorian.GetDateAlt", GregorianWindow::GetDateAlt),
    MonthNamesRow("Gregorian.SetMonthNamesAlt", ISOCalendar),
    DayNamesRow("Gregorian.SetDayNamesAlt", ISOCalendar),

    Row("persian::Norouz", persian::Norouz),
    Row("persian::isLeapYear", persian::isLeapYear),
    Row("FixedToPersianYear", FixedToPersianYear),
    Row("PersianWeekdayNum", PersianWeekdayNum),
    Row("PersianToFixed", PersianToFixed),
    Row("FixedToPersianDate", FixedToPersianDate),
    Row(
        "PersianDateString", +[](Moment x) { return PersianDateString(FixedToPersianDate(x)); }),
    Row("PersianEquinoxOn", PersianEquinoxOn),
    Row("Persian.ToFixed", PersianWindow::ToFixed),
    Row("Persian.GetDate", PersianWindow::GetDate),
    MonthNamesRow("Persian.SetMonthNames", PersianCalendar),
    DayNamesRow("Persian.SetDayNames", PersianCalendar),
    Row("isJulianLeapYear", isJulianLeapYear),
    Row("JulianToFixed", JulianToFixed),
    Row("FixedToJulianDate", FixedToJulianDate),
    Row("JulianMonthLength", JulianMonthLength),
    Row("JulianGregDiff", JulianGregDiff),
    Row("JulianDominicalLetters", JulianDominicalLetters),
    Row("JulianYearString", JulianYearString),
    Row("FixedToJulianShortDate", FixedToJulianShortDate),
    Row("FixedToJulianMonthDay", FixedToJulianMonthDay),
    Row("RomanIdes", RomanIdes),
    Row("RomanNones", RomanNones),
    Row("RomanToFixed", RomanToFixed),
    Row("FixedToRomanDate", FixedToRomanDate),
    Row(
        "RomanDateString", +[](Moment x) { return RomanDateString(FixedToRomanDate(x)); }),
    Row(
        "RomanEventString", +[](Moment x) { return RomanEventString(FixedToRomanDate(x)); }),
    Row("DecimalToRoman", DecimalToRoman),
    Row("RomanToDecimal", RomanToDecimal),
    Row("JulianToAUC", JulianToAUC),
    Row("AUCToJulian", AUCToJulian),
    Row("OlympiadStart", OlympiadStart),
    Row("JulianToOlympiad", JulianToOlympiad),
    Row("OlympiadToJulian", OlympiadToJulian),
    Row("hasOlympiads", hasOlympiads),
    Row("YearToOlympiadString", YearToOlympiadString),
    Row("Julian.CalendarName", JulianWindow::CalendarName),
    Row("Julian.ToFixed", JulianWindow::ToFixed),
    Row("Julian.GetDate", JulianWindow::GetDate),
    MonthNamesRow("Julian.SetMonthNames", JulianCalendar),
    DayNamesRow("Julian.SetDayNames", JulianCalendar),
    Row("Julian.ToFixedAlt", JulianWindow::ToFixedAlt),
    Row("Julian.GetDateAlt", JulianWindow::GetDateAlt),
    MonthNamesRow("Julian.SetMonthNamesAlt", RomanCalendar),
    DayNamesRow("Julian.SetDayNamesAlt", RomanCalendar),
    Row(
        "QuaNewYear", +[](std::int32_t year, bool wantMoment) { return quartane::QuaNewYear(year, wantMoment); }),
    Row("LinApprox", quartane::LinApprox),
    Row("FixedToQuaYear", quartane::FixedToQuaYear),
    Row(
        "isQuaLeapYear", +[](std::int32_t year) { return quartane::isQuaLeapYear(year); }),
    Row("QuaDaysBeforeMonth", quartane::QuaDaysBeforeMonth),
    Row("QuaYearDay", quartane::QuaYearDay),
    Row("QuaToFixed", quartane::QuaToFixed),
    Row("FixedToQuaDayOfYear", quartane::FixedToQuaDayOfYear),
    Row("DaysInMonth", quartane::DaysInMonth),
    Row("FixedToQuaDate", quartane::FixedToQuaDate),
    Row(
        "FixedToQuaDateString", +[](Moment x) { return quartane::QuaDateString(quartane::FixedToQuaDate(x)); }),
    Row("FixedToQuaShortDate", quartane::FixedToQuaShortDate),
    Row("SetQuaQuarterStructure", quartane::SetQuaQuarterStructure),
    Row("JumpLeapWeek", quartane::JumpLeapWeek),
    Row("JumpNYmoment", quartane::JumpNYmoment),
    Row("JumpQuaCycle", quartane::JumpQuaCycle),
    Row("LeapRule", quartane::Rule),
    Row("LeapChoices", quartane::LeapChoices),
    Row("FindQuaLeapRule", quartane::FindQuaLeapRule),
    Row("SetQuaLeapChoice", quartane::SetQuaLeapChoice),
    Row("SetKoffset", quartane::SetKoffset),
    Row("SetEvenCycleMode", quartane::SetEvenCycleMode),
    Row("CheckIfQuaCycle", quartane::CheckIfQuaCycle),
    Row("LeapRuleMethod", quartane::LeapRuleMethod),
    Row("LeapRuleExplanation", quartane::LeapRuleExplanation),
    Row("QuaLeapIntervals", quartane::QuaLeapIntervals),
    Row("QuaGroupIntervals", quartane::QuaGroupIntervals),
    Row("ReduceIntervals", quartane::ReduceIntervals),
    Row("Quartane.ToFixed", quartane::ToFixed),
    Row("Quartane.GetDate", quartane::GetDate),
    MonthNamesRow("Quartane.SetMonthNames", quartane::Calendar),
    DayNamesRow("Quartane.SetDayNames", quartane::Calendar),

    Row("ElapsedDays", ElapsedDays),
    Row("HebrewNewYear", HebrewNewYear),
    Row("DaysInHebrewYear", DaysInHebrewYear),
    Row("LongCheshvan", LongCheshvan),
    Row("ShortKislev", ShortKislev),
    Row("isHebrewLeapYear", isHebrewLeapYear),
    Row("isHebrewLeapYear19", isHebrewLeapYear19),
    Row("isHebrewLeapYear353", isHebrewLeapYear353),
    Row("MonthsInHebrewYear", MonthsInHebrewYear),
    Row("LastDayOfHebrewMonth", LastDayOfHebrewMonth),
    Row("HebrewToFixed", HebrewToFixed),
    Row("FixedToHebrewDate", FixedToHebrewDate),
    Row("FixedToHebrewYear", FixedToHebrewYear),
    Row("HebrewMonthName", HebrewMonthName),
    Row("WeekdayLabel", WeekdayLabel),
    Row(
        "HebrewDateString",
        +[](Moment x, bool withWeekday, bool italics, bool withYear) {
            return HebrewDateString(FixedToHebrewDate(x), withWeekday, italics, withYear);
        }),
    Row("FixedToHebrewString", FixedToHebrewString),
    Row(
        "HebrewShortDateString",
        +[](Moment x, bool withYear) { return HebrewShortDateString(FixedToHebrewDate(x), withYear); }),
    Row("FixedToHebrewShortDate", FixedToHebrewShortDate),
    Row("MoladEpoch", MoladEpoch),
    Row("MoladEpochEve", MoladEpochEve),
    Row("ElapsedMonths", ElapsedMonths),
    Row("ElapsedMonths19", ElapsedMonths19),
    Row("ElapsedMonths353", ElapsedMonths353),
    Row("molad", molad),
    Row("MoladBefore", MoladBefore),
    Row("TraditionalMolad", TraditionalMolad),
    Row("TraditionalMomentToLunation", TraditionalMomentToLunation),
    Row("MyMoladMoment", MyMoladMoment),
    Row("MoladDay", MoladDay),
    Row("MoladAdjustment", MoladAdjustment),
    Row("HebrewYearCharacter", HebrewYearCharacter),
    Row("HebrewYearType", HebrewYearType),
    Row("PostponeReason", PostponeReason),
    Row("Hebrew.ToFixed", hebrew::ToFixed),
    Row("Hebrew.GetDate", hebrew::GetDate),
    MonthNamesRow("Hebrew.SetMonthNames", hebrewMonths),
    DayNamesRow("Hebrew.SetDayNames", hebrewMonths),
};

template <class T>
DeskVariable Variable(std::string_view name, T& variable) {
    return {name, [&variable] { return AnswerOf(variable); },
            [&variable](const std::string& word) { variable = Read<T>::From(word); }};
}

/// A number that chooses one of several.
DeskVariable Choice(std::string_view name, std::int32_t& variable, std::int32_t first, std::int32_t last) {
    return {name, [&variable] { return AnswerOf(variable); },
            [=, &variable](const std::string& word) {
                const auto value = Read<std::int32_t>::From(word);
                if (value < first || value > last) throw BadLine("no such choice: " + word);
                variable = value;
            }};
}

/// A variable that only the engine writes.
template <class T>
DeskVariable Constant(std::string_view name, const T& variable) {
    return {name, [&variable] { return AnswerOf(variable); }, nullptr};
}

const std::vector<DeskVariable> variables{
    Variable("DisplayedMoment", DisplayedMoment),
    Variable("SavedMoment", SavedMoment),
    Variable("Increment", Increment),
    Variable("BusyCount", BusyCount),
    Variable("AlwaysToday", AlwaysToday),
    Variable("TempHourFormat", TempHourFormat),
    Variable("MoladTimeFormat", MoladTimeFormat),
    Variable("StepsBySolarYear", StepsBySolarYear),
    Variable("AdjustDST", AdjustDST),
    Variable("UseElevation", UseElevation),
    Variable("MapIndex", MapIndex),
    Variable("CycleShift", CycleShift),
    Variable("Revise", julian::Revise),
    Variable("UseAUC", julian::UseAUC),
    Variable("YRF", julian::YRF),
    Variable("OSY", julian::OSY),
    Variable("UseHebrewFont", UseHebrewFont),
    Variable("LeapRuleKey", quartane::LeapRuleKey),
    Choice("StartWeekday", quartane::StartWeekday, 0, 6),
    Variable("QuarterStructure", quartane::QuarterStructure),
    Variable("Qua454", quartane::Qua454),
    Variable("UseZov454", quartane::UseZov454),
    Variable("UseZov010", quartane::UseZov010),
    Variable("EvenCycleFlag", quartane::EvenCycleFlag),
    Variable("QuaSoupMix", quartane::QuaSoupMix),
    Constant("LeapRuleIndex", quartane::LeapRuleIndex),
    Constant("StepIndex", StepIndex),
    Constant("Locale", Locale),
    Constant("DeltaTDisabled", DeltaTDisabled),
    Constant("DeltaTSerial", DeltaTSerial),
    Constant("UpdateDepth", UpdateDepth),
    Constant("Quitting", Quitting),
    Constant("GregorianEpoch", GregorianEpoch),
    Constant("WeekdayOffset", WeekdayOffset),
    Constant("JulianEpoch", JulianEpoch),
    Constant("MinFixedDay", MinFixedDay),
    Constant("MaxFixedDay", MaxFixedDay),
    Constant("HebrewEpoch", HebrewEpoch),
    Constant("PersianEpoch", PersianEpoch),
    Constant("J2000", J2000),
    Constant("Epoch2001", Epoch2001),
    Constant("JDEpoch", JDEpoch),
    Constant("MJDEpoch", MJDEpoch),
    Constant("TJDEpoch", TJDEpoch),
    Constant("FixedEpochName", FixedEpochName),
    Constant("FixedEpochValue", FixedEpochValue),
    Constant("NumberingSerial", NumberingSerial),
};

template <class Rows>
auto* FindByName(const Rows& rows, std::string_view name) {
    const auto found = std::find_if(rows.begin(), rows.end(), [&](const auto& row) { return row.name == name; });
    return found == rows.end() ? nullptr : &*found;
}

}  // namespace

std::vector<std::string> WordsOf(std::string_view line) {
    std::vector<std::string> words;
    bool inWord = false;
    bool quoted = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const char c = line[i];
        if (!quoted && (c == ' ' || c == '\t')) {
            inWord = false;
            continue;
        }
        if (!std::exchange(inWord, true)) words.emplace_back();
        const bool escape = quoted && c == '\\' && i + 1 < line.size();
        if (escape) {
            const char next = line[++i];
            words.back() += next == 'n' ? '\n' : next;
        } else if (c == '"') {
            quoted = !quoted;
        } else {
            words.back() += c;
        }
    }
    if (quoted) throw BadLine("a quote is not closed");
    return words;
}

std::string NumberAnswer(double x) { return x == NeverMoment ? "never" : ExactText(x); }

const DeskFunction* FindDeskFunction(std::string_view name) { return FindByName(functions, name); }
const DeskVariable* FindDeskVariable(std::string_view name) { return FindByName(variables, name); }

}  // namespace horvanta
