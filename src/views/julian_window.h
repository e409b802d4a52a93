#pragma once

#include "calendars/roman.h"
#include "core/controls.h"
#include "core/preferences.h"
#include "core/shell.h"
#include "views/window_row.h"

namespace horvanta {

/// The displayed moment in the Julian or Revised Julian calendar, as a Roman date and as an Olympiad.
class JulianWindow {
  public:
    explicit JulianWindow(HorvantaMDI& frame);

    /// What the program has to know of it.
    WindowRow Row();

    /// Recomputes every label from the displayed moment and posts the Roman events of its day.
    void Update();

    /// The years that the user may choose, and the rules.
    static Settings StoredRows();

    /// Tells since when the years of Rome are counted.
    void SetAUC();

    /// Names the Olympiads of the displayed year and tells since when they are counted.
    void SetOSY();

    // Commands of the controls and of the menu.
    void Revise_Click();
    void UseAUC_Click();
    void Info_Click();
    void JYRF_Click();
    void OSY_Click();

    // clang-format off
    Form form{"Julian", "Julian and Roman"};
    Label Dummy{form, "Dummy", Named("Julian and Roman")};  ///< Shows nothing; holds the focus while no button should.
    Label TheJulianDate{form, "TheJulianDate", Tip("Julian date"), Widest("Wednesday, September 30, 10000 AD ")};
    Label TheRomanDate{form, "TheRomanDate", Tip("Roman date"), Widest(" Mercurii dies, ante diem XVIII kalendas September MMDCCLXXXVIII AUC")};
    Label DominicalLabel{form, "DominicalLabel", Caption("Dominical letter")};
    Label Dominical{form, "Dominical", Tip("Dominical Letter(s) for this Julian Year"), Widest("DC")};
    CheckBox Revise{form, "Revise", Caption("Revise"), Tip("Use Revised Julian leap rule (leap 2nd and 6th century years per 900 years)")};
    CheckBox UseAUC{form, "UseAUC", Caption("AUC")};
    Button Info{form, "Info", Caption("Info"), Named("Julian and Roman info"), Tip("Click here for Julian and Roman calendar information")};
    Label OlympiadLabel{form, "OlympiadLabel", Caption("Olympiad")};
    Label OlympiadCycleDecimal{form, "OlympiadCycleDecimal", Tip("Olympiad Cycle Number"), Widest("2000")};
    Label OlympiadYearDecimal{form, "OlympiadYearDecimal", Tip("Year# in Olympiad Cycle"), Widest("4")};
    Label OlympiadCycleRoman{form, "OlympiadCycleRoman", Tip("Olympiad Cycle (Roman numerals)"), Widest("CCLXXXVIII")};
    Label OlympiadYearRoman{form, "OlympiadYearRoman", Tip("Year# in Olympiad Cycle (Roman numerals)"), Widest("III")};
    // clang-format on
    WindowColors colors{
        "J", {Color::FromNumber(14680063), Color::FromNumber(0)}, TheJulianDate, {{TheRomanDate, 48, "R"}}};

  private:
    void HangHandlers();
    void ShowCaption();
    void ShowOlympiad(const JulianDate& date);
    void CopyPair(const Label& cycle, const Label& year);

    HorvantaMDI& frame_;
};

}  // namespace horvanta
