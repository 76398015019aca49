#include "codegen/EngineRestarts.h"

#include <gtest/gtest.h>
#include <numeric>
#include <vector>

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
    std::vector<EngineRestarts::Pause> pauses;
    while (const auto pause = lives(9s)) {
        ASSERT_FALSE(restarts.hasGivenUp());
        ASSERT_TRUE(pauses.empty() || pauses.back() < *pause);
        pauses.push_back(*pause);
        now += *pause;
    }
    EXPECT_EQ(pauses.size(), 5U);
    EXPECT_TRUE(restarts.hasGivenUp());
    EXPECT_EQ(restarts.untilWorthATry(now + 1s), pauses.back() - 1s);
    EXPECT_EQ(restarts.untilWorthATry(now + 1h), 0s) << "so the first change after a while is shown at once";
    EXPECT_EQ(lives(1s), std::nullopt) << "one try a change, no more";
    EXPECT_EQ(lives(10s), pauses.front());
}

} // namespace
} // namespace tessaly
