#include "core/numbering.h"

#include <gtest/gtest.h>

namespace {

/// Lets every test begin with the standard numbering, whatever the one before left.
class StandardNumbering final : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override {
        horvanta::SetFixedDayEpoch(horvanta::GregorianEpoch, 1, "rata die");
    }
};

}  // namespace

int main(int argc, char* argv[]) {
    testing::InitGoogleTest(&argc, argv);
    testing::UnitTest::GetInstance()->listeners().Append(new StandardNumbering);
    return RUN_ALL_TESTS();
}
