#include "astro/crescents.h"
#include "astro/ephemeris.h"
#include "astro/ephemeris_files.h"
#include "astro/local_time.h"
#include "astro/lunar_phases.h"
#include "astro/moon.h"
#include "astro/moon_events.h"
#include "astro/sidereal.h"
#include "astro/sun.h"
#include "astro/sun_events.h"
#include "astro/timescales.h"
#include "astro/year_dates.h"
#include "desk_rows.h"

namespace horvanta {
namespace lunar {

std::string AnswerOf(const Apsis& apsis) { return RecordAnswer("moment distance", apsis.moment, apsis.distance); }

}  // namespace lunar

namespace ephemeris {

std::string AnswerOf(const Complaint& complaint) { return RecordAnswer("title text", complaint.title, complaint.text); }

}  // namespace ephemeris

namespace {

void SetEphemerisFolder(std::string_view folder) { ephemeris::SetFolders({std::filesystem::path(folder)}); }

/// A convention by its name.
const LunationConvention& ConventionOf(std::string_view name) {
    const auto found = std::ranges::find(LunationConventions, name, &LunationConvention::Name);
    if (found == LunationConventions.end()) throw BadLine("no such convention: " + std::string(name));
    return *found;
}

Moment LunationByName(double number, std::string_view convention) {
    return NumberedLunation(number, ConventionOf(convention));
}

}  // namespace

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
        PlaceRow("HorizonDipInUse", HorizonDipInUse),
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
        Row("SolarLongitudePassage", SolarLongitudePassage),
        Row("SolarAnomalyPassage", SolarAnomalyPassage),
        Row("lunar::Longitude", lunar::Longitude),
        Row("lunar::Latitude", lunar::Latitude),
        Row("lunar::Distance", lunar::Distance),
        Row("lunar::Declination", lunar::Declination),
        Row("lunar::RightAscension", lunar::RightAscension),
        PlaceRow("lunar::HourAngle", lunar::HourAngle),
        PlaceRow("lunar::Altitude", lunar::Altitude),
        PlaceRow("lunar::Parallax", lunar::Parallax),
        PlaceRow("lunar::TopocentricAltitude", lunar::TopocentricAltitude),
        PlaceRow("lunar::ObservedAltitude", lunar::ObservedAltitude),
        PlaceRow("lunar::Bearing", lunar::Bearing),
        Row("lunar::Phase", lunar::Phase),
        Row("lunar::Diameter", lunar::Diameter),
        Row("lunar::HorizonLift", lunar::HorizonLift),
        Row("lunar::LitFraction", lunar::LitFraction),
        Row("lunar::BrightLimbAngle", lunar::BrightLimbAngle),
        PlaceRow("lunar::ParallacticAngle", lunar::ParallacticAngle),
        Row("lunar::AscendingNode", lunar::AscendingNode),
        Row("lunar::DescendingNode", lunar::DescendingNode),
        Row("lunar::Perigee", lunar::Perigee),
        Row("lunar::Apogee", lunar::Apogee),
        Row("lunar::DistanceAtPerigee", lunar::DistanceAtPerigee),
        Row("lunar::DistanceAtApogee", lunar::DistanceAtApogee),
        Row("lunar::LongitudeAfter", lunar::LongitudeAfter),
        Row("lunar::AnomalyPassage", lunar::AnomalyPassage),
        Row("NthNewMoon", NthNewMoon),
        Row("LunationZero", LunationZero),
        Row("ApproxNthMoon", ApproxNthMoon),
        Row("NewMoonAfter", NewMoonAfter),
        Row("NewMoonBefore", NewMoonBefore),
        Row("NewMoonNearest", NewMoonNearest),
        Row("PhaseAfter", PhaseAfter),
        Row("PhaseBefore", PhaseBefore),
        Row("NewMoonEstimateTT", NewMoonEstimateTT),
        Row("NewMoonEstimateUT", NewMoonEstimateUT),
        Row("NewMoonAdjustTT", NewMoonAdjustTT),
        Row("NewMoonAdjustUT", NewMoonAdjustUT),
        Row("MeanNewMoonTT", MeanNewMoonTT),
        Row("MeanNewMoonUT", MeanNewMoonUT),
        Row("MSM_Atomic", MSM_Atomic),
        Row("MSM_Solar", MSM_Solar),
        Row("TTmomentToLunation", TTmomentToLunation),
        Row("UTmomentToLunation", UTmomentToLunation),
        Row("MomentToLunation", MomentToLunation),
        Row("MomentToMeanSynodicMonth", MomentToMeanSynodicMonth),
        Row("MSM_AtomicToLunation", MSM_AtomicToLunation),
        Row("MSM_SolarToLunation", MSM_SolarToLunation),
        Row("J2KtoRASC_Lunation", J2KtoRASC_Lunation),
        Row("RASCtoJ2K_Lunation", RASCtoJ2K_Lunation),
        Row("JumpMeanNewMoon", JumpMeanNewMoon),
        Row("NumberedLunation", LunationByName),
        Row("ephemeris::SetFolder", SetEphemerisFolder),
        Row("ephemeris::ListedSeason", ephemeris::ListedSeason),
        Row("ephemeris::ListedQuarter", ephemeris::ListedQuarter),
        Row("ephemeris::ListedConjunction", ephemeris::ListedConjunction),
        Row("ephemeris::ComplaintOfYear", ephemeris::ComplaintOfYear),
        Row("ephemeris::ComplaintOfLunation", ephemeris::ComplaintOfLunation),
        Row("SolexSolarLongitudeAfter", SolexSolarLongitudeAfter),
        Row("SolexLunarQuarter", SolexLunarQuarter),
        Row("LunarQuarter", LunarQuarter),
        PlaceRow("Moonrise", Moonrise),
        PlaceRow("Moonset", Moonset),
        PlaceRow("VisibleCrescent", VisibleCrescent),
        PlaceRow("VisibleOldCrescent", VisibleOldCrescent),
        PlaceRow("VisibleCrescentSearch", VisibleCrescentSearch),
        PlaceRow("VisibleOldCrescentSearch", VisibleOldCrescentSearch),
        PlaceRow("VisibleCrescentBefore", VisibleCrescentBefore),
        PlaceRow("VisibleCrescentAfter", VisibleCrescentAfter),
        PlaceRow("VisibleOldCrescentBefore", VisibleOldCrescentBefore),
        PlaceRow("VisibleOldCrescentAfter", VisibleOldCrescentAfter),
        PlaceRow("CrescentPassage", CrescentPassage),
        PlaceRow("OldCrescentPassage", OldCrescentPassage),
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
