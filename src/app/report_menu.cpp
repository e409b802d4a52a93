#include "app/report_menu.h"

#include "core/moment.h"
#include "hebrew/hebrew_arithmetic.h"
#include "reports/omer_count.h"
#include "reports/postponements.h"
#include "reports/weekday_frequencies.h"

namespace horvanta {
namespace {

struct ReportItem {
    MenuItem HorvantaMDI::*item;
    Report (*make)();
};

constexpr ReportItem reportItems[] = {
    {&HorvantaMDI::ReportOmer, [] { return ReportOmerCount(); }},
    {&HorvantaMDI::ListPostpone19years, [] { return ReportPostponements(19); }},
    {&HorvantaMDI::ListPostpone57years, [] { return ReportPostponements(57); }},
    {&HorvantaMDI::ListPostpone100years, [] { return ReportPostponements(100); }},
    {&HorvantaMDI::ListPostpone500years, [] { return ReportPostponements(500); }},
    {&HorvantaMDI::ListPostpone1000years, [] { return ReportPostponements(1000); }},
    {&HorvantaMDI::ListPossibleWeekdayStats, ListPossibleWeekdayStats},
};

}  // namespace

ReportMenu::ReportMenu(HorvantaMDI& frame) : finished(frame), frame_(frame), road_(frame, progress, finished) {
    for (const ReportItem& report : reportItems) {
        (frame.*report.item).Click = [this, make = report.make] { road_.Run(make()); };
    }
}

/// There is nothing to tell of the days before the Hebrew calendar.
void ReportMenu::Update() {
    frame_.HebrewReports.enabled = frame_.HebrewCal.isTicked() && DisplayedMoment >= HebrewEpoch;
    frame_.ReportOmer.caption = "&Omer Count for Year " + std::to_string(FixedToHebrewYear(DisplayedMoment));
}

}  // namespace horvanta
