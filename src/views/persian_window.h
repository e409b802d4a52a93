#pragma once

#include "core/controls.h"
#include "core/shell.h"
#include "views/window_row.h"

namespace horvanta {

/// The displayed moment in the astronomical Persian calendar.
class PersianWindow {
  public:
    explicit PersianWindow(HorvantaMDI& frame);

    /// What the program has to know of it.
    WindowRow Row();

    /// Recomputes what is shown from the displayed moment and posts the events of its day.
    void Update();

    // Commands of the controls.
    void Info_Click();

    // clang-format off
    Form form{"Persian", "Persian (modern astronomical)"};
    Label Dummy{form, "Dummy", Named("Persian")};  ///< Shows nothing; holds the focus while no button should.
    Label ThePersianDate{form, "ThePersianDate", Tip("Persian date"), Widest(" Panj-shanbeh, 30 Ordibehesht -7000 BPE")};
    Label LeapCheckbox{form, "LeapCheckbox", Tip("A Persian leap year has 366 days"), Widest("Common year"), Named("Kind of year")};
    Button Info{form, "Info", Caption("Info"), Named("Persian info"), Tip("Click here for Persian Calendar information")};
    // clang-format on
    WindowColors colors{"P", {Color::FromNumber(10220253), Color::FromNumber(0)}, ThePersianDate};

  private:
    HorvantaMDI& frame_;
};

}  // namespace horvanta
