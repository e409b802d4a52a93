#include "calendars/civil_days.h"
#include "calendars/easter.h"
#include "calendars/gregorian.h"
#include "calendars/julian.h"
#include "calendars/oriental_text.h"
#include "calendars/persian.h"
#include "calendars/quartane.h"
#include "calendars/quartane_leap_rules.h"
#include "calendars/quartane_leap_text.h"
#include "calendars/quartane_year_start.h"
#include "calendars/roman.h"
#include "calendars/world.h"
#include "desk_rows.h"

namespace horvanta {

std::string AnswerOf(const GregorianDate& d) {
    return RecordAnswer("fixed yearDay year month day weekday weekdayName", d.fixed, d.yearDay, d.year, d.month, d.day,
                        d.weekday, d.weekdayName);
}

std::string AnswerOf(const ISODate& d) {
    return RecordAnswer("fixed year week weekday ordinalDay isLeap", d.fixed, d.year, d.week, d.weekday, d.ordinalDay,
                        d.isLeap);
}

std::string AnswerOf(const PersianDate& d) {
    return RecordAnswer(
        "fixed newYear nextNewYear isLeap yearDay weekOfYear year month day daysBeforeMonth monthLength weekday",
        d.fixed, d.newYear, d.nextNewYear, d.isLeap, d.yearDay, d.weekOfYear, d.year, d.month, d.day, d.daysBeforeMonth,
        d.monthLength, d.weekday);
}

std::string AnswerOf(const JulianDate& d) {
    return RecordAnswer("fixed year month day", d.fixed, d.year, d.month, d.day);
}

std::string AnswerOf(const RomanDate& d) {
    return RecordAnswer("fixed year month event count leap", d.fixed, d.year, d.month, d.event, d.count, d.leap);
}

std::string AnswerOf(const Olympiad& o) { return RecordAnswer("cycle year", o.cycle, o.year); }

namespace oriental {

std::string AnswerOf(const OrientDate& d) {
    return RecordAnswer(
        "fixed elapsed cycle year shownYear newYear nextNewYear gregorianYear isLongYear isLeapSui month isLeapMonth day weekday sexagesimal place monthLength",
        d.fixed, d.elapsed, d.cycle, d.year, d.shownYear, d.newYear, d.nextNewYear, d.gregorianYear, d.isLongYear,
        d.isLeapSui, d.month, d.isLeapMonth, d.day, d.weekday, d.sexagesimal, d.place, d.monthLength);
}

}  // namespace oriental

namespace quartane {

std::string AnswerOf(const QuaYear& y) { return RecordAnswer("year newYear", y.year, y.newYear); }

std::string AnswerOf(const QuaDate& d) {
    return RecordAnswer(
        "fixed yearDay isLeap quarter dayOfQuarter weekOfQuarter monthInQuarter weekOfMonth monthLength year month day weekday weekdayName weekOfYear",
        d.fixed, d.yearDay, d.isLeap, d.quarter, d.dayOfQuarter, d.weekOfQuarter, d.monthInQuarter, d.weekOfMonth,
        d.monthLength, d.year, d.month, d.day, d.weekday, d.weekdayName, d.weekOfYear);
}

std::string AnswerOf(const LeapRule& r) {
    return RecordAnswer(
        "IsCycleRule LeapNumerator CycleLength CycleOffset CycleDays DayExcess ReducedNumerator ReducedDenominator ReducedRatio MeanYear MeanLunation ModularInverse",
        r.IsCycleRule, r.LeapNumerator, r.CycleLength, r.CycleOffset, r.CycleDays, r.DayExcess, r.ReducedNumerator,
        r.ReducedDenominator, r.ReducedRatio, r.MeanYear, r.MeanLunation, r.ModularInverse);
}

}  // namespace quartane

namespace {

/// The texts of a day, each with the number of its kind behind it if it has one.
std::vector<std::string> DayAnswer(const std::vector<DayText>& day) {
    std::vector<std::string> texts;
    for (const auto& [text, kind] : day) {
        texts.push_back(kind == DayKind::None ? text : text + " [" + std::to_string(static_cast<int>(kind)) + "]");
    }
    return texts;
}

}  // namespace

std::vector<DeskFunction> CalendarFunctions() {
    return {
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
        Row("persian::Norouz", persian::Norouz),
        Row("persian::isLeapYear", persian::isLeapYear),
        Row("FixedToPersianYear", FixedToPersianYear),
        Row("PersianWeekdayNum", PersianWeekdayNum),
        Row("PersianToFixed", PersianToFixed),
        Row("FixedToPersianDate", FixedToPersianDate),
        Row(
            "PersianDateString", +[](Moment x) { return PersianDateString(FixedToPersianDate(x)); }),
        Row("PersianEquinoxOn", PersianEquinoxOn),
        Row("isJulianLeapYear", isJulianLeapYear),
        Row("JulianToFixed", JulianToFixed),
        Row("FixedToJulianDate", FixedToJulianDate),
        Row("JulianMonthLength", JulianMonthLength),
        Row(
            "JulianGregDiff", +[](Moment x) { return JulianGregDiff(x); }),
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
        Row("Julian.CalendarName", JulianCalendarName),
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
        Row("GregorianPaschalMoon", GregorianPaschalMoon),
        Row("AstronomicalPaschalMoon", AstronomicalPaschalMoon),
        Row("EasterSunday", EasterSunday),
        Row("OrthodoxEaster", OrthodoxEaster),
        Row("AltOrthodoxEaster", AltOrthodoxEaster),
        Row("MovableChristianHoliday", MovableChristianHoliday),
        Row("JumpEaster", JumpEaster),
        Row("JumpUniformEaster", JumpUniformEaster),
        Row("JumpOrthoEaster", JumpOrthoEaster),
        Row("QuaPaschalMoon", quartane::QuaPaschalMoon),
        Row("QuaEaster", quartane::QuaEaster),
        Row("FixedEaster", quartane::FixedEaster),
        Row("JumpFixedEaster", quartane::JumpFixedEaster),
        Row(
            "CivilDays", +[](Moment x) { return DayAnswer(CivilDaysOf(x)); }),
        Row(
            "OrthodoxDays", +[](Moment x) { return OrthodoxDays(FixedToJulianDate(x, true)); }),
        Row(
            "QuaCivilDays", +[](Moment x) { return DayAnswer(quartane::CivilDays(quartane::FixedToQuaDate(x))); }),
        Row("OrientEpoch", oriental::OrientEpoch),
        Row("OrientYearEpoch", oriental::OrientYearEpoch),
        Row("OrientZone", oriental::OrientZone),
        Row("OrientUniversal", oriental::OrientUniversal),
        Row("OrientStandard", oriental::OrientStandard),
        Row("OrientMidnight", oriental::OrientMidnight),
        Row("MidnightLongitude", oriental::MidnightLongitude),
        Row("MajorSolarTerm", oriental::MajorSolarTerm),
        Row("MinorSolarTerm", oriental::MinorSolarTerm),
        Row("MajorSolarTermOnOrAfter", oriental::MajorSolarTermOnOrAfter),
        Row("MinorSolarTermOnOrAfter", oriental::MinorSolarTermOnOrAfter),
        Row("OrientLongitudeOnOrAfter", oriental::OrientLongitudeOnOrAfter),
        Row("WinterSolsticeOnOrBefore", oriental::WinterSolsticeOnOrBefore),
        Row("NewYearOnOrBefore", oriental::NewYearOnOrBefore),
        Row("NewYear", oriental::NewYear),
        Row("OrientToFixed", oriental::OrientToFixed),
        Row("FixedToOrientDate", oriental::FixedToOrientDate),
        Row("FixedToOrientMonthDay", oriental::FixedToOrientMonthDay),
        Row(
            "OrientDateString", +[](Moment x) { return oriental::OrientDateString(oriental::FixedToOrientDate(x)); }),
        Row("SexagesimalName", oriental::SexagesimalName),
        Row("SexagesimalDay", oriental::SexagesimalDay),
        Row(
            "SexagesimalMonth", +[](Moment x) { return oriental::SexagesimalMonth(oriental::FixedToOrientDate(x)); }),
        Row("DayName", oriental::DayName),
        Row("NameDifference", oriental::NameDifference),
        Row("DayNameOnOrBefore", oriental::DayNameOnOrBefore),
        Row("KoreanYear", oriental::KoreanYear),
        Row("MarriageAugury", oriental::MarriageAugury),
        Row("JumpNewYear", oriental::JumpNewYear),
        Row(
            "OrientEvents", +[](Moment x) { return oriental::EventsOf(oriental::FixedToOrientDate(x)); }),
        Row(
            "WorldCellText",
            +[](std::int32_t month, std::int32_t day) {
                return WorldCellText({.month = static_cast<std::int16_t>(month)}, day);
            }),
        Row(
            "ThirteenMonthCellText",
            +[](std::int32_t month, std::int32_t day) {
                return ThirteenMonthCellText({.month = static_cast<std::int16_t>(month)}, day);
            }),
    };
}

std::vector<DeskVariable> CalendarVariables() {
    return {
        Variable("UniformEaster", easter::options.UniformEaster),
        Choice("OrientVariant", oriental::options.OrientVariant, oriental::Chinese, oriental::Vietnamese),
        Choice("OrientEpochYear", oriental::options.OrientEpochYear, oriental::EpochYears[2], oriental::EpochYears[0]),
        Variable("UseEnglish", oriental::options.UseEnglish),
        Variable("Revise", julian::options.Revise),
        Variable("UseAUC", julian::options.UseAUC),
        Variable("YRF", julian::options.YRF),
        Variable("OSY", julian::options.OSY),
        Variable("LeapRuleKey", quartane::options.LeapRuleKey),
        Choice("StartWeekday", quartane::options.StartWeekday, 0, 6),
        Variable("QuarterStructure", quartane::options.QuarterStructure),
        Variable("Qua454", quartane::options.Qua454),
        Variable("UseZov454", quartane::options.UseZov454),
        Variable("UseZov010", quartane::options.UseZov010),
        Variable("EvenCycleFlag", quartane::options.EvenCycleFlag),
        Variable("QuaSoupMix", quartane::options.QuaSoupMix),
        Constant("LeapRuleIndex", quartane::options.LeapRuleIndex),
    };
}

}  // namespace horvanta
