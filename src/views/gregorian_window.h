#pragma once

#include "calendars/gregorian.h"
#include "core/controls.h"
#include "core/shell.h"
#include "views/window_row.h"

namespace horvanta {

/// The displayed moment in the Gregorian and the ISO week calendar.
class GregorianWindow {
  public:
    explicit GregorianWindow(HorvantaMDI& frame);

    /// What the program has to know of it.
    WindowRow Row();

    /// Recomputes every label from the displayed moment and posts the ISO events of its day.
    void Update();

    // Commands of the controls.
    void InfoGreg_Click();
    void isoInfo_Click();
    void GregCycleInfo_Click();

    // clang-format off
    Form form{"Gregorian", "Gregorian and ISO"};
    Label Dummy{form, "Dummy", Named("Gregorian and ISO")};  ///< Shows nothing; holds the focus while no button should.
    Label GregorianDate{form, "GregorianDate", Tip("Gregorian date"), Widest("Wednesday, September 30, 10000 ")};
    Label GregCycleInfo{form, "GregCycleInfo", Tip("Click to copy cycle information to clipboard"), Widest("400th year of 22nd cycle AD")};
    Label DayNumInGregYear{form, "DayNumInGregYear", Tip("Gregorian day + remaining = year length"), Widest("Gregorian day 200+166=366")};
    Label DominicalLabel{form, "DominicalLabel", Caption("Dominical letter")};
    Label Dominical{form, "Dominical", Tip("Dominical Letter(s) for this Gregorian Year"), Widest("DC")};
    Button InfoGreg{form, "InfoGreg", Caption("Info"), Named("Gregorian info"), Tip("Click here for Gregorian Calendar information")};
    Label TheISOdate{form, "TheISOdate", Tip("ISO date (International Organization for Standardization)"), Widest("10000-W30-3 ")};
    Label isoOrdinalDay{form, "isoOrdinalDay", Tip("ISO day + remaining = year length"), Widest("ISO day 200+171=371")};
    Button isoInfo{form, "isoInfo", Caption("Info"), Named("ISO info"), Tip("Click here for ISO Calendar information")};
    // clang-format on
    WindowColors colors{"G",
                        {Color::FromNumber(12642289), Color::FromNumber(0)},
                        GregorianDate,
                        {{GregCycleInfo}, {TheISOdate, 48, "I"}}};

  private:
    void ShowGregorianDate(const horvanta::GregorianDate& date);

    HorvantaMDI& frame_;
};

}  // namespace horvanta
