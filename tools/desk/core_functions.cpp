#include "core/moment.h"
#include "desk_rows.h"

namespace horvanta {

namespace {

DeskFunction ListRow(std::string_view name, double (*function)(std::span<const double>)) {
    return {std::string(name), [function](Horvanta&, std::span<const std::string> words) {
                std::vector<double> list;
                std::transform(words.begin(), words.end(), std::back_inserter(list), Read<double>::From);
                return AnswerOf(function(list));
            }};
}

}  // namespace

struct Bezout {
    std::int32_t divisor;
    std::int32_t x;
    std::int32_t y;
};

std::string AnswerOf(const Bezout& b) { return RecordAnswer("divisor x y", b.divisor, b.x, b.y); }

namespace {

using OneNumber = double (*)(double);
using TwoNumbers = double (*)(double, double);
using NumberAndPlaces = double (*)(double, int);
using NumberList = double (*)(std::span<const double>);

}  // namespace

std::vector<DeskFunction> CoreFunctions() {
    return {
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
        Row("MakeLocale", MakeLocale),
    };
}

std::vector<DeskVariable> CoreVariables() {
    return {
        Variable("DisplayedMoment", DisplayedMoment),
        Variable("SavedMoment", SavedMoment),
        Variable("Increment", Increment),
        Variable("BusyCount", BusyCount),
        Variable("AlwaysToday", stepping::options.AlwaysToday),
        Variable("TempHourFormat", time_text::options.TempHourFormat),
        Variable("StepsBySolarYear", stepping::options.StepsBySolarYear),
        Constant("StepIndex", stepping::options.StepIndex),
        Constant("Locale", Locale),
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
}

}  // namespace horvanta
