#include "views/oriental_window.h"

#include "calendars/calendar_text.h"
#include "core/day_events.h"
#include "core/moment.h"
#include "core/text.h"

#include <algorithm>
#include <string>
#include <utility>

namespace horvanta {

using namespace oriental;

namespace {

/// What differs from one calendar to another in the window: its name, the key of its colours, and what it is told of.
struct Face {
    std::string_view name;
    std::string_view key;
    ColorPair standard;
    std::string_view about;
};

constexpr ColorPair Pair(std::int32_t background, std::int32_t foreground) {
    return {Color::FromNumber(background), Color::FromNumber(foreground)};
}

constexpr Face faces[] = {
    {"Chinese", "Chin", Pair(255, 65535),
     "Its meridian was that of Beijing, 116° 25' E, until the new year of 1929, and is 120° E since.\n"
     "Years are counted from the first cycle of Huangdi; the year that began it is chosen in the\n"
     "menu Options, Chinese Year 1."},
    {"Japanese", "Jap", Pair(16777215, 217),
     "Its meridian was that of Kyoto until the new year of 1888, and is 135° E since.\n"
     "It was in public use until 1872. Years are counted from the legendary accession of\n"
     "the emperor Jimmu in 660 BC."},
    {"Korean", "Kor", Pair(16777215, 16711680),
     "Its meridian was that of Seoul until March 1908; since then it is 135° E, but from 1908 to\n"
     "1911 and from 1954 to 1961 it was 127½° E. Years are counted from the legendary\n"
     "foundation of the kingdom by Dangun in 2333 BC."},
    {"Vietnamese", "Viet", Pair(65535, 255),
     "Its meridian was that of Beijing until the new year of 1929, then 120° E, and is 105° E since 1968.\n"
     "Years are counted as in the Chinese calendar."},
};

constexpr std::string_view aboutAll =
    "The months begin on the day of the true new moon, by the standard time of the calendar's\n"
    "meridian. The month of the winter solstice is the 11th. Where 13 months begin from one\n"
    "such month to the next, the first month in which the Sun reaches no major solar term,\n"
    "a multiple of 30° of its longitude, is a leap month with the number of the month before.\n"
    "Common years have 353 to 355 days, leap years of 13 months have 383 to 385 days.\n"
    "Years, months and days also go round a cycle of 60 names, each of a celestial stem (10)\n"
    "and a terrestrial branch (12). In English the stems are the five elements, twice each, and\n"
    "the branches are animals.\n";

const Face& FaceOf(std::int32_t variant) { return faces[static_cast<std::size_t>(variant)]; }

/// "+8", or a zone with a fraction of an hour as "+7:45:40".
std::string ZoneText(double hours) {
    const std::string text = hours == Floor(hours) ? GeneralText(hours) : FormatTime(hours / 24, 11);
    constexpr std::string_view noSeconds = ":00";
    return "+" + (text.ends_with(noSeconds) ? text.substr(0, text.size() - noSeconds.size()) : text);
}

std::string MidnightCaption(FixedDay day) {
    return "Midnight Solar Longitude at Time Zone UT" + ZoneText(OrientZone(day)) + " = ";
}

std::string NameInCycle(std::int32_t place) { return SexagesimalName(place, true); }

}  // namespace

OrientalWindow::OrientalWindow(HorvantaMDI& frame) : frame_(frame) {
    std::ranges::transform(faces, kept_.begin(), &Face::standard);
    for (const Face& face : faces) CalChoice.items.emplace_back(face.name);
    UseEnglish.Shows(options.UseEnglish);
    HangHandlers();
}

void OrientalWindow::HangHandlers() {
    for (Label* label : {&TheOrientDate, &SexYear, &SexMonth, &SexDay}) frame_.CopyOnClick(*label);
    frame_.CopyOnClick(SLatMidnight, [this] { SLatMidnight_Click(); });
    CalChoice.Chosen = [this] { CalChoice_Click(CalChoice.selected); };
    UseEnglish.Click = [this] { UseEnglish_Click(); };
    Info.Click = [this] { Info_Click(); };
    MenuItem* const items[] = {&frame_.CE2637, &frame_.CE2697, &frame_.CE2698};
    for (std::size_t i = 0; i < EpochYears.size(); ++i) {
        items[i]->Shows(options.OrientEpochYear, EpochYears[i]);
        items[i]->Click = [this, i] { SetCEyear(EpochYears[i]); };
    }
}

WindowRow OrientalWindow::Row() {
    return {.form = form,
            .first = Dummy,
            .update = [this] { Update(); },
            .item = &frame_.OrientCal,
            .colors = &colors,
            .needing = {&frame_.ChineseYear1, &ItemOf(frame_.PrevMenu, MenuEvent::ChineseNewYear),
                        &ItemOf(frame_.NextMenu, MenuEvent::ChineseNewYear)},
            .calendars = {{6, &oriental::Calendar, &TheOrientDate, &frame_.OrientCal}},
            .settings = StoredRows()};
}

void OrientalWindow::Update() {
    const OrientDate& date = OrientDateOn(DisplayedMoment);
    const std::string name = CalendarName();
    const std::string dateText = OrientDateString(date);
    WearColors();
    form.text = name + " Lunisolar";
    CalChoice.selected = options.OrientVariant;
    TheOrientDate.text = " " + dateText + " ";
    TheOrientDate.tooltip = name + " date";
    Info.spoken = name + " info";
    Info.tooltip = "Click here for " + name + " Calendar information";
    LeapCheckbox.text = YearKind(date.isLongYear);
    ShowNames(date);
    ShowMidnight(date);
    day_events::AddAll(name, dateText, EventsOf(date), TheOrientDate);
}

void OrientalWindow::ShowNames(const OrientDate& date) {
    SexYear.text = NameInCycle(date.year) + ", cycle " + std::to_string(date.cycle);
    SexMonth.text = NameInCycle(SexagesimalMonth(date));
    SexDay.text = NameInCycle(date.sexagesimal);
}

void OrientalWindow::ShowMidnight(const OrientDate& date) {
    SLatMidnight.text = MidnightCaption(date.fixed) + FormatNumber(MidnightLongitude(date.fixed), "0.0000") + "°";
}

/// The calendar may also have been changed by what reads the settings.
void OrientalWindow::WearColors() {
    if (worn_ == options.OrientVariant) return;
    kept_[static_cast<std::size_t>(worn_)] = colors.Chosen();
    worn_ = options.OrientVariant;
    for (const bool isBackground : {true, false}) {
        colors.SetColor(kept_[static_cast<std::size_t>(worn_)].Part(isBackground), isBackground);
    }
}

Settings OrientalWindow::ColorRows() {
    constexpr std::int32_t white = 0xffffff;
    Settings rows;
    for (std::int32_t variant = Chinese; variant <= Vietnamese; ++variant) {
        for (const bool isBackground : {true, false}) {
            const auto take = [=, this](std::int32_t number) {
                const Color color = Color::FromNumber(number);
                kept_[static_cast<std::size_t>(variant)].Part(isBackground) = color;
                if (variant == worn_) colors.SetColor(color, isBackground);
            };
            const auto shown = [=, this] {
                const ColorPair& pair = variant == worn_ ? colors.Chosen() : kept_[static_cast<std::size_t>(variant)];
                return std::to_string(pair.Part(isBackground).Number());
            };
            rows.push_back({"Color", std::string(FaceOf(variant).key) + (isBackground ? "BC" : "FC"),
                            std::to_string(FaceOf(variant).standard.Part(isBackground).Number()),
                            [=](const std::string& text) { return TakeIf(WholeOf(text, 0, white), take); }, shown});
        }
    }
    rows.push_back({"Color", "CFC", "", {}, [this] { return std::to_string(colors.Shown(false).Number()); }});
    return rows;
}

Settings OrientalWindow::StoredRows() {
    const auto takeYear = [](const std::string& text) {
        return TakeIf(WholeOf(text, EpochYears.back(), EpochYears.front()), [](std::int32_t year) {
            if (std::ranges::find(EpochYears, year) != EpochYears.end()) options.OrientEpochYear = year;
        });
    };
    const auto indexOfYear = [] {
        return std::to_string(std::ranges::find(EpochYears, options.OrientEpochYear) - EpochYears.begin());
    };
    Settings rows = ColorRows();
    rows.push_back({"Item", "JCY1", "-2697", takeYear, [] { return std::to_string(options.OrientEpochYear); }});
    rows.push_back({"Item", "CEN", "1", {}, indexOfYear});
    rows.push_back(WholeRow("Item", "CCM", options, &Options::OrientVariant, Chinese, Vietnamese));
    rows.push_back(TruthRow("Item", "UseEnglish", options, &Options::UseEnglish));
    return rows;
}

void OrientalWindow::CalChoice_Click(std::int32_t variant) {
    options.OrientVariant = variant;
    UpdateStatus();
}

void OrientalWindow::UseEnglish_Click() {
    options.UseEnglish = !options.UseEnglish;
    UpdateStatus();
}

void OrientalWindow::SetCEyear(std::int32_t year) {
    options.OrientEpochYear = year;
    UpdateStatus();
}

void OrientalWindow::SLatMidnight_Click() {
    const FixedDay day = Floor(DisplayedMoment);
    frame_.SetClipboardText(MidnightCaption(day) + GeneralText(MidnightLongitude(day)) + "°");
}

void OrientalWindow::Info_Click() {
    const std::string name = CalendarName();
    frame_.AskCopyToClipboard(std::string(aboutAll) + std::string(FaceOf(options.OrientVariant).about),
                              "The " + name + " Calendar");
}

}  // namespace horvanta
