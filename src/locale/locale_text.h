#pragma once

#include "core/locale.h"

#include <cstdint>
#include <string>
#include <string_view>

/// What is said of places.
namespace horvanta {

/// What the scale of the displayed moment is called: "Universal", or "Atomic" while Delta T is off.
std::string_view ScaleName();

/// A direction in degrees by the points of the compass: "True NE" on one of the eight, otherwise how far it lies from
/// the nearest toward a neighbour, "10° S of E".
std::string CompassPoint(double degrees);

/// A zone by its hours east of Universal Time, "UT-05:00".
std::string ZoneText(double hours, bool toTheSecond = false);

/// A place in a line, with its elevation where `UseElevation` counts it, and its zone.
std::string LocaleSummary(const LocaleRecord& place);

/// What changes by moving from one place to another: bearing, time zone and distances, and the lengths of a degree at
/// the new one.
std::string LocaleChangeReport(const LocaleRecord& from, const LocaleRecord& to);

namespace web_map {
struct Options {
    std::int32_t MapIndex = 1;  ///< The map that shows places, by its number in the menu, from 1.
    bool operator==(const Options&) const = default;
};
inline Options options;
}  // namespace web_map

/// Whether links to a web map can be made, by its number.
bool hasWebMap(std::int32_t index);

/// A link to a place on the chosen web map; for web pages with `html` the whole anchor. Empty for a map that has no
/// form of link.
std::string MapLink(const LocaleRecord& place, bool html);

}  // namespace horvanta
