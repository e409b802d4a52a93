#include "app/stored_settings.h"

#include "astro/timescales.h"
#include "core/settings_text.h"
#include "desk_fixture.h"
#include "hebrew/hebrew_options.h"
#include "locale/presets.h"

#include <array>
#include <map>

namespace horvanta {
namespace {

using Row = std::array<const char*, 3>;

// Every key with a text that is not its default, those of windows to come among them.
// clang-format off
constexpr Row rows[] = {
    {"HorvantaMDI", "State", "0"}, {"HorvantaMDI", "Top", "150"}, {"HorvantaMDI", "Left", "300"},
    {"HorvantaMDI", "Width", "12000"}, {"HorvantaMDI", "Height", "9000"},
    {"TimeAstro", "Top", "15"}, {"TimeAstro", "Left", "30"}, {"TimeAstro", "Chk", "False"},
    {"Gregorian", "Top", "45"}, {"Gregorian", "Left", "60"}, {"Gregorian", "Chk", "False"},
    {"Monthly", "Top", "75"}, {"Monthly", "Chk", "False"}, {"Quartane", "Left", "345"}, {"Julian", "Chk", "True"},
    {"Events", "Top", "90"}, {"Events", "Chk", "False"}, {"Hebrew", "Chk", "False"}, {"User", "Chk", "True"},
    {"Lunar", "Chk", "False"}, {"Persian", "Chk", "True"}, {"Chinese", "Chk", "True"}, {"Chinese", "Left", "105"},
    {"Item", "FixOpt", "2"}, {"Item", "GE", "1"}, {"Item", "FixEpoch", "1"}, {"Item", "FixNam", "rata die"},
    {"Item", "EW", "9000"}, {"Item", "EH", "4000"}, {"Item", "Step", "5"}, {"Item", "Year", "False"},
    {"Item", "OrbRAY", "RAY Date"}, {"Item", "JDMJD", "Mod Jul Day"}, {"Item", "Qua454", "False"},
    {"Item", "QuaQS", "LSS"}, {"Item", "QuaLeap", "71/400"}, {"Item", "QuaStart", "2"}, {"Item", "UseZov454", "True"},
    {"Item", "UseZov010", "False"}, {"Item", "Even", "True"}, {"Item", "Mix", "True"}, {"Item", "CCM", "2"},
    {"Item", "CEN", "0"}, {"Item", "THC", "2"}, {"Item", "MTF", "5"}, {"Item", "RD", "739000.125"},
    {"Item", "SD", "700000.5"}, {"Item", "AdjDST", "2"}, {"Item", "dT", "0"}, {"Item", "ShowDD", "0"},
    {"Item", "Elev", "0"}, {"Item", "UseAUC", "1"}, {"Item", "JCY1", "-2637"}, {"Item", "Rectify", "1"},
    {"Item", "YRF", "-752"}, {"Item", "OSY", "-775"}, {"Item", "LP", "True"}, {"Item", "WCC", "True"}, {"Item", "UseEnglish", "False"},
    {"Item", "LOC", "Tehran"}, {"Item", "Map", "4"}, {"Item", "MC", "3"}, {"Item", "AD", "&Across"},
    {"Item", "LunOpt", "2"}, {"Item", "Candles", "40"},
    {"Color", "ABC", "1"}, {"Color", "AFC", "2"}, {"Color", "GBC", "3"}, {"Color", "GFC", "4"}, {"Color", "LBC", "5"},
    {"Color", "ChinFC", "6"}, {"Color", "JBC", "7"}, {"Color", "PBC", "9"}, {"Color", "HBC", "10"}, {"Color", "SFC", "11"}, {"Color", "VietBC", "14"}, {"Color", "CFC", "16711680"},
    {"Later", "Key", "kept"},
};
// clang-format on

StoredSettings AllRows() {
    StoredSettings settings;
    for (const auto& [section, key, text] : rows) settings["Horvanta"][section][key] = text;
    settings["Horvanta-UDLs"]["Later"]["Key"] = "kept";
    return settings;
}

std::string TextOf(StoredSettings& settings, const Row& row) { return settings["Horvanta"][row[0]][row[1]]; }

TEST(StoredSettings, ComeBackAsTheyWereSaved) {
    Desk desk(AllRows());
    EXPECT_EQ(DisplayedMoment, 739000.125);
    EXPECT_EQ(FixedEpochValue, 1);
    EXPECT_EQ(Increment, 3652.42189);
    EXPECT_TRUE(DeltaTDisabled);
    EXPECT_EQ(Locale, PresetLocale("Tehran"));
    EXPECT_FALSE(desk.program.timeAstro.fields.DawnDusk.visible);
    StoredSettings saved = LeftBy(desk);
    for (const Row& row : rows) EXPECT_EQ(TextOf(saved, row), row[2]) << row[0] << "/" << row[1];
    EXPECT_EQ(saved["Horvanta-UDLs"]["Later"]["Key"], "kept");
}

/// What is damaged is as if it were not there, and takes nothing else with it.
TEST(StoredSettings, TakeDefaultsForDamage) {
    StoredSettings defaults;
    {
        StoredSettings empty;
        empty["Horvanta"]["Events"]["Top"] = "0";
        Desk desk(empty);
        defaults = LeftBy(desk);
    }
    for (const char* damage : {"", "beige", "1e300", "-99999999999", "\x01\xff"}) {
        for (const Row& row : rows) {
            StoredSettings settings = AllRows();
            settings["Horvanta"][row[0]][row[1]] = damage;
            Desk desk(settings);
            EXPECT_TRUE(desk.desktop.asked.empty());
            desk.Obey("menu MenuExit");
            const std::string neighbour = TextOf(desk.desktop.settings.flushed, {"Color", "AFC"});
            EXPECT_EQ(neighbour, row[1] == std::string("AFC") ? "0" : "2") << row[1] << " " << damage;
        }
    }
    constexpr Row owned[] = {{"Item", "Step"}, {"Item", "dT"},       {"Item", "Map"}, {"Color", "GBC"},
                             {"Item", "THC"},  {"Gregorian", "Chk"}, {"Item", "LOC"}, {"Item", "AdjDST"}};
    for (const Row& row : owned) {
        StoredSettings settings = AllRows();
        settings["Horvanta"][row[0]][row[1]] = "beige";
        Desk desk(settings);
        desk.Obey("menu MenuExit");
        EXPECT_EQ(TextOf(desk.desktop.settings.flushed, row), TextOf(defaults, row)) << row[1];
    }
}

TEST(StoredSettings, HaveEveryKeyOnce) {
    Desk desk;
    std::map<std::pair<std::string, std::string>, int> rowsOfKey;
    for (const Setting& setting : StoredRows(desk.program)) {
        const int count = ++rowsOfKey[{setting.section, setting.key}];
        EXPECT_EQ(count, 1) << setting.section << "/" << setting.key;
        const bool inUserSettings =
            setting.section.starts_with("User ") || setting.section == "UserNum" || setting.section == "YLC";
        EXPECT_EQ(setting.application, inUserSettings ? UserSettings : ProgramSettings) << setting.section;
    }
    for (const auto& [section, key, text] : rows) {
        const bool isElsewhere = section == std::string("HorvantaMDI") || section == std::string("Later");
        EXPECT_TRUE(isElsewhere || rowsOfKey.contains({section, key})) << section << "/" << key;
    }
}

TEST(StoredSettings, ReadNumbersAsTheyAreWritten) {
    StoredSettings settings = AllRows();
    settings["Horvanta"]["Item"]["RD"] = "739000,75";
    settings["Horvanta"]["Item"]["MTF"] = "3";
    const Desk desk(settings);
    EXPECT_EQ(DisplayedMoment, 739000);
    EXPECT_EQ(hebrew::options.MoladTimeFormat, 7);
}

/// A damaged line for the displayed moment, or for whether to start with today, costs neither the other nor the saved
/// moment or the step.
TEST(StoredSettings, KeepMomentsApart) {
    for (const char* damage : {"", "beige"}) {
        StoredSettings settings = AllRows();
        settings["Horvanta"]["TimeAstro"]["Chk"] = damage;
        {
            const Desk desk(settings);
            EXPECT_EQ(DisplayedMoment, 739000.125);
        }
        settings = AllRows();
        settings["Horvanta"]["Item"]["RD"] = damage;
        const Desk desk(settings);
        EXPECT_EQ(DisplayedMoment, 738900);
        EXPECT_EQ(SavedMoment, 700000.5);
        EXPECT_EQ(stepping::options.StepIndex, 5);
    }
}

/// The user's own numbering is that of the last run, its date and its jump too.
TEST(StoredSettings, KeepTheDateUnderANumberingOfOnesOwn) {
    StoredSettings left;
    {
        Desk desk(AllRows());
        desk.program.options.SetFixedDayNumberingOption(1);
        ChangeFixedDayEpoch(GregorianEpoch + 730485, 0.5, "mine");
        left = LeftBy(desk);
    }
    const Desk desk(left);
    EXPECT_EQ(GregorianEpoch, -730484);
    EXPECT_EQ(FixedEpochValue, 0.5);
    EXPECT_EQ(FixedEpochName, "mine");
    EXPECT_NEAR(DisplayedMoment - GregorianEpoch, 738999.125, 1e-9);
    EXPECT_NEAR(SavedMoment - GregorianEpoch, 699999.5, 1e-9);
}

/// Whatever one row of the numbering says, or two that contradict each other, no saved date moves.
TEST(StoredSettings, TellTheNumberingByTheRowsThatCanBeRead) {
    const Row damages[] = {{"FixOpt", "beige"}, {"FixOpt", "13"},  {"GE", ""},         {"GE", "beige"},
                           {"GE", "-730484"},   {"GE", "1e300"},   {"FixEpoch", "-3"}, {"FixEpoch", "beige"},
                           {"GE", "12345"},     {"FixNam", "\x01"}};
    for (std::int32_t option = 2; option <= 12; ++option) {
        StoredSettings left = AllRows();
        {
            Desk desk(left);
            desk.program.options.SetFixedDayNumberingOption(option);
            left = LeftBy(desk);
        }
        const double first = GregorianEpoch;
        const double value = FixedEpochValue;
        for (const auto& [key, text, none] : damages) {
            StoredSettings damaged = left;
            damaged["Horvanta"]["Item"][key] = text;
            const Desk desk(damaged);
            EXPECT_EQ(GregorianEpoch, first) << option << " " << key << " " << text;
            EXPECT_EQ(FixedEpochValue, value) << option << " " << key << " " << text;
            EXPECT_NEAR(DisplayedMoment - GregorianEpoch, 738999.125, 1e-9) << option << " " << key << " " << text;
        }
    }
}

TEST(StoredSettings, OfAnOlderLayoutAreClearedAndKept) {
    StoredSettings settings = AllRows();
    settings["Horvanta"]["Events"]["Top"] = "beige";
    {
        const Desk desk(settings);
        EXPECT_EQ(Locale.Name, "Tehran");
        EXPECT_EQ(desk.desktop.status, "");
    }
    settings["Horvanta"].erase("Events");
    Desk desk(settings);
    EXPECT_EQ(Locale.Name, "Greenwich");
    EXPECT_EQ(stepping::options.StepIndex, 1);
    EXPECT_EQ(desk.desktop.settings.kept["Horvanta"]["Item"]["LOC"], "Tehran");
    EXPECT_EQ(desk.desktop.status, "The former settings are kept.");
}

/// A file that was cut anywhere has all its keys up to there, and starts.
TEST(StoredSettings, OfACutFileAreTakenAsFarAsTheyGo) {
    const StoredSettings all = AllRows();
    const std::string text = SettingsText("Horvanta", all.at("Horvanta"));
    for (std::size_t end = 0; end <= text.size(); end += 41) {
        StoredSettings cut = all;
        cut["Horvanta"] = ReadSettingsText(text.substr(0, end)).values;
        const bool hasLayout = cut["Horvanta"]["Events"].contains("Top");
        const bool hasColor = cut["Horvanta"]["Color"].contains("GBC");
        Desk desk(cut);
        EXPECT_TRUE(desk.desktop.asked.empty());
        EXPECT_EQ(desk.desktop.settings.flushed["Horvanta"]["Prog"]["Launch"], "OK") << end;
        const Color background = desk.program.gregorian.GregorianDate.colors->background;
        EXPECT_EQ(background == Color::FromNumber(3), hasLayout && hasColor) << end;
    }
}

}  // namespace
}  // namespace horvanta
