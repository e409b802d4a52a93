#include "core/preferences.h"

#include "recording_desktop.h"

#include <gtest/gtest.h>

namespace horvanta {
namespace {

class PreferencesTest : public testing::Test {
  protected:
    PreferencesTest() { CurrentDesktop = &desktop_; }
    ~PreferencesTest() override { CurrentDesktop = nullptr; }

    void Store(const std::string& text) { SavePref("Item", "Key", text); }

    RecordingDesktop desktop_;
};

TEST_F(PreferencesTest, ReadsWhatDoesNotFitAsTheDefault) {
    for (const char* bad : {"", "x", "1e400", "nan", "99999999999", "\xff\xfe"}) {
        Store(bad);
        EXPECT_EQ(GetLongPref(ProgramSettings, "Item", "Key", 7), 7) << bad;
        EXPECT_EQ(GetIntPref(ProgramSettings, "Item", "Key", 7), 7) << bad;
        EXPECT_EQ(GetBoolPref(ProgramSettings, "Item", "Key", true), true) << bad;
    }
    Store("40000");
    EXPECT_EQ(GetIntPref(ProgramSettings, "Item", "Key", 7), 7);
    EXPECT_EQ(GetLongPref(ProgramSettings, "Item", "Key", 7), 40000);
    EXPECT_EQ(GetDoublePref(ProgramSettings, "Item", "Absent", 2.5), 2.5);
}

TEST_F(PreferencesTest, ReadsADoubleUpToAComma) {
    Store("739000,25");
    EXPECT_EQ(GetDoublePref(ProgramSettings, "Item", "Key", 0), 739000);
    SaveDoublePref("Item", "Key", 739000.1);
    EXPECT_EQ(GetDoublePref(ProgramSettings, "Item", "Key", 0), 739000.1);
}

}  // namespace
}  // namespace horvanta
