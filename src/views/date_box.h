#pragma once

#include "core/controls.h"
#include "core/numbering.h"
#include "core/shell.h"
#include "views/window_row.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace horvanta {

namespace date_box {
struct Options {
    std::int32_t Calendar = 1;  ///< The one that was used last, by its place in the list of all, from 0.
    bool operator==(const Options&) const = default;
};
inline Options options;
}  // namespace date_box

/// The box that takes a date of any calendar, as a line of text or part by part, and goes there. What stands in it
/// counts at once: below it tells the day, or why it is none.
class DateBox {
  public:
    explicit DateBox(HorvantaMDI& frame);

    /// What the program has to know of it.
    WindowRow Row();

    /// Takes a calendar into its place of the list.
    void Offer(const GridCalendar& calendar);

    /// Shows the displayed moment in Universal Time, in the calendar used last.
    void Open();

    /// The calendars, the numbering or the clocks of the place may have changed.
    void Update();

    // Commands of the buttons. Where there is no date to go to, OK tells why.
    void OK_Click();
    void Cancel_Click();

    // clang-format off
    Form form{"DateBox", "Go to Date"};
    Label DateTextLabel{form, "DateTextLabel", Caption("Te&xt")};
    TextField DateText{form, "DateText", Named("Date as text")};
    Label HowRead{form, "HowRead"};
    Label CalendarLabel{form, "CalendarLabel", Caption("&Calendar")};
    ChoiceList Calendar{form, "Calendar", Named("Calendar")};
    Label YearLabel{form, "YearLabel", Caption("&Year")};
    TextField Year{form, "Year", Tip("Change using up/down arrow or up/down page keys"), Widest("10000 PUC"), Named("Year")};
    UpDown YearUpDown{form, "YearUpDown", Tip("Change the year"), Named("Year")};
    Label MonthLabel{form, "MonthLabel", Caption("&Month")};
    ChoiceList Month{form, "Month", Widest("Yerm 52, month 17"), Named("Month")};
    Label DayLabel{form, "DayLabel", Caption("&Day")};
    TextField Day{form, "Day", Tip("Change using up/down arrow or up/down page keys"), Widest("W53-7"), Named("Day")};
    UpDown DayUpDown{form, "DayUpDown", Tip("Change the day"), Named("Day")};
    Label TimeLabel{form, "TimeLabel", Caption("&Time")};
    TextField Time{form, "Time", Tip("Hours, minutes and seconds"), Widest("00:00:00"), Named("Time")};
    Label ScaleLabel{form, "ScaleLabel", Caption("Sc&ale")};
    ChoiceList Scale{form, "Scale", Widest("Local mean time, UT+00:00:00"), Named("Time scale")};
    Label GregorianLabel{form, "GregorianLabel", Caption("Gregorian date")};
    Label Gregorian{form, "Gregorian", Tip("Gregorian date"), Widest("Wednesday, September 30, -6999")};
    Label UniversalLabel{form, "UniversalLabel", Widest("Universal Time")};
    Label Universal{form, "Universal", Widest("00:00:00")};
    Label DayNumberLabel{form, "DayNumberLabel", Caption("Fixed day number")};
    Label DayNumber{form, "DayNumber", Tip("Fixed day number"), Widest("-2533804.123456")};
    Label Why{form, "Why", Widest("Seventh month 10000 has 30 days")};
    Button OK{form, "OK", Caption("OK"), Tip("Go to this date (Enter)")};
    Button CancelDate{form, "CancelDate", Caption("Cancel"), Tip("Close without going anywhere (Esc)")};
    // clang-format on

  private:
    void HangFields();
    const CalendarContract& Current() const;
    std::vector<const CalendarContract*> InOrderOfPreference() const;
    void ShowNames();
    void ReadText();
    void ReadFields();
    void TakeMonths(std::int32_t year);
    void ForgetText();
    void ShowDay(FixedDay day);
    void ShowTime(Moment x);
    std::optional<double> TimeEntered() const;
    void StepTo(FixedDay day);
    void StepYears(std::int32_t count);
    void Accept(FixedDay day);
    void Reject(const std::string& why);

    HorvantaMDI& frame_;
    std::vector<GridCalendar> calendars_;  ///< In the order of their places, as they are listed.
    Epoch day_{0};                         ///< The last day that stood there, by the chosen time scale.
    GridDate date_;                        ///< The same as the calendar has it; month 0 where it has none.
    double time_ = 0;                      ///< The part of the day that `shownTime_` tells in few digits.
    std::string shownTime_;
    Moment goal_ = NeverMoment;  ///< Universal; where to go. Never as long as no date stands there.
};

}  // namespace horvanta
