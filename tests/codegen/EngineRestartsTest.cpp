#include "codegen/EngineRestarts.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

using namespace std::chrono_literals;

TEST(EngineRestarts, waitsLongerEachTimeGivesUpAndForgetsAfterASoundLife) {
    EngineRestarts restarts;
    EngineRestarts::Time now{1h};
    const auto lives = [&](EngineRestarts::Pause life) {
        restarts.started(now);
        return restarts.ended(now += life);
    };
    for (const auto pause : {200ms, 400ms, 800ms, 1600ms, 3200ms}) {
        EXPECT_EQ(lives(9s), pause);
        EXPECT_FALSE(restarts.hasGivenUp());
    }
    EXPECT_EQ(lives(9s), std::nullopt);
    EXPECT_TRUE(restarts.hasGivenUp());
    EXPECT_EQ(restarts.untilWorthATry(now + 1s), 2200ms);
    EXPECT_EQ(restarts.untilWorthATry(now + 1h), 0s) << "so the first change after a while is shown at once";
    EXPECT_EQ(lives(1s), std::nullopt) << "one try a change, no more";
    EXPECT_EQ(lives(10s), 200ms);
}

} // namespace
} // namespace tessaly
