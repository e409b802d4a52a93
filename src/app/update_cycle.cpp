#include "app/update_cycle.h"

#include "app/horvanta.h"
#include "core/day_events.h"

namespace horvanta {

void RunUpdatePass(Horvanta& program) {
    day_events::Clear();
    program.timeAstro.ShowMoment();
    if (program.gregorian.form.visible) program.gregorian.Update();
}

}  // namespace horvanta
