#include "desk_rows.h"
#include "hebrew/conjunctions.h"
#include "hebrew/hebrew_arithmetic.h"
#include "hebrew/hebrew_modes.h"
#include "hebrew/molad.h"

namespace horvanta {

std::string AnswerOf(const HebrewDateRecord& d) {
    return RecordAnswer("Fixed Year Month Day YearDay WeekDay WeekDayName", d.Fixed, d.Year, d.Month, d.Day, d.YearDay,
                        d.WeekDay, d.WeekDayName);
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
    };
}

std::vector<DeskVariable> HebrewVariables() {
    return {
        Variable("MoladTimeFormat", hebrew::options.MoladTimeFormat),
        Variable("CycleShift", hebrew::options.CycleShift),
        Variable("UseHebrewFont", hebrew::options.UseHebrewFont),
    };
}

}  // namespace horvanta
