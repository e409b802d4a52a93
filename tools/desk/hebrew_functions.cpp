#include "desk_rows.h"
#include "hebrew/conjunctions.h"
#include "hebrew/hebrew_arithmetic.h"
#include "hebrew/hebrew_modes.h"
#include "hebrew/holidays.h"
#include "hebrew/molad.h"
#include "hebrew/tekufot.h"
#include "hebrew/torah.h"
#include "hebrew/year_types.h"
#include "hebrew/zmanim.h"

namespace horvanta {

std::string AnswerOf(const HebrewDateRecord& d) {
    return RecordAnswer("Fixed Year Month Day YearDay WeekDay WeekDayName", d.Fixed, d.Year, d.Month, d.Day, d.YearDay,
                        d.WeekDay, d.WeekDayName);
}

std::string AnswerOf(const HebrewDay& d) {
    return AnswerOf(d.date) + " " +
           RecordAnswer(
               "BirkatHachodesh MoladText RoshChodesh ShabbatName YomTov CholHamoed Holiday Fast OmerText Notes Chanukah",
               d.BirkatHachodesh, d.MoladText, d.RoshChodesh, d.ShabbatName, d.YomTov, d.CholHamoed, d.Holiday, d.Fast,
               d.OmerText, d.Notes, d.Chanukah);
}

std::string AnswerOf(const HebrewYearTypeCount& type) {
    return RecordAnswer("character years", type.character, type.years);
}

std::string AnswerOf(const Zman& z) {
    return RecordAnswer("key legend name rule mark moment isDue", z.key, z.legend, z.name, z.rule, z.mark, z.moment,
                        z.isDue);
}

/// A list of records.
template <class Record>
std::string AnswerOf(const std::vector<Record>& list) {
    std::string text;
    for (const Record& record : list) text += (text.empty() ? "" : "; ") + AnswerOf(record);
    return text;
}

std::string AnswerOf(const WeekdayCounts& counts) {
    std::string text;
    for (const std::int32_t years : counts.years) text += AnswerOf(years) + " ";
    return text + "of " + AnswerOf(counts.total);
}

std::vector<Zman> ZmanimOfDay(Moment x, const LocaleRecord& place) {
    return ZmanimOf(HebrewDayOf(x, place), HebrewDayOf(x + 1, place), place);
}

std::vector<DeskFunction> HebrewFunctions() {
    return {
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
        Row("SolexNewMoon", SolexNewMoon),
        Row("TraditionalMomentToLunation", TraditionalMomentToLunation),
        Row("MyMoladMoment", MyMoladMoment),
        Row("MoladDay", MoladDay),
        Row("MoladAdjustment", MoladAdjustment),
        Row("ProgressiveMolad", ProgressiveMolad),
        Row("MidNileEuphratesLCmolad", MidNileEuphratesLCmolad),
        Row("JerusalemLCmolad", JerusalemLCmolad),
        Row("NewProgressiveMolad", NewProgressiveMolad),
        Row("AltProgressiveMolad", AltProgressiveMolad),
        Row("VertexProgressiveMolad", VertexProgressiveMolad),
        Row("TTmolad", TTmolad),
        Row("UTmolad", UTmolad),
        Row("TTmeanNewMoon", TTmeanNewMoon),
        Row("UTmeanNewMoon", UTmeanNewMoon),
        Row("NewMoladAdjustment", NewMoladAdjustment),
        Row("AverageMoladAdjust", AverageMoladAdjust),
        Row("UTmoladAdjustment", UTmoladAdjustment),
        Row("TTmoladAdjustment", TTmoladAdjustment),
        Row("AtomicMoladAdjustment", AtomicMoladAdjustment),
        Row("RAPmolad", RAPmolad),
        Row("RAPmoladDay", RAPmoladDay),
        Row("LunationToMSM", LunationToMSM),
        Row("MSMtoLunation", MSMtoLunation),
        Row("MoladIntervalDiff", MoladIntervalDiff),
        Row("RectifiedMeanYear", RectifiedMeanYear),
        Row("LunationToMSM_Solar", LunationToMSM_Solar),
        Row("LunationToMSM_Atomic", LunationToMSM_Atomic),
        Row("LunationToMSMrate_Solar", LunationToMSMrate_Solar),
        Row("LunationToMSMrate_Atomic", LunationToMSMrate_Atomic),
        Row("MomentToLunarAcceleration", MomentToLunarAcceleration),
        Row("ProgressiveMomentToLunation", ProgressiveMomentToLunation),
        Row("VertexProgressiveMomentToLunation", VertexProgressiveMomentToLunation),
        Row("AdjustedMolad", AdjustedMolad),
        Row("AdjustedMoladBefore", AdjustedMoladBefore),
        Row("AdjustedMoladAfter", AdjustedMoladAfter),
        Row("MoladToUniversal", MoladToUniversal),
        Row("TraditionalMoladToUniversal", TraditionalMoladToUniversal),
        Row("ProgressiveMoladToUniversal", ProgressiveMoladToUniversal),
        Row("JumpMolad", JumpMolad),
        Row("JumpProgressiveMolad", JumpProgressiveMolad),
        Row("HebrewYearCharacter", HebrewYearCharacter),
        Row("HebrewYearType", HebrewYearType),
        Row("PostponeReason", PostponeReason),
        Row("AstroRule", AstroRule),
        Row("NisanFirstDay", NisanFirstDay),
        Row("HopToNextMonth", HopToNextMonth),
        Row("ShiftRoshHashanah", ShiftRoshHashanah),
        Row("ShiftRoshHashanahElul29", ShiftRoshHashanahElul29),
        Row("isAstroHebrewLeapYear", isAstroHebrewLeapYear),
        Row("AstroHebrewToFixed", AstroHebrewToFixed),
        PlaceRow(
            "FixedToActiveHebrewDate",
            +[](Moment x, const LocaleRecord& place) {
                return HebrewHolidays(FixedToActiveHebrewDate(x), ActiveReckoning(), place);
            }),
        Row("HebrewNewYear353", HebrewNewYear353),
        Row("DaysInRectHebrewYear", DaysInRectHebrewYear),
        Row("RectHebrewToFixed", RectHebrewToFixed),
        Row("HebrewYearCharacter353", HebrewYearCharacter353),
        Row("HebrewNewYear19", HebrewNewYear19),
        Row("HebrewNewYear19alt", HebrewNewYear19alt),
        Row("MyHebrewNewYear", MyHebrewNewYear),
        Row("MyHebrewNewYearAlt", MyHebrewNewYearAlt),
        Row("DaysInMyHebrewYear", DaysInMyHebrewYear),
        PlaceRow("HebrewDayOf", HebrewDayOf),
        PlaceRow(
            "HebrewEvents",
            +[](Moment x, const LocaleRecord& place) {
                return EventsOf(HebrewDayOf(x, place), HebrewDayOf(x + 1, place), place);
            }),
        PlaceRow(
            "TorahPortion",
            +[](Moment x, bool keepHolidayText, const LocaleRecord& place) {
                return TorahPortion(HebrewDayOf(x, place), keepHolidayText, place);
            }),
        Row("TorahPortionName", TorahPortionName),
        Row(
            "Passover", +[](std::int32_t gregorianYear) { return Passover(gregorianYear); }),
        Row(
            "Omer", +[](Moment x) { return Omer(x); }),
        Row(
            "YomHaZikaron", +[](std::int32_t year) { return YomHaZikaron(year); }),
        PlaceRow("Zmanim", ZmanimOfDay),
        PlaceRow("JewishRecognition", JewishRecognition),
        PlaceRow("ZmanToStandard", ZmanToStandard),
        PlaceRow(
            "ShabbatOrFestivalName",
            +[](Moment x, const LocaleRecord& place) { return ShabbatOrFestivalName(HebrewDayOf(x, place)); }),
        Row("MomentToMazzal", MomentToMazzal),
        Row("MomentToMazzalName", MomentToMazzalName),
        Row("RMBM_SolarMeanLongitude", RMBM_SolarMeanLongitude),
        Row("RMBM_ApogeeLongitude", RMBM_ApogeeLongitude),
        Row("RMBM_LunarMeanLongitude", RMBM_LunarMeanLongitude),
        Row("RMBM_LunarPathMeanLongitude", RMBM_LunarPathMeanLongitude),
        Row("RMBM_LunarRoshLongitude", RMBM_LunarRoshLongitude),
        Row("RMBM_LunarZanavLongitude", RMBM_LunarZanavLongitude),
        Row("RMBM_SolarLongitudeAdjust", RMBM_SolarLongitudeAdjust),
        Row("RMBM_SolarTrueLongitude", RMBM_SolarTrueLongitude),
        Row("RMBM_SolarLongitudeAfter", RMBM_SolarLongitudeAfter),
        Row("RMBM_DoubleElongation", RMBM_DoubleElongation),
        Row("RMBM_LunarTrueLongitude", RMBM_LunarTrueLongitude),
        Row("RMBM_LunarLatitude", RMBM_LunarLatitude),
        Row("RMBM_DegreesInConstellation", RMBM_DegreesInConstellation),
        Row("RMBM_TekufatShmuel", RMBM_TekufatShmuel),
        Row("RMBM_TekufatAdda", RMBM_TekufatAdda),
        Row("RMBM_TekufatTesselby", RMBM_TekufatTesselby),
        Row("PossibleWeekdayCounts", PossibleWeekdayCounts),
        Row("PossibleWeekdays", PossibleWeekdays),
        Row("YearTypeAfter", YearTypeAfter),
        Row("FullCycleFreq", FullCycleFreq),
        Row("TypeFreq", TypeFreq),
        Row("ExplainCharacter", ExplainCharacter),
        Row("TzomTammuz", TzomTammuz),
        Row("TishaBAv", TishaBAv),
    };
}

std::vector<DeskVariable> HebrewVariables() {
    return {
        Variable("MoladTimeFormat", hebrew::options.MoladTimeFormat),
        Choice("HebrewMode", hebrew::options.HebrewMode, 0, 23),
        Variable("CandlesBeforeSunset", hebrew::options.CandlesBeforeSunset),
        Variable("CycleShift", hebrew::options.CycleShift),
        Variable("UseHebrewFont", hebrew::options.UseHebrewFont),
    };
}

}  // namespace horvanta
