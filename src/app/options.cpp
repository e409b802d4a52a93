#include "app/options.h"

#include "calendars/easter.h"
#include "calendars/gregorian.h"
#include "core/moment.h"
#include "core/text.h"
#include "hebrew/hebrew_options.h"
#include "locale/locale_text.h"

#include <utility>

namespace horvanta {
namespace {

/// A numbering of the menu: the day that becomes day 1, in the present numbering, and the number that the jump to the
/// epoch goes to.
struct Numbering {
    Moment (*dayOne)();
    double value;
};

constexpr Epoch pickEpoch{718431};      // January 1, 1968
constexpr Epoch chineseEpoch{-985012};  // February 18, -2696

constexpr Numbering numberings[] = {
    {[] { return DisplayedMoment; }, 1},
    {[] { return GregorianEpoch; }, 1},
    {[] { return GregorianToFixed(1900, 3, 1) - 60; }, 61},
    {[] { return Moment{Epoch2001}; }, 1},
    {[] { return Moment{pickEpoch}; }, 1},
    {[] { return Floor(JDEpoch + 1); }, 0.5},
    {[] { return MJDEpoch + 1; }, 0},
    {[] { return TJDEpoch + 1; }, 0},
    {[] { return GregorianToFixed(1601, 1, 1); }, 1},
    {[] { return Moment{PersianEpoch}; }, 1},
    {[] { return Moment{chineseEpoch}; }, 1},
    {[] { return Moment{HebrewEpoch}; }, 1},
};
static_assert(std::size(numberings) == decltype(HorvantaMDI::SetEpochOptMenu)::size());

}  // namespace

Options::Options(HorvantaMDI& frame) : frame_(frame) {
    for (std::size_t number = 1; number <= frame_.SetEpochOptMenu.size(); ++number) {
        const auto index = static_cast<std::int32_t>(number);
        frame_.SetEpochOptMenu[number].Shows(day_numbering::options.FixedDayOption, index);
        frame_.SetEpochOptMenu[number].Click = [this, index] { SetFixedDayNumberingOption(index); };
    }
    for (std::size_t number = 1; number <= frame_.MapServer.size(); ++number) {
        const auto index = static_cast<std::int32_t>(number);
        frame_.MapServer[number].Shows(web_map::options.MapIndex, index);
        if (hasWebMap(index)) frame_.MapServer[number].Click = [this, index] { MapServer_Click(index); };
    }
    MenuItem* const formats[] = {&frame_.SetTempHMM, &frame_.SetTempHourMMM, &frame_.SetTempHourHHH};
    for (std::int32_t format = 1; MenuItem * item : formats) {
        item->Shows(time_text::options.TempHourFormat, format);
        item->Click = [this, format] { SetTempHourFormat(format); };
        ++format;
    }
    frame_.UniformEaster.Shows(easter::options.UniformEaster);
    frame_.UniformEaster.Click = [] { UniformEaster_Click(); };
}

/// `GE` is the day number of January 1 of year 1.
Settings Options::NumberingRows() {
    constexpr double farthest = 1e7;  // days; the displayable ones lie within
    return {
        WholeRow("Item", "FixOpt", day_numbering::options, &day_numbering::Options::FixedDayOption, 1,
                 static_cast<std::int32_t>(std::size(numberings))),
        {"Item", "GE", "-730484",
         [](const std::string& text) {
             return TakeIf(NumberOf(text, -farthest, farthest), [](double first) {
                 SetFixedDayEpoch(GregorianEpoch + 1 - Floor(first), FixedEpochValue, FixedEpochName);
             });
         },
         [] { return ExactText(GregorianEpoch); }},
        {"Item", "FixEpoch", "1",
         [](const std::string& text) {
             return TakeIf(NumberOf(text, -farthest, farthest), [](double value) { FixedEpochValue = value; });
         },
         [] { return ExactText(FixedEpochValue); }},
        {"Item", "FixNam", "",
         [](const std::string& text) {
             FixedEpochName = text;
             return true;
         },
         [] { return FixedEpochName; }},
    };
}

Settings Options::StoredRows() {
    return {
        TruthRow("Item", "WCC", easter::options, &easter::Options::UniformEaster),
        WholeRow("Item", "THC", time_text::options, &time_text::Options::TempHourFormat, 1, 3),
        WholeRow("Item", "Map", web_map::options, &web_map::Options::MapIndex, 1,
                 static_cast<std::int32_t>(decltype(HorvantaMDI::MapServer)::size())),
        {"Item", "MTF", "7",
         [](const std::string& text) {
             hebrew::options.MoladTimeFormat = text == "5" ? 5 : 7;
             return true;
         },
         [] { return std::to_string(hebrew::options.MoladTimeFormat); }},
    };
}

void Options::SetFixedDayNumberingOption(std::int32_t index) {
    const auto number = static_cast<std::size_t>(index);
    const Numbering& numbering = numberings[number - 1];
    day_numbering::options.FixedDayOption = index;
    ChangeFixedDayEpoch(numbering.dayOne(), numbering.value, RemoveAmpersands(frame_.SetEpochOptMenu[number].caption));
}

void Options::SetTempHourFormat(std::int32_t format) {
    time_text::options.TempHourFormat = format;
    UpdateStatus();
}

void Options::UniformEaster_Click() {
    easter::options.UniformEaster = !easter::options.UniformEaster;
    UpdateStatus();
}

void Options::MapServer_Click(std::int32_t index) { web_map::options.MapIndex = index; }

}  // namespace horvanta
