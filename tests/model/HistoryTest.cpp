#include "model/History.h"
#include "model/EditStep.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

using namespace std::chrono_literals;

/// A document whose one notation stands for all that can change, with a clock that is set by hand.
class HistoryTest : public testing::Test {
  protected:
    /// One action on a control: the notation becomes `to`, which is selected as well.
    void act(std::string_view control, std::int64_t to, History::Clock::result_type::duration later = 0s) {
        now += later;
        history.act(editStep::moveStop, {control}, [&] { state.notation = to; });
    }

    /// The notations that undoing all of it shows.
    std::vector<std::int64_t> undone() {
        std::vector<std::int64_t> shown;
        while (history.undo()) {
            shown.push_back(state.notation);
        }
        return shown;
    }

    DocumentState state{std::make_shared<Gradient>(), 0, 0, 0, std::make_shared<GradientList>()};
    std::chrono::steady_clock::time_point now;
    History::Limits limits{10'000, 5};
    History history{
        {[this] { return state; }, [this](const auto&, const auto& wanted) { state = wanted; }, [] {}},
        [this] { return now; },
        limits};
};

using Notations = std::vector<std::int64_t>;

TEST_F(HistoryTest, aRunOnOneControlAndOneStopIsOneStep) {
    act("Red", 1);
    act("Red", 2, 999ms);
    act("Red", 3, 1000ms); // too late
    act("Green", 4);
    act("Green", 4); // changes nothing, and keeps the run
    act("Green", 5);
    state.selectedStop = 1;
    act("Green", 6);
    act("", 7);
    act("", 8);
    EXPECT_EQ(undone(), (Notations{7, 6, 5, 3, 2, 0}));
    EXPECT_EQ(state.selectedStop, 0);
    history.redo();
    act("Red", 9); // no run goes on behind an undo
    EXPECT_EQ(history.redoName(), "");
    act("Red", 2);
    EXPECT_EQ(history.stepCount(), 1U) << "a run that came back to where it began is no step";
    act("Red", 1);
    history.undoRun("Green");
    history.undoRun("Red");
    history.undoRun("Red");
    EXPECT_EQ(state.notation, 2);
}

TEST_F(HistoryTest, aFullOneDropsTheOldestAndSharesWhatDidNotChange) {
    state.presets =
        std::make_shared<GradientList>(10, std::make_shared<Gradient>(std::vector<ColorStop>(10)));
    act("", 1);
    const std::size_t first = history.bytes();
    act("", 2);
    const std::size_t perStep = history.bytes() - first;
    EXPECT_LT(perStep, 300U) << "neither gradient nor presets are held again";
    for (std::int64_t i = 3; i < 100; ++i) {
        act("", i);
        EXPECT_LE(history.bytes(), limits.bytes);
    }
    EXPECT_EQ(history.stepCount(), limits.bytes / perStep);
    for (std::int64_t i = 100; i < 110; ++i) { // each larger than all that there is room for
        state.gradient =
            std::make_shared<Gradient>(std::vector<ColorStop>(200 + static_cast<std::size_t>(i)));
        act("", i);
    }
    EXPECT_EQ(undone(), (Notations{108, 107, 106, 105, 104})) << "the fewest that are kept";
}

} // namespace
} // namespace tessaly
