#include "hebrew/hebrew_modes.h"

#include "core/numerics.h"

namespace horvanta {

bool isHebrewLeapYear353(std::int32_t year) { return Modulo(130.0 * year + 130 + 139, 353) < 130; }

double ElapsedMonths353(std::int32_t year, std::int32_t month) {
    const double yearOfTishrei = month < 7 ? year + 1.0 : year;
    return Quotient(yearOfTishrei * 4366 - 4097, 353) + (month - 7.0);
}

}  // namespace horvanta
