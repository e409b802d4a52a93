#pragma once

#include "calendars/quartane.h"
#include "core/controls.h"
#include "core/preferences.h"
#include "core/shell.h"
#include "views/window_row.h"

#include <cstddef>
#include <string>

namespace horvanta {

/// The displayed moment in the Quartane calendar, and the choice of the calendar's rule and layout.
class QuartaneWindow {
  public:
    explicit QuartaneWindow(HorvantaMDI& frame);

    /// What the program has to know of it.
    WindowRow Row();

    /// The rule and the layout.
    static Settings StoredRows();

    /// Recomputes everything from the displayed moment and the options, and posts the events of its day.
    void Update();

    // Commands of the controls.
    void QuaSoupMix_Click();
    void QuaMonths_Click();
    void QuaCycleInfo_Click();
    void QuaStatusGrid_Click(std::size_t row, std::size_t column);
    void InfoLeapRule_Click();
    void InfoQuaCal_Click();

    /// Chooses the rule, the weekday or the layout that has been selected.
    void LeapChoice_Click();
    void SetStartWeekday();
    void SetMonths(bool weeks);

    // The menu items of the leap week and of the middle of even cycles.
    void SetLeapWeek(bool standsAlone);
    void SetMiddle(bool middleLeapFirst);

    // clang-format off
    Form form{"Quartane", "Quartane454"};
    Label Dummy{form, "Dummy", Named("Quartane")};  ///< Shows nothing; holds the focus while nothing else should.
    Label QuartaneDateBox{form, "QuartaneDateBox", Widest("Wednesday, September 35, 10000 "), Named("Quartane date")};
    Label QuaCycleInfo{form, "QuaCycleInfo", Tip("Click to copy cycle information to clipboard"), Widest("1800th year of 22nd 1803-year cycle AD")};
    Grid QuaStatusGrid{form, "QuaStatusGrid", Tip("Click a number to copy it to clipboard"), Widest("200+171=371"), Named("Place in year, quarter and month")};
    ChoiceList LeapChoice{form, "LeapChoice", Tip("Choose the desired Leap Rule"), Widest("320/1803 = 320 symmetric spread leap years per 1803 year cycle"), Named("Leap Rule")};
    Label LeapCheckbox{form, "LeapCheckbox", Tip("A leap year has 53 weeks, a common year 52"), Widest("Common year"), Named("Kind of year")};
    Label MeanYearLabel{form, "MeanYearLabel", Caption("Mean Year Length ="), Tip("Click to copy the decimal fraction to clipboard")};
    Label FixedMeanYear{form, "FixedMeanYear", Widest("Northward Equinox Year"), Named("Mean year length")};
    Button InfoLeapRule{form, "InfoLeapRule", Caption("Leap Rule"), Tip("Click for information about the currently active Leap Rule")};
    GroupBox QuaMonths{form, "QuaMonths", Caption("Quarters: ")};
    OptionButton Qua454{form, "Qua454"};
    OptionButton Qua010{form, "Qua010"};
    Label StartOnLabel{form, "StartOnLabel", Caption("Start On:")};
    ChoiceList QuaStartOn{form, "QuaStartOn", Tip("Choose the Weekday to start every Quarter"), Named("Start On")};
    CheckBox QuaSoupMix{form, "QuaSoupMix", Caption("Experiment"), Tip("If checkmarked, activates the full set of experimental Quartane Calendar options")};
    Button InfoQuaCal{form, "InfoQuaCal", Caption("Info")};
    // clang-format on
    WindowColors colors{"S", {Color::FromNumber(16706033), Color::FromNumber(0)}, QuartaneDateBox, {{QuaCycleInfo}}};

  private:
    void HangMenus();
    void ShowDate(const quartane::QuaDate& date);
    void ShowCycle(const quartane::QuaDate& date);
    void ShowOptions();
    void ShowLists();
    void SetQuaTitle();
    void NameJumps();
    void Refresh();

    HorvantaMDI& frame_;
};

}  // namespace horvanta
