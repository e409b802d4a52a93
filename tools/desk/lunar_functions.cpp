#include "desk_rows.h"
#include "lunar/lunar_options.h"
#include "lunar/tithi.h"
#include "lunar/yerm.h"
#include "lunar/yerm_eras.h"

namespace horvanta {

std::string AnswerOf(const YermDate& d) {
    return RecordAnswer("EraNumber Yerm Month Day Fixed Lunation EraStart EraEnd", d.EraNumber, d.Yerm, d.Month, d.Day,
                        d.Fixed, d.Lunation, d.EraStart, d.EraEnd);
}

std::string AnswerOf(const YermEra& e) {
    return RecordAnswer(
        "EraNumber EraStart EraEnd LunationStart LunationEnd EraDays EraMonths EraYerms HasYermZero YermsBefore N29 N30 MeanMonth",
        e.EraNumber, e.EraStart, e.EraEnd, e.LunationStart, e.LunationEnd, e.EraDays, e.EraMonths, e.EraYerms,
        e.HasYermZero, e.YermsBefore, e.N29(), e.N30(), e.MeanMonth());
}

std::string AnswerOf(const YermForm& f) {
    return RecordAnswer("EraFilePath EraDescription DayOffsetUnits Progressive EpochFixed EpochLunation", f.EraFilePath,
                        f.EraDescription, f.DayOffsetUnits, f.Progressive, double{f.EpochFixed}, f.EpochLunation);
}

template <>
struct Read<YermKey> {
    static YermKey From(const std::string& word) {
        constexpr std::string_view names[] = {"Day", "Lunation", "Yerm", "Number"};
        const auto* found = std::ranges::find(names, word);
        if (found == std::end(names)) throw BadLine("no such key: " + word);
        return static_cast<YermKey>(found - names);
    }
};

std::vector<DeskFunction> LunarFunctions() {
    return {
        Row("YermForm", PresentYermForm),
        Row("YermSerial", YermSerial),
        Row("OpenYermEraList", OpenYermEraList),
        Row("RevertToFixedYermCycle", RevertToFixedYermCycle),
        Row("YermEraLookup", YermEraLookup),
        Row("MonthsInYerm", MonthsInYerm),
        Row("DaysInYermMonth", DaysInYermMonth),
        Row("FixedToYermDate", FixedToYermDate),
        Row("LunationToYermDate", LunationToYermDate),
        Row("YermDateToFixed", YermDateToFixed),
        Row("YermDateToLunation", YermDateToLunation),
        Row("FixedToYermString", FixedToYermString),
        Row("FixedHasValidYermDate", FixedHasValidYermDate),
        Row("IsValidYermDate", IsValidYermDate),
        Row("IsValidYermLunation", IsValidYermLunation),
        Row("LunationEraToFixed", LunationEraToFixed),
        Row("VarnokLunationToFixed", VarnokLunationToFixed),
        Row("HebrewLunationEraToFixed", HebrewLunationEraToFixed),
        Row("HCEMtoFixed", HCEMtoFixed),
        Row("LunationEraToMoment", LunationEraToMoment),
        Row("JumpYerm", JumpYerm),
        Row("JumpYermEra", JumpYermEra),
        Row("VedicTithi", VedicTithi),
        Row("JumpTithi", JumpTithi),
        Row("JumpCycles", JumpCycles),
    };
}

std::vector<DeskVariable> LunarVariables() {
    return {
        Choice("LunationOption", lunar::options.LunationOption, 1,
               static_cast<std::int32_t>(LunationConventions.size())),
        Variable("LP180", lunar::options.SignedPhase),
    };
}

}  // namespace horvanta
