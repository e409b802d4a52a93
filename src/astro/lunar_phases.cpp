#include "astro/lunar_phases.h"

#include "astro/timescales.h"
#include "core/numbering.h"

namespace horvanta {

Moment MeanNewMoonTT(double L) {
    const double estimate = J2000 + 5.097731481481482 + 29.53058883101852 * L;
    const double adjust = 0.0000894568672922258 + 0.0000000286701024542566 * L + 0.000000000100511461418006 * L * L -
                          0.000000000000000077991026404289 * L * L * L +
                          0.000000000000000000000359624328373419 * L * L * L * L;
    return estimate + adjust;
}

Moment MeanNewMoonUT(double lunation) { return TerrestrialToUniversal(MeanNewMoonTT(lunation)); }

double TTmomentToLunation(Moment terrestrial) {
    const double y = (terrestrial - J2000) / 365.2421875;
    return -0.172522031152115 + 12.3682665144699 * y - 0.000000000536794608763103 * y * y;
}

double UTmomentToLunation(Moment universal) { return TTmomentToLunation(UniversalToTerrestrial(universal)); }

double MomentToLunation(Moment universal) {
    return DeltaTDisabled ? TTmomentToLunation(universal) : UTmomentToLunation(universal);
}

double MomentToMeanSynodicMonth(Moment x) {
    return 29.530595186866936 - 0.00000000001084689700000392 * (x - GregorianEpoch + 1);
}

}  // namespace horvanta
