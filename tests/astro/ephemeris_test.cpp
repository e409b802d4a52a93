#include "astro/ephemeris.h"

#include "astro/ephemeris_files.h"
#include "astro/lunar_phases.h"
#include "astro/sun.h"
#include "astro/timescales.h"
#include "astro/year_dates.h"
#include "core/numbering.h"
#include "hebrew/conjunctions.h"
#include "hebrew/hebrew_arithmetic.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <filesystem>
#include <fstream>
#include <limits>
#include <vector>

namespace horvanta {
namespace {

namespace fs = std::filesystem;

/// Two empty folders that are asked in order, and none again at the end.
class EphemerisFiles : public testing::Test {
  protected:
    EphemerisFiles() {
        for (const fs::path& folder : {first, second}) fs::create_directories(folder);
        Forget();
    }

    ~EphemerisFiles() override {
        ephemeris::SetFolders({});
        fs::remove_all(root);
    }

    void Forget() const { ephemeris::SetFolders({first, second}); }

    static void Write(const fs::path& path, const std::vector<double>& numbers) {
        std::ofstream file(path, std::ios::binary);
        for (const double number : numbers) {
            auto bytes = std::bit_cast<std::array<char, 8>>(number);
            if constexpr (std::endian::native == std::endian::big) std::ranges::reverse(bytes);
            file.write(bytes.data(), bytes.size());
        }
    }

    const fs::path root = fs::path(testing::TempDir()) / "horvanta-ephemeris";
    const fs::path first = root / "beside";
    const fs::path second = root / "data";
};

/// Moments a tenth of a day after the computed ones tell where they come from.
constexpr double mark = 0.1;

template <class MomentAt>
std::vector<double> QuartersOf(std::int32_t first, std::int32_t last, const MomentAt& momentAt) {
    std::vector<double> numbers = {1.0 * first, 1.0 * last, 1, 0};
    for (std::int32_t row = first; row <= last; ++row) {
        for (const double degrees : {0, 90, 180, 270}) {
            numbers.push_back(UniversalToTerrestrial(momentAt(row, degrees)) + mark);
        }
    }
    return numbers;
}

std::vector<double> SeasonsOf2000To2002() {
    return QuartersOf(2000, 2002, [](std::int32_t year, double degrees) { return SeasonMoment(year, degrees); });
}

std::vector<double> QuartersOfLunations5To6() { return QuartersOf(5, 6, LunarQuarter); }

TEST_F(EphemerisFiles, ReplaceTheSeasonsThatTheyHold) {
    const Moment before = SeasonMoment(1999, 270);
    const Moment spring = SeasonMoment(2002, 0);
    Write(second / "EqSolstDE421.dat", SeasonsOf2000To2002());
    Forget();
    EXPECT_NEAR(SolexSolarLongitudeAfter(2002, 0), spring + mark, 1e-8) << "the last year is inside";
    EXPECT_EQ(SolexSolarLongitudeAfter(2002, -270), SolexSolarLongitudeAfter(2001, 270));
    EXPECT_EQ(SeasonMoment(2002, -90, 0.5), SolexSolarLongitudeAfter(2001, 90) + 0.5);
    EXPECT_EQ(SeasonMoment(2000, -270), before) << "computed in silence outside the file";
    EXPECT_EQ(SolexSolarLongitudeAfter(2000, -270), NeverMoment);
    EXPECT_NEAR(SeasonMoment(2002, 45), spring + 46.2, 0.5) << "not of the file's kind";

    Write(first / "EqSolstDE421.dat", {2002, 2002, 1, 0, 700000, 700100, 700200, 700300});
    EXPECT_NEAR(SeasonMoment(2002, 0), spring + mark, 1e-8) << "read once";
    Forget();
    EXPECT_EQ(SeasonMoment(2002, 90), TerrestrialToUniversal(700100)) << "the first folder first";
}

TEST_F(EphemerisFiles, FollowTheNumberingOfDays) {
    auto numbers = SeasonsOf2000To2002();
    const Moment summer = SeasonMoment(2001, 90) - GregorianEpoch;
    for (double& x : numbers) x += x > 10000 ? 1000 : 0;
    numbers[2] = 1001;
    Write(first / "EqSolstDE421.dat", numbers);
    Forget();
    for (const double day : {1.0, 700000.0}) {
        SetFixedDayEpoch(day, 1, "test");
        EXPECT_NEAR(SeasonMoment(2001, 90) - GregorianEpoch, summer + mark, 1e-8) << day;
    }
}

TEST_F(EphemerisFiles, ReplaceTheQuartersThatTheyHold) {
    const Moment full = LunarQuarter(6, 180);
    EXPECT_NEAR(full, PhaseAfter(NthNewMoon(FirstNewMoonOf2000 + 6), 180), 1e-5) << "without a file";
    const Moment outside = LunarQuarter(7, 180);
    Write(first / "Lunations.dat", QuartersOfLunations5To6());
    Forget();
    EXPECT_NEAR(SolexLunarQuarter(6, 180), full + mark, 1e-8);
    EXPECT_EQ(SolexLunarQuarter(6, -180), SolexLunarQuarter(5, 180));
    EXPECT_EQ(SolexLunarQuarter(7, 180), NeverMoment);
    EXPECT_EQ(LunarQuarter(7, 180), outside);
}

TEST_F(EphemerisFiles, TellConjunctionsByTheDayOfTheMolad) {
    Write(second / "SolexLunar.dat", {71000, 71001, 0.25, -0.75});
    Forget();
    EXPECT_EQ(SolexNewMoon(71001), TerrestrialToUniversal(Floor(TraditionalMolad(71001)) - 0.75));
    EXPECT_NEAR(SolexNewMoon(71002), TraditionalMolad(71002), 1) << "the two count the same months";
}

TEST_F(EphemerisFiles, SayWhatTheyDoNotHold) {
    Write(first / "EqSolstDE421.dat", SeasonsOf2000To2002());
    Write(first / "Lunations.dat", QuartersOfLunations5To6());
    Forget();
    EXPECT_EQ(ephemeris::ComplaintOfYear(-1999).value().text,
              "Requested year -1999 is prior to the earliest year 2000 in the SOLEX \"EqSolstDE421.dat\" database.");
    EXPECT_EQ(ephemeris::ComplaintOfLunation(7).value().text,
              "Requested lunation 7 is after the last lunation 6 in the SOLEX \"Lunations.dat\" database.");
    EXPECT_FALSE(ephemeris::ComplaintOfYear(2000));
    EXPECT_FALSE(ephemeris::ComplaintOfLunation(6));
}

/// A file that can't be what it should be is absent, with one line that says so.
TEST_F(EphemerisFiles, AreLeftOutWhenDamaged) {
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    const Moment computed = SeasonMoment(2001, 0);
    auto cut = SeasonsOf2000To2002();
    cut.pop_back();
    auto holed = SeasonsOf2000To2002();
    holed[7] = nan;
    // clang-format off
    const std::vector<double> damaged[] = {
        {}, {2002, 2000, 1, 0}, {2000.5, 2001, 1, 0, 1, 1, 1, 1, 1, 1, 1, 1}, {nan, nan, nan, nan}, cut,
        {0, 1e300, 1, 0}, holed,
    };
    // clang-format on
    for (const auto& numbers : damaged) {
        Write(first / "EqSolstDE421.dat", numbers);
        Forget();
        testing::internal::CaptureStderr();
        EXPECT_EQ(SeasonMoment(2001, 0), computed) << numbers.size();
        EXPECT_FALSE(ephemeris::ComplaintOfYear(1999)) << numbers.size();
        const std::string said = testing::internal::GetCapturedStderr();
        EXPECT_EQ(std::ranges::count(said, '\n'), 1) << said;
        EXPECT_NE(said.find("EqSolstDE421.dat"), std::string::npos) << said;
    }
    fs::remove(first / "EqSolstDE421.dat");
    fs::create_directory(first / "EqSolstDE421.dat");
    Forget();
    EXPECT_EQ(SeasonMoment(2001, 0), computed) << "a folder of that name";
}

}  // namespace
}  // namespace horvanta
