#include "app/event_searches.h"

#include "app/lunar_searches.h"
#include "astro/crescents.h"
#include "astro/lunar_phases.h"
#include "astro/moon.h"
#include "astro/sun.h"
#include "astro/year_dates.h"
#include "calendars/easter.h"
#include "calendars/oriental.h"
#include "calendars/quartane_year_start.h"
#include "hebrew/molad.h"
#include "lunar/tithi.h"
#include "lunar/yerm.h"

#include <algorithm>
#include <array>

namespace horvanta {
namespace {

constexpr double besselianLongitude = 280;

Moment JumpSolarEvent(Moment from, int direction) {
    std::array<Moment, 4> seasons{0, 90, 180, 270};
    for (Moment& season : seasons) season = SolarLongitudePassage(from, season, direction);
    return direction > 0 ? std::ranges::min(seasons) : std::ranges::max(seasons);
}

/// The whole year next to a date of years. At a new year the date carries the noise of its conversion, up to some
/// minutes.
double WholeYearBeside(double date, int direction) {
    const double year = Round(date, 5);
    return direction > 0 ? Floor(year) + 1 : Ceiling(year) - 1;
}

Moment JumpRAYNewYear(Moment from, int direction) {
    return RAYDateToMoment(WholeYearBeside(MomentToRAYDate(from), direction));
}

Moment JumpOrbitalNewYear(Moment from, int direction) {
    return OrbitalDateToMoment(WholeYearBeside(MomentToOrbitalDate(from), direction));
}

// clang-format off
constexpr EventSearch searches[] = {
    {MenuEvent::LunarEvent, JumpLunarEvent},
    {MenuEvent::NewMoon, JumpNewMoon},
    {MenuEvent::FirstNewCrescent, [](Moment from, int direction) { return CrescentPassage(from, direction); }},
    {MenuEvent::FirstQuarterMoon, [](Moment from, int direction) { return JumpQuarter(from, 90, direction); }},
    {MenuEvent::FullMoon, [](Moment from, int direction) { return JumpQuarter(from, 180, direction); }},
    {MenuEvent::LastQuarterMoon, [](Moment from, int direction) { return JumpQuarter(from, 270, direction); }},
    {MenuEvent::LastOldCrescent, [](Moment from, int direction) { return OldCrescentPassage(from, direction); }},
    {MenuEvent::VedicTithi, JumpTithi},
    {MenuEvent::MeanNewMoon, JumpMeanNewMoon},
    {MenuEvent::MeanPerigee, [](Moment from, int direction) { return lunar::AnomalyPassage(from, 0, direction); }},
    {MenuEvent::MeanApogee, [](Moment from, int direction) { return lunar::AnomalyPassage(from, 180, direction); }},
    {MenuEvent::Yerm, JumpYerm},
    {MenuEvent::YermEra, JumpYermEra},
    {MenuEvent::LeapWeek, quartane::JumpLeapWeek},
    {MenuEvent::QuaNewYearMoment, quartane::JumpNYmoment},
    {MenuEvent::QuaLeapCycle, quartane::JumpQuaCycle},
    {MenuEvent::RotationAdjustedNewYear, JumpRAYNewYear},
    {MenuEvent::MeanOrbitalNewYear, JumpOrbitalNewYear},
    {MenuEvent::BesselianNewYear, [](Moment from, int direction) { return SolarLongitudePassage(from, besselianLongitude, direction); }},
    {MenuEvent::SolarEvent, JumpSolarEvent},
    {MenuEvent::NorthwardEquinox, [](Moment from, int direction) { return SolarLongitudePassage(from, 0, direction); }},
    {MenuEvent::NorthSolstice, [](Moment from, int direction) { return SolarLongitudePassage(from, 90, direction); }},
    {MenuEvent::SouthwardEquinox, [](Moment from, int direction) { return SolarLongitudePassage(from, 180, direction); }},
    {MenuEvent::SouthSolstice, [](Moment from, int direction) { return SolarLongitudePassage(from, 270, direction); }},
    {MenuEvent::MeanPerihelion, [](Moment from, int direction) { return SolarAnomalyPassage(from, 0, direction); }},
    {MenuEvent::MeanAphelion, [](Moment from, int direction) { return SolarAnomalyPassage(from, 180, direction); }},
    {MenuEvent::ChineseNewYear, oriental::JumpNewYear},
    {MenuEvent::Easter, JumpEaster},
    {MenuEvent::UniformEaster, JumpUniformEaster},
    {MenuEvent::OrthodoxEaster, JumpOrthoEaster},
    {MenuEvent::FixedEaster, quartane::JumpFixedEaster},
    {MenuEvent::MoladMoment, JumpMolad},
};
// clang-format on

}  // namespace

const EventSearch* FindEventSearch(MenuEvent event) {
    const auto* found = std::ranges::find(searches, event, &EventSearch::event);
    return found == std::end(searches) ? nullptr : found;
}

}  // namespace horvanta
