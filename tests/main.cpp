#include "app/all_options.h"
#include "core/locale.h"
#include "core/moment.h"

#include <gtest/gtest.h>

namespace {

/// Lets every test begin as a first start does, whatever the one before left.
class FirstStart final : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override {
        horvanta::ResetAllOptions();
        horvanta::Locale = {};
        horvanta::UserLocales = {};
        horvanta::DisplayedMoment = horvanta::SavedMoment = 0;
        horvanta::Increment = 1;
    }
};

}  // namespace

int main(int argc, char* argv[]) {
    testing::InitGoogleTest(&argc, argv);
    testing::UnitTest::GetInstance()->listeners().Append(new FirstStart);
    return RUN_ALL_TESTS();
}
