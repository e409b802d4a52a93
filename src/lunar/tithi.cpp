#include "lunar/tithi.h"

#include "astro/lunar_phases.h"
#include "astro/moon.h"
#include "core/moment.h"

#include <cmath>
#include <string_view>

namespace horvanta {
namespace {

constexpr double degreesOfTithi = 12;
constexpr int tithisOfHalf = 15;

constexpr std::string_view tithiNames[] = {
    "Amavasya (new)", "Prathama", "Dvitiya", "Tritiya", "Chaturthi", "Panchami",  "Shashti",    "Saptami",
    "Ashtami",        "Navami",   "Dasami",  "Ekadasi", "Dvadasi",   "Trayodasi", "Chaturdasi", "Purnima (full)"};

}  // namespace

/// The last tithi of the waning half is that of the new Moon.
std::string VedicTithi(double phase) {
    const int tithi = WholeNumber(Quotient(Degrees(phase), degreesOfTithi));
    const bool waning = tithi >= tithisOfHalf;
    const int number = tithi % tithisOfHalf + 1;
    const int name = waning && number == tithisOfHalf ? 0 : number;
    return std::string("Vedic ") + (waning ? "Krishna" : "Sukla") + " Paksha Tithi " + std::to_string(number) + " = " +
           std::string(tithiNames[name]);
}

Moment JumpTithi(Moment from, int direction) {
    const double passed = Degrees(Round(lunar::Phase(from), 3)) / degreesOfTithi;
    const double reached = passed + direction;
    const bool atStart = passed == Floor(passed);
    const double count = atStart ? reached : direction > 0 ? Floor(reached) : Ceiling(reached);
    const double degrees = Degrees(count * degreesOfTithi);
    return direction > 0 ? PhaseAfter(from, degrees) : PhaseBefore(from, degrees);
}

Moment JumpCycles(Moment from, double cycles) {
    constexpr double early = 10;  // days
    const double fraction = std::fabs(cycles) - Floor(std::fabs(cycles));
    const double phase = lunar::Phase(from);
    const double degrees = fraction == 0 ? phase : Degrees(phase + fraction * 360 * Sign(cycles));
    return PhaseAfter(ClampToRange(from + MeanSynodicMonth * cycles - early), degrees);
}

}  // namespace horvanta
