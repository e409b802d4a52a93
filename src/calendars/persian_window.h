#pragma once

#include "calendars/calendar_contract.h"
#include "calendars/persian.h"
#include "core/controls.h"
#include "core/shell.h"

namespace horvanta {

/// The displayed moment in the astronomical Persian calendar.
class PersianWindow {
  public:
    explicit PersianWindow(HorvantaMDI& frame);

    /// Recomputes what is shown from the displayed moment and posts the events of its day.
    void Update();

    // For month grids, whose first column is Saturday.
    static FixedDay ToFixed(std::int32_t year, std::int32_t month, std::int32_t day);
    static GridDate GetDate();
    static void SetMonthNames(ChoiceList& list, std::int32_t year);
    static void SetDayNames(DayNames& longNames, DayNames& shortNames);

    // Commands of the controls.
    void Info_Click();
    void PickBackgroundColor();
    void PickForegroundColor();
    void SetColor(Color color, bool isBackground);

    // clang-format off
    Form form{"Persian", "Persian (modern astronomical)"};
    Label Dummy{form, "Dummy"};  ///< Shows nothing; holds the focus while no button should.
    Label ThePersianDate{form, "ThePersianDate", Tip("Persian date"), Widest(" Panj-shanbeh, 30 Ordibehesht -7000 BPE")};
    CheckBox LeapCheckbox{form, "LeapCheckbox", Caption("Leap year"), Tip("Checked if this Persian year has 366 days")};
    Button Info{form, "Info", Caption("Persian info"), Tip("Click here for Persian Calendar information")};
    // clang-format on

  private:
    void PostEvents(const PersianDate& date) const;

    HorvantaMDI& frame_;
    bool isLeap_ = false;  ///< The displayed year is one.
};

inline constexpr CalendarContract PersianCalendar{"Persian",
                                                  PersianWindow::ToFixed,
                                                  PersianWindow::GetDate,
                                                  PersianWindow::SetMonthNames,
                                                  PersianWindow::SetDayNames,
                                                  nullptr,
                                                  HasNoYear0};

}  // namespace horvanta
