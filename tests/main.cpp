#include "astro/timescales.h"
#include "clock/zone_time.h"
#include "core/locale.h"
#include "core/numbering.h"

#include <gtest/gtest.h>

namespace {

/// Lets every test begin with the options that a first start has, whatever the one before left.
class FirstStart final : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override {
        horvanta::SetFixedDayEpoch(horvanta::GregorianEpoch, 1, "rata die");
        horvanta::SetDeltaTDisabled(false);
        horvanta::UseElevation = true;
        horvanta::AdjustDST = 1;
    }
};

}  // namespace

int main(int argc, char* argv[]) {
    testing::InitGoogleTest(&argc, argv);
    testing::UnitTest::GetInstance()->listeners().Append(new FirstStart);
    return RUN_ALL_TESTS();
}
