#include "locale/presets.h"

#include "core/numerics.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <vector>

namespace horvanta {
namespace {

/// Degrees, minutes and seconds; those of a negative angle take their sign from the degrees.
struct Angle {
    double degrees;
    double minutes;
    double seconds;

    double InDegrees() const { return DegMinSec(degrees, minutes, seconds); }
};

/// What sets a place apart from the others.
enum Habits { PlainHabits = 0, NoDaylightTime = 1, LocalMeanTime = 2 };

struct Preset {
    std::string_view name;
    std::string_view location;
    Angle latitude;
    Angle longitude;
    double elevation;  ///< Metres.
    double zone;       ///< Hours.
    int habits = PlainHabits;
};

constexpr double greenwichFeet = 153.83;

// clang-format off
constexpr Preset presets[] = {
    {"Alexandria", "Alexandria, Egypt", {31, 13, 0}, {29, 58, 0}, 7, 2},
    {"Apple Campus 2", "Cupertino, CA", {37, 20, 5}, {-122, 0, 33}, 50.1, -8},
    {"Babylon", "Babylon, Iraq", {32, 33, 11}, {44, 25, 15}, 100, 3, NoDaylightTime | LocalMeanTime},
    {"Beijing", "Beijing, China", {39, 55, 0}, {116, 25, 0}, 43.5, 8, NoDaylightTime},
    {"Bogotá", "Bogotá, Colombia", {4, 34, 0}, {-74, 0, 0}, 2650, -5, NoDaylightTime},
    {"CFS Alert", "Canadian Forces Station Alert, Nunavut", {82, 29, 54}, {-62, 20, 22}, 0, -5},
    {"Copenhagen", "København, Denmark", {55, 41, 0}, {12, 34, 0}, 0, 1},
    {"Farmington Hills", "Farmington Hills, Michigan", {42, 30, 59.4}, {-83, 20, 41.4}, 263, -5},
    {"Greenwich", "Greenwich Observatory, UK", {51, 28, 40.01}, {0, 0, 0}, FeetToMeters(greenwichFeet), 0, NoDaylightTime},
    {"Jerusalem", "Jerusalem, Israel", {31, 46, 40}, {35, 14, 4}, 800, 2},
    {"N-E Mid", "Nile-Euphrates Midpoint", {31, 46, 40}, {35, 14, 4}, 800, 2.6166666666666667, NoDaylightTime | LocalMeanTime},
    {"Lima", "Lima, Peru", {-12, 0, 0}, {-77, 0, 0}, 0, -5, NoDaylightTime},
    {"Limassol", "Limassol, Cyprus", {34, 42, 0}, {33, 1, 0}, 0, 2},
    {"Mecca", "Mecca, Saudi Arabia (Kaaba)", {21, 25, 21}, {39, 49, 34}, 298, 3, NoDaylightTime},
    {"Melbourne", "Melbourne Harbour Control", {-37, 49, 15}, {144, 55, 57}, 0, 10},
    {"Montreal", "Montreal, Quebec", {45, 29, 31.79}, {-73, 38, 51.443}, 53, -5},
    {"Paris", "Paris Observatory, France", {48, 50, 11}, {2, 20, 11.7}, 27, 1, NoDaylightTime | LocalMeanTime},
    {"Reykjavik", "Reykjavik, Iceland", {64, 10, 0}, {-21, 57, 0}, 0, 0, NoDaylightTime},
    {"Tehran", "Azadi Tower, Tehran, Iran", {35, 41, 59}, {51, 20, 16.5}, 1182.86, 3.5, NoDaylightTime},
    {"Temple of Zeus", "Olympia, Greece", {37, 38, 16}, {21, 37, 48}, 69, 2, NoDaylightTime | LocalMeanTime},
    {"Times Square", "Times Square, Manhattan, USA", {40, 45, 28.7}, {-73, 59, 7.9}, 35, -5},
    {"Urbana", "Urbana, Illinois", {40, 6, 0}, {-88, 12, 0}, 225, -6},
    {"Vatican", "Vatican City", {41, 54, 8.5}, {12, 27, 20}, 50, 1},
    {"Yellowknife", "Yellowknife, NWT, Canada", {62, 27, 20}, {-114, 21, 0}, 206, -7},
    {"Zero", "Zero Milestone, Washington, DC", {38, 53, 46}, {-77, 2, 11.573}, 8.382, -5},
    {"Tokyo", "Tokyo, Japan", {35, 41, 6}, {139, 45, 5}, 24, 9, NoDaylightTime},
    {"Seoul", "Seoul, Korea", {37, 34, 0}, {126, 58, 0}, 0, 9, NoDaylightTime},
    {"Hanoi", "Hanoi, Viet Nam", {21, 2, 0}, {105, 51, 0}, 12, 7, NoDaylightTime},
};
// clang-format on

LocaleRecord RecordOf(const Preset& preset) {
    return MakeLocale(preset.name, preset.location, preset.latitude.InDegrees(), preset.longitude.InDegrees(),
                      preset.elevation, preset.zone, (preset.habits & NoDaylightTime) != 0, true,
                      (preset.habits & LocalMeanTime) != 0);
}

/// Moves a record along its parallel, and leaves its kilometres as they were.
void MoveTo(LocaleRecord& place, double longitude) {
    place.Longitude = longitude;
    place.LongRad = Radians(longitude);
}

/// The midpoint keeps a time of its own, 2 hours 37 minutes, that is not quite that of its longitude.
void FinishMidpoint(LocaleRecord& midpoint, double zone) {
    MoveTo(midpoint, midpoint.Longitude + 4);
    midpoint.Zone = zone;
}

std::vector<LocaleRecord> MakeLocales() {
    std::vector<LocaleRecord> locales;
    std::ranges::transform(presets, std::back_inserter(locales), RecordOf);
    const auto midpoint = std::ranges::find(presets, "N-E Mid", &Preset::name) - std::begin(presets);
    FinishMidpoint(locales[static_cast<std::size_t>(midpoint)], presets[midpoint].zone);
    LocaleRecord meridian = *std::ranges::find(locales, "Tehran", &LocaleRecord::Name);
    MoveTo(meridian, 52.5);
    locales.push_back(std::move(meridian));
    return locales;
}

}  // namespace

std::span<const LocaleRecord> Locales() {
    static const std::vector<LocaleRecord> locales = MakeLocales();
    return locales;
}

const LocaleRecord* FindLocale(std::string_view name) {
    const auto locales = Locales();
    const auto found = std::ranges::find(locales, name, &LocaleRecord::Name);
    return found == locales.end() ? nullptr : &*found;
}

const LocaleRecord& PresetLocale(std::string_view name) {
    const LocaleRecord* found = FindLocale(name);
    if (!found) throw std::out_of_range("no preset place has this name: " + std::string(name));
    return *found;
}

const LocaleRecord& TehranMeridian() { return Locales().back(); }

}  // namespace horvanta
