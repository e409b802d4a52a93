#pragma once

#include "calendars/calendar_contract.h"
#include "calendars/gregorian.h"
#include "core/controls.h"
#include "core/shell.h"

namespace horvanta {

/// The displayed moment in the Gregorian and the ISO week calendar.
class GregorianWindow {
  public:
    explicit GregorianWindow(HorvantaMDI& frame);

    /// Recomputes every label from the displayed moment and posts the ISO events of its day.
    void Update();

    // For month grids: the Gregorian months, and the ISO year as 13 blocks of four weeks, the last of which takes
    // the leap week.
    static FixedDay ToFixed(std::int32_t year, std::int32_t month, std::int32_t day);
    static GridDate GetDate();
    static void SetMonthNames(ChoiceList& list, std::int32_t year);
    static void SetDayNames(DayNames& longNames, DayNames& shortNames);
    static FixedDay ToFixedAlt(std::int32_t year, std::int32_t month, std::int32_t day);
    static GridDate GetDateAlt();
    static void SetMonthNamesAlt(ChoiceList& list, std::int32_t year);
    static void SetDayNamesAlt(DayNames& longNames, DayNames& shortNames);
    static std::string CellTextAlt(const GridDate& shown, std::int32_t day);

    // Commands of the controls.
    void InfoGreg_Click();
    void isoInfo_Click();
    void GregCycleInfo_Click();
    void PickBackgroundColor();
    void PickForegroundColor();

    /// Colours the date labels, the ISO date in a shade of the colour.
    void SetColor(Color color, bool isBackground);

    // clang-format off
    Form form{"Gregorian", "Gregorian and ISO"};
    Label Dummy{form, "Dummy"};  ///< Shows nothing; holds the focus while no button should.
    Label GregorianDate{form, "GregorianDate", Tip("Gregorian date"), Widest("Wednesday, September 30, 10000 ")};
    Label GregCycleInfo{form, "GregCycleInfo", Tip("Click to copy cycle information to clipboard"), Widest("400th year of 22nd cycle AD")};
    Label DayNumInGregYear{form, "DayNumInGregYear", Tip("Gregorian day + remaining = year length"), Widest("Gregorian day 200+166=366")};
    Label Dominical{form, "Dominical", Tip("Dominical Letter(s) for this Gregorian Year"), Widest("DC")};
    Button InfoGreg{form, "InfoGreg", Caption("Gregorian info"), Tip("Click here for Gregorian Calendar information")};
    Label TheISOdate{form, "TheISOdate", Tip("ISO date (International Organization for Standardization)"), Widest("10000-W30-3 ")};
    Label isoOrdinalDay{form, "isoOrdinalDay", Tip("ISO day + remaining = year length"), Widest("ISO day 200+171=371")};
    Button isoInfo{form, "isoInfo", Caption("ISO info"), Tip("Click here for ISO Calendar information")};
    // clang-format on

  private:
    void ShowGregorianDate(const horvanta::GregorianDate& date);
    void PostEvents(const ISODate& date, const std::string& dateText);

    HorvantaMDI& frame_;
};

inline constexpr CalendarContract GregorianCalendar{"Gregorian", GregorianWindow::ToFixed, GregorianWindow::GetDate,
                                                    GregorianWindow::SetMonthNames, GregorianWindow::SetDayNames};
inline constexpr CalendarContract ISOCalendar{"ISO",
                                              GregorianWindow::ToFixedAlt,
                                              GregorianWindow::GetDateAlt,
                                              GregorianWindow::SetMonthNamesAlt,
                                              GregorianWindow::SetDayNamesAlt,
                                              GregorianWindow::CellTextAlt};

}  // namespace horvanta
