#include "core/numerics.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <charconv>
#include <limits>
#include <random>

namespace horvanta {
namespace {

/// The definition of `Floor`: the floor of what the decimal text of 15 significant digits reads as.
double FloorOfText(double x) {
    std::array<char, 40> text;
    const auto end = std::to_chars(text.begin(), text.end(), x, std::chars_format::general, 15).ptr;
    double read = std::numeric_limits<double>::quiet_NaN();
    std::from_chars(text.begin(), end, read);
    return std::floor(read);
}

bool isSame(double a, double b) { return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b); }

double Stepped(double x, int ulps) {
    return std::bit_cast<double>(std::bit_cast<std::int64_t>(x) + (x > 0 ? ulps : -ulps));
}

TEST(Floor, SnapsUpToAnIntegerWithinHalfAUnitOfThe15thDigit) {
    EXPECT_EQ(Floor(730119.9999999995), 730120);
    EXPECT_EQ(Floor(730119.9999999994), 730119);
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double x : {999999999999998.5, -0.5, -0.0, NeverMoment, infinity, -infinity, std::nan("")}) {
        EXPECT_TRUE(isSame(Floor(x), FloorOfText(x))) << x;
    }
}

/// Each round gives 12 values: anywhere, close below and above integers and halves, and quotients that ought to be
/// whole. All sizes up to 1e17 take part.
TEST(Floor, AgreesWithItsTextForm) {
    std::mt19937_64 random(20240115);
    std::uniform_real_distribution<double> day(-3e6, 5e6);
    std::uniform_real_distribution<double> exponent(-3, 17);
    std::uniform_int_distribution<int> ulps(-12, 12);
    constexpr double divisors[] = {7, 19, 24, 25920, 146097, 36524, 365.2425, 29.530588853, 0.1};
    std::int64_t differing = 0;
    for (int round = 0; round < 850'000; ++round) {
        const double x = day(random);
        const double whole = std::floor(x);
        const double sized = std::pow(10, exponent(random)) * (round % 2 ? 1 : -1);
        const double divisor = divisors[round % std::size(divisors)];
        const double bound = 5 * std::pow(10, std::floor(std::log10(std::fabs(sized))) - 15);
        for (const double value :
             {x, Stepped(whole, ulps(random)), Stepped(whole, 64 * ulps(random)), Stepped(whole + 0.5, ulps(random)),
              whole + 1 - 1e-10 * (round % 16), x / divisor, whole * divisor / divisor,
              Stepped(whole / divisor * divisor, ulps(random)), sized, Stepped(std::floor(sized), ulps(random)),
              std::floor(sized) - bound, std::floor(sized) / 2 + 0.5}) {
            differing += !isSame(Floor(value), FloorOfText(value));
        }
    }
    EXPECT_EQ(differing, 0);
}

TEST(Modulo, KeepsItsRange) {
    EXPECT_EQ(Modulo(-1, 7), 6);
    EXPECT_EQ(Modulo(9, -5), -1);
    EXPECT_EQ(AdjustedModulo(0, 7), 7);
    EXPECT_EQ(ModuloRange(190, -180, 180), -170);
}

TEST(Divisors, SatisfyBezout) {
    constexpr std::int32_t numbers[] = {
        0, 1, -1, 7, 12, -18, 293, 52, 235, 146097, std::numeric_limits<std::int32_t>::min()};
    for (const std::int32_t a : numbers) {
        for (const std::int32_t b : numbers) {
            std::int32_t x = 0;
            std::int32_t y = 0;
            const std::int32_t divisor = ExtGCD(a, b, x, y);
            EXPECT_EQ(divisor, GCD(a, b)) << a << ", " << b;
            EXPECT_EQ(std::int64_t{a} * x + std::int64_t{b} * y, divisor) << a << ", " << b;
        }
    }
    EXPECT_EQ(ModInverse(52, 293), 62);  // 52 * 62 = 11 * 293 + 1
}

TEST(Angles, LieInTheirQuadrant) {
    for (int degrees = -715; degrees < 720; degrees += 5) {
        const double y = SinDeg(degrees) * 3;
        const double x = CosDeg(degrees) * 3;
        EXPECT_NEAR(Degrees(ArcTan2Deg(y, x) - degrees + 180), 180, 1e-10) << degrees;
        EXPECT_NEAR(ArcTanRad(x, y), std::atan2(y, x), 1e-13) << degrees;
    }
    EXPECT_EQ(Radians(-90), Radians(270));
    EXPECT_NEAR(ArcSinDeg(-0.5), -30, 1e-12);
    EXPECT_NEAR(ArcCosDeg(-0.5), 120, 1e-12);
}

TEST(Rounding, GoesToTheEvenDigit) {
    EXPECT_EQ(Round(-3.5), -4);
    EXPECT_EQ(Round(0.125, 2), 0.12);
    EXPECT_EQ(ZoneFromLongitude(-112.5), -8);
    EXPECT_EQ(RoundToDigits(6162.4567, 3), 6160);
    EXPECT_EQ(RoundToDigits(-0.000123456, 2), -0.00012);
    EXPECT_EQ(RoundToDigits(NeverMoment, 3), NeverMoment);
    EXPECT_EQ(WholeNumber(NeverMoment), std::numeric_limits<std::int32_t>::max());
    EXPECT_EQ(WholeNumber(std::nan("")), std::numeric_limits<std::int32_t>::max());
    EXPECT_NEAR(DayFraction(-2.25), 0.75, 1e-12);
    EXPECT_EQ(DayFraction(739000.9999999999), 0);
}

}  // namespace
}  // namespace horvanta
