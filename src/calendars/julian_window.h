#pragma once

#include "calendars/calendar_contract.h"
#include "calendars/julian.h"
#include "calendars/roman.h"
#include "core/controls.h"
#include "core/shell.h"

#include <optional>
#include <string>

namespace horvanta {

/// The displayed moment in the Julian or Revised Julian calendar, as a Roman date and as an Olympiad.
class JulianWindow {
  public:
    explicit JulianWindow(HorvantaMDI& frame);

    /// Recomputes every label from the displayed moment and posts the Roman events of its day.
    void Update();

    /// "Julian", or "Revised Julian" under that rule.
    static std::string CalendarName();

    // For month grids: the Julian months, and the same with Latin names, never by the revised rule. Years are those of
    // the Christian era or since Rome, as the window shows them. With years since Rome the length of February follows
    // the divisibility of that number.
    static FixedDay ToFixed(std::int32_t year, std::int32_t month, std::int32_t day);
    static GridDate GetDate();
    static void SetMonthNames(ChoiceList& list, std::int32_t year);
    static void SetDayNames(DayNames& longNames, DayNames& shortNames);
    static FixedDay ToFixedAlt(std::int32_t year, std::int32_t month, std::int32_t day);
    static GridDate GetDateAlt();
    static void SetMonthNamesAlt(ChoiceList& list, std::int32_t year);
    static void SetDayNamesAlt(DayNames& longNames, DayNames& shortNames);

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
    void PickBackgroundColor();
    void PickForegroundColor();

    /// Colours the date labels, the Roman date in a shade of the colour.
    void SetColor(Color color, bool isBackground);

    // clang-format off
    Form form{"Julian", "Julian and Roman"};
    Label Dummy{form, "Dummy"};  ///< Shows nothing; holds the focus while no button should.
    Label TheJulianDate{form, "TheJulianDate", Tip("Julian date"), Widest("Wednesday, September 30, 10000 AD ")};
    Label TheRomanDate{form, "TheRomanDate", Tip("Roman date"), Widest(" Mercurii dies, ante diem XVIII kalendas September MMDCCLXXXVIII AUC")};
    Label Dominical{form, "Dominical", Tip("Dominical Letter(s) for this Julian Year"), Widest("DC")};
    CheckBox Revise{form, "Revise", Caption("Revise"), Tip("Use Revised Julian leap rule (leap 2nd and 6th century years per 900 years)")};
    CheckBox UseAUC{form, "UseAUC", Caption("AUC")};
    Button Info{form, "Info", Caption("info"), Tip("Click here for Julian and Roman calendar information")};
    Label OlympiadLabel{form, "OlympiadLabel", Caption("Olympiad")};
    Label OlympiadCycleDecimal{form, "OlympiadCycleDecimal", Tip("Olympiad Cycle Number"), Widest("2000")};
    Label OlympiadYearDecimal{form, "OlympiadYearDecimal", Tip("Year# in Olympiad Cycle"), Widest("4")};
    Label OlympiadCycleRoman{form, "OlympiadCycleRoman", Tip("Olympiad Cycle (Roman numerals)"), Widest("CCLXXXVIII")};
    Label OlympiadYearRoman{form, "OlympiadYearRoman", Tip("Year# in Olympiad Cycle (Roman numerals)"), Widest("III")};
    // clang-format on

  private:
    void HangHandlers();
    void ShowCaption();
    void ShowOlympiad(const JulianDate& date);
    void PostEvents(const RomanDate& date);
    void CopyPair(const Label& cycle, const Label& year);

    HorvantaMDI& frame_;
};

inline constexpr CalendarContract JulianCalendar{"Julian",
                                                 JulianWindow::ToFixed,
                                                 JulianWindow::GetDate,
                                                 JulianWindow::SetMonthNames,
                                                 JulianWindow::SetDayNames,
                                                 nullptr,
                                                 HasNoYear0,
                                                 JulianWindow::CalendarName};
inline constexpr CalendarContract RomanCalendar{"Roman",
                                                JulianWindow::ToFixedAlt,
                                                JulianWindow::GetDateAlt,
                                                JulianWindow::SetMonthNamesAlt,
                                                JulianWindow::SetDayNamesAlt,
                                                nullptr,
                                                HasNoYear0};

}  // namespace horvanta
