#include "app/options.h"

#include "calendars/easter.h"
#include "calendars/gregorian.h"
#include "core/moment.h"
#include "core/text.h"
#include "hebrew/hebrew_options.h"
#include "locale/locale_text.h"
#include "lunar/lunar_options.h"

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
static_assert(LunationConventions.size() == decltype(HorvantaMDI::LunationOptMenu)::size());

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
    for (std::size_t number = 1; number <= frame_.LunationOptMenu.size(); ++number) {
        const auto index = static_cast<std::int32_t>(number);
        frame_.LunationOptMenu[number].Shows(lunar::options.LunationOption, index);
        frame_.LunationOptMenu[number].Click = [this, index] { SetLunationOption(index); };
    }
    frame_.LP180.Shows(lunar::options.SignedPhase);
    frame_.LP360.ShowsWhen([] { return !lunar::options.SignedPhase; });
    frame_.LP180.Click = [this] { SetSignedPhase(true); };
    frame_.LP360.Click = [this] { SetSignedPhase(false); };
    MenuItem* const formats[] = {&frame_.SetTempHMM, &frame_.SetTempHourMMM, &frame_.SetTempHourHHH};
    for (std::int32_t format = 1; MenuItem * item : formats) {
        item->Shows(time_text::options.TempHourFormat, format);
        item->Click = [this, format] { SetTempHourFormat(format); };
        ++format;
    }
    frame_.UniformEaster.Shows(easter::options.UniformEaster);
    frame_.UniformEaster.Click = [] { UniformEaster_Click(); };
}

namespace {

constexpr std::int32_t standardOption = day_numbering::Options().FixedDayOption;
constexpr std::int32_t numberingOptions = static_cast<std::int32_t>(std::size(numberings));

const Numbering& NumberingOf(std::int32_t option) { return numberings[static_cast<std::size_t>(option) - 1]; }

/// The day number that January 1 of year 1 has under an item, whatever the present numbering.
double FirstOf(const Numbering& numbering) { return GregorianEpoch + 1 - Floor(numbering.dayOne()); }

/// The item that numbers the days so; the first, which numbers them from any day, if no other does.
std::int32_t OptionOf(double first) {
    for (std::int32_t option = 2; option <= numberingOptions; ++option) {
        if (FirstOf(NumberingOf(option)) == first) return option;
    }
    return 1;
}

/// A row of the numbering that is settled with the others: a text that can't be read counts as none.
Setting NumberingRow(std::string_view key, std::function<void(const std::string& text)> take,
                     std::function<std::string()> give) {
    return {"Item", std::string(key), "",
            [take = std::move(take)](const std::string& text) {
                take(text);
                return true;
            },
            std::move(give)};
}

}  // namespace

/// `GE` is the day number of January 1 of year 1. Under any item but the first it follows from the item, so that a day
/// number that was saved can be told even where a row is damaged.
Settings Options::NumberingRows() {
    constexpr double farthest = 1e7;  // days; the displayable ones lie within
    return {
        NumberingRow(
            "FixOpt", [this](const std::string& text) { read_.option = WholeOf(text, 1, numberingOptions); },
            [] { return std::to_string(day_numbering::options.FixedDayOption); }),
        NumberingRow(
            "GE", [this](const std::string& text) { read_.first = NumberOf(text, -farthest, farthest); },
            [] { return ExactText(GregorianEpoch); }),
        NumberingRow(
            "FixEpoch", [this](const std::string& text) { read_.value = NumberOf(text, -farthest, farthest); },
            [] { return ExactText(FixedEpochValue); }),
        NumberingRow(
            "FixNam",
            [this](const std::string& text) {
                read_.name = NameText(text);
                Settle(read_);
            },
            [] { return FixedEpochName; }),
    };
}

/// Rows that contradict each other are settled by the item. Where that can't be read it is found by the day number.
void Options::Settle(const ReadNumbering& read) {
    const double standardFirst = FirstOf(NumberingOf(standardOption));
    const std::int32_t option = read.option.value_or(OptionOf(read.first.value_or(standardFirst)));
    const Numbering& numbering = NumberingOf(option);
    const bool isFree = option == 1;
    const double first = isFree ? Floor(read.first.value_or(standardFirst)) : FirstOf(numbering);
    const double value = isFree ? read.value.value_or(numbering.value) : numbering.value;
    day_numbering::options.FixedDayOption = option;
    SetFixedDayEpoch(GregorianEpoch + 1 - first, value, read.name);
}

Settings Options::StoredRows() {
    return {
        TruthRow("Item", "WCC", easter::options, &easter::Options::UniformEaster),
        WholeRow("Item", "THC", time_text::options, &time_text::Options::TempHourFormat, 1, 3),
        WholeRow("Item", "Map", web_map::options, &web_map::Options::MapIndex, 1,
                 static_cast<std::int32_t>(decltype(HorvantaMDI::MapServer)::size())),
        WholeRow("Item", "LunOpt", lunar::options, &lunar::Options::LunationOption, 1,
                 static_cast<std::int32_t>(LunationConventions.size())),
        {"Item", "LunOff", "", {}, [] { return std::to_string(ChosenLunationConvention().Offset); }},
        {"Item", "LunCap", "", {}, [] { return std::string(ChosenLunationConvention().Name); }},
        TruthRow("Item", "LP", lunar::options, &lunar::Options::SignedPhase),
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

void Options::SetLunationOption(std::int32_t index) {
    lunar::options.LunationOption = index;
    SetLunationCaptions();
    UpdateStatus();
}

void Options::SetLunationCaptions() {
    const std::string name(ChosenLunationConvention().Name);
    frame_.LunationAtEpoch.caption = name + " Lunation Epoch";
    frame_.ArbitraryLunation.caption = name + " Lunation Number...";
}

void Options::SetSignedPhase(bool isSigned) {
    lunar::options.SignedPhase = isSigned;
    UpdateStatus();
}

void Options::MapServer_Click(std::int32_t index) { web_map::options.MapIndex = index; }

}  // namespace horvanta
