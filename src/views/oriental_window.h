#pragma once

#include "calendars/oriental_text.h"
#include "core/controls.h"
#include "core/preferences.h"
#include "core/shell.h"
#include "views/window_row.h"

#include <array>

namespace horvanta {

/// The displayed moment in one of the lunisolar calendars of East Asia, each in colours of its own.
class OrientalWindow {
  public:
    explicit OrientalWindow(HorvantaMDI& frame);

    /// What the program has to know of it.
    WindowRow Row();

    /// Recomputes what is shown from the displayed moment and the options, and posts the events of its day.
    void Update();

    // Commands of the controls and of the menu.
    void CalChoice_Click(std::int32_t variant);
    void UseEnglish_Click();
    void SetCEyear(std::int32_t year);
    void SLatMidnight_Click();
    void Info_Click();

    // clang-format off
    Form form{"Chinese", "Oriental Lunisolar"};
    Label Dummy{form, "Dummy"};  ///< Shows nothing; holds the focus while nothing else should.
    Label TheOrientDate{form, "TheOrientDate", Tip("Chinese date"), Widest(" Year 10000, Leap roku-gatsu Month, Day 30 ")};
    Label SexYearLabel{form, "SexYearLabel", Caption("Year")};
    Label SexYear{form, "SexYear", Tip("Place and name of the year in the cycle of 60"), Widest("60/60 = 10-12 tsuchinoto/mizunoto-mi or bi/hitsuji, cycle 100")};
    Label SexMonthLabel{form, "SexMonthLabel", Caption("Month")};
    Label SexMonth{form, "SexMonth", Tip("Place and name of the month in the cycle of 60"), Widest("60/60 = 10-12 ki/tsuchinoto-mi or bi/hitsuji")};
    Label SexDayLabel{form, "SexDayLabel", Caption("Day")};
    Label SexDay{form, "SexDay", Tip("Place and name of the day in the cycle of 60"), Widest("60/60 = 10-12 ki/tsuchinoto-mi or bi/hitsuji")};
    Label SLatMidnight{form, "SLatMidnight", Tip("Click to copy with all digits"), Widest("Midnight Solar Longitude at Time Zone UT+7:45:40 = 359.9999°")};
    ChoiceList CalChoice{form, "CalChoice", Tip("Choose the national calendar"), Named("National calendar")};
    CheckBox UseEnglish{form, "UseEnglish", Caption("English"), Tip("Check for English names, clear for those of the calendar's own language")};
    Label LeapCheckbox{form, "LeapCheckbox", Tip("A leap year has 13 months, a common year 12"), Widest("Common year"), Named("Kind of year")};
    Button Info{form, "Info", Caption("Info")};
    // clang-format on

    /// Those of the calendar that is shown; the window keeps the others'.
    WindowColors colors{"", {Color::FromNumber(255), Color::FromNumber(65535)}, TheOrientDate};

  private:
    void HangHandlers();
    void ShowNames(const oriental::OrientDate& date);
    void ShowMidnight(const oriental::OrientDate& date);
    void WearColors();
    Settings StoredRows();
    Settings ColorRows();

    HorvantaMDI& frame_;
    std::int32_t worn_ = oriental::Chinese;  ///< The calendar whose colours are worn.
    std::array<ColorPair, 4> kept_;          ///< The colours of the calendars that are not.
};

}  // namespace horvanta
