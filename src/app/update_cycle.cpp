#include "app/update_cycle.h"

#include "app/horvanta.h"
#include "core/day_events.h"
#include "core/moment.h"
#include "locale/locale.h"

namespace horvanta {
namespace {

/// While passes are waiting, as under a held key, the costly ones of all fields are left to the last.
bool isLastPass() { return UpdateDepth < 2; }

}  // namespace

void RunUpdatePass(Horvanta& program) {
    TimeAstro& time = program.timeAstro;
    day_events::Clear();
    if (program.quartane.form.visible) program.quartane.Update();
    if (!Locale.NoDST) time.fields.SetDSTcolour();
    time.ShowMoment();
    if (isLastPass() && ShowsDawnDusk) time.fields.ShowDay();
    program.userLocales.SetCopyLocToolText();
    if (program.gregorian.form.visible) program.gregorian.Update();
    if (program.persian.form.visible) program.persian.Update();
    if (program.julian.form.visible) program.julian.Update();
    if (isLastPass()) time.fields.ShowAstronomy();
    if (program.monthly.form.visible) program.monthly.Update();
}

}  // namespace horvanta
