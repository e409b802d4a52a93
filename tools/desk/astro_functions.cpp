#include "astro/local_time.h"
#include "astro/sidereal.h"
#include "astro/sun.h"
#include "astro/sun_events.h"
#include "astro/timescales.h"
#include "astro/year_dates.h"
#include "desk_rows.h"

namespace horvanta {

std::vector<DeskFunction> AstroFunctions() {
    return {
        Row("DeltaT", DeltaT),
        Row("SetDeltaTDisabled", SetDeltaTDisabled),
        Row("UniversalToTerrestrial", UniversalToTerrestrial),
        Row("TerrestrialToUniversal", TerrestrialToUniversal),
        PlaceRow("LocalToUniversal", LocalToUniversal),
        PlaceRow("UniversalToLocal", UniversalToLocal),
        PlaceRow("UniversalToStandard", UniversalToStandard),
        PlaceRow("StandardToUniversal", StandardToUniversal),
        PlaceRow("LocalToStandard", LocalToStandard),
        Row("EquationOfTime", EquationOfTime),
        PlaceRow("LocalToApparent", LocalToApparent),
        PlaceRow("ApparentToLocal", ApparentToLocal),
        PlaceRow("ApparentToUniversal", ApparentToUniversal),
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
        PlaceRow("SolarAltitude", SolarAltitude),
        Row("SolarHourAngle", SolarHourAngle),
        Row("SolarLongitudeAfter", SolarLongitudeAfter),
        Row("EstimateSolarLongitudeBefore", EstimateSolarLongitudeBefore),
        Row("SeasonMoment", SeasonMoment),
        Row("MeanSeasonMoment", MeanSeasonMoment),
        Row("SameLongitudeYearsLater", SameLongitudeYearsLater),
        Row("MomentDifference", MomentDifference),
        PlaceRow("HorizonDip", HorizonDip),
        PlaceRow("SunDepression", SunDepression),
        PlaceRow("SineOffset", SineOffset),
        PlaceRow("ApproxMomentOfDepression", ApproxMomentOfDepression),
        PlaceRow("MomentOfDepression", MomentOfDepression),
        PlaceRow("Dawn", Dawn),
        PlaceRow("Dusk", Dusk),
        PlaceRow("Sunrise", Sunrise),
        PlaceRow("Sunset", Sunset),
        PlaceRow("SolarMidday", SolarMidday),
        PlaceRow("SolarMidnight", SolarMidnight),
        PlaceRow("DayTemporalHour", DayTemporalHour),
        PlaceRow("NightTemporalHour", NightTemporalHour),
        PlaceRow("MorningTemporalHour", MorningTemporalHour),
        PlaceRow("AfternoonTemporalHour", AfternoonTemporalHour),
        PlaceRow("EveningTemporalHour", EveningTemporalHour),
        PlaceRow("PreDawnTemporalHour", PreDawnTemporalHour),
        PlaceRow("SundialToStandard", SundialToStandard),
        PlaceRow("RiseSetAzimuth", RiseSetAzimuth),
    };
}

std::vector<DeskVariable> AstroVariables() {
    return {
        Variable("UseElevation", horizon::options.UseElevation),
        Constant("DeltaTDisabled", DeltaTDisabled),
        Constant("DeltaTSerial", DeltaTSerial),
    };
}

}  // namespace horvanta
