#include "app/jumps.h"

#include "core/moment.h"

namespace horvanta {

void MenuJumpToToday_Click() {
    DisplayedMoment = Today();
    UpdateStatus();
}

void SaveThisMoment_Click() {
    SavedMoment = DisplayedMoment;
    UpdateStatus();
}

void JumpToSaved_Click() {
    DisplayedMoment = SavedMoment;
    UpdateStatus();
}

}  // namespace horvanta
