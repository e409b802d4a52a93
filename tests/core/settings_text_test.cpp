#include "core/settings_text.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace horvanta {
namespace {

StoredApplication OddValues() {
    StoredApplication values;
    for (int byte = 0; byte < 256; ++byte)
        values["Bytes"][std::to_string(byte)] = "a" + std::string(1, char(byte)) + "1";
    // clang-format off
    const char* odd[] = {"", " ", "\"", "\"\"", "\\", "a\\", "@", "@@", "@Invalid()", "a=b", "[Item]", "; #", "a, b",
                         "\\x41", "\n", "Jerusalem ירושלים", "\" \\", "\\\"", "%20"};
    // clang-format on
    for (std::size_t i = 0; i < std::size(odd); ++i) values["User 1"]["Key " + std::to_string(i)] = odd[i];
    values["a/b=[c]%41;#"]["d/e\nf"] = "g";
    return values;
}

TEST(SettingsText, ComesBackWhateverItHolds) {
    const StoredApplication values = OddValues();
    const auto [read, isWhole] = ReadSettingsText(SettingsText("Horvanta", values));
    EXPECT_TRUE(isWhole);
    EXPECT_EQ(read, values);
    EXPECT_EQ(SettingsText("Horvanta", {{"Item", {{"RD", "739000.25"}}}}), "[Horvanta]\nItem/RD=739000.25\n");
}

/// In files of which headings are a part, as earlier versions and editors leave them.
TEST(SettingsText, IsReadUnderHeadings) {
    const auto [values, isWhole] = ReadSettingsText(
        "\xEF\xBB\xBF[Item]\r\nRD = 1 ; 2\r\n\r\n; RD=3\r\nSD=\"4\"\r\rLOC=a\\nb\r\n[User%201]\r\nName=\"@@\\x41, \\\"\"\r\n");
    const StoredApplication expected = {{"Item", {{"LOC", "a\nb"}, {"RD", "1 ; 2"}, {"SD", "4"}}},
                                        {"User 1", {{"Name", "@A, \""}}}};
    EXPECT_EQ(values, expected);
    EXPECT_TRUE(isWhole);
}

TEST(SettingsText, TellsThatSomethingCouldNotBeRead) {
    for (const char* damaged : {"RD=1\n", "[Item\nRD=1\n", "Item/RD\n", "Item/RD=", "Item/RD=1", "\x01", "Item/=1\n"}) {
        EXPECT_FALSE(ReadSettingsText(damaged).isWhole) << damaged;
    }
    EXPECT_EQ(ReadSettingsText("Item/RD=1").values.at("Item").at("RD"), "1");
    EXPECT_TRUE(ReadSettingsText("Prog/Launch=").values.empty());
}

using Damage = void (*)(std::string& line);
constexpr Damage damages[] = {
    [](std::string& line) { line.clear(); },
    [](std::string& line) { line.resize(line.size() / 2); },
    [](std::string& line) { line += '\\'; },
    [](std::string& line) { line.insert(line.find('=') + 1, 1, '"'); },
    [](std::string& line) { line.insert(line.find('=') + 1, "\"\\"); },
    [](std::string& line) { line.insert(0, 1, '['); },
    [](std::string& line) { line[0] = '\0'; },
    [](std::string& line) { std::ranges::reverse(line); },
    [](std::string& line) { line.assign(100'000, '='); },
};

/// The heading is one of the lines.
TEST(SettingsText, LosesOneKeyByADamagedLine) {
    const StoredApplication values = {{"Color", {{"AFC", "2"}, {"GBC", "3"}}},
                                      {"Item", {{"GE", "-730484"}, {"LOC", "Tehran"}, {"RD", "739000.25"}}},
                                      {"Prog", {{"Launch", "OK"}}}};
    const std::string text = SettingsText("Horvanta", values);
    for (std::size_t begin = 0; begin < text.size(); begin = text.find('\n', begin) + 1) {
        const std::size_t length = text.find('\n', begin) - begin;
        for (const Damage damage : damages) {
            std::string line = text.substr(begin, length);
            damage(line);
            const StoredApplication read = ReadSettingsText(std::string(text).replace(begin, length, line)).values;
            int lost = 0;
            for (const auto& [section, keys] : values) {
                for (const auto& [key, value] : keys) {
                    const auto found = read.find(section);
                    lost += found == read.end() || !found->second.contains(key) || found->second.at(key) != value;
                }
            }
            EXPECT_LE(lost, begin == 0 ? 0 : 1) << line.substr(0, 40);
        }
    }
}

}  // namespace
}  // namespace horvanta
