#include "canvas/GradientEditor.h"

#include "support/FakeControls.h"
#include "support/Gradients.h"
#include "support/LogCapture.h"
#include "support/NoPresets.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <random>

namespace tessaly {
namespace {

using Positions = std::vector<double>;

class GradientEditorTest : public testing::Test {
  protected:
    GradientEditorTest() {
        data() = GlobalData{};
        editor.awakeFromNib(noPresets);
        posts = 0;
        surface = {};
    }

    static GlobalData& data() { return GlobalData::sharedData(); }
    MarkerInteraction& mouse() { return editor.interaction(); }

    void press(Point point, int clicks = 1) { mouse().mouseDown(point, clicks); }
    void drag(Point from, Point to) {
        press(from);
        mouse().mouseDragged(to);
        mouse().mouseUp();
    }
    void type(StopValue value, const std::string& text) {
        controls.field(value).shown = text;
        editor.controls().updateTextFieldValue(value);
    }
    void step(StopValue value, double to) {
        controls.stepper(value).setValue(to);
        editor.controls().updateStepperValue(value);
    }
    void chooseOrientation(std::int64_t item) {
        controls.orientation.selected = item;
        editor.controls().updateOrientationComboBoxValue();
    }
    void chooseFormat(std::int64_t item) {
        controls.colorFormat.selected = item;
        editor.controls().updateColorFormatComboBoxValue();
    }
    std::string shown(StopValue value) { return controls.field(value).shown; }

    LogCapture log;
    FakeControls controls;
    FakeSurface surface;
    GradientEditor editor{Size{440, 140}, surface, controls.set()};
    int posts = 0;
    NotificationCenter::Observation observation = NotificationCenter::defaultCenter().addObserver(
        canvasNotification::needToUpdateWebCode, &editor, [this](const auto&) { ++posts; });
};

TEST_F(GradientEditorTest, startsWithTheDefaultGradientAndFilledControls) {
    EXPECT_EQ(data().colorMarkerPos(), (Positions{0.0, 1.0}));
    EXPECT_EQ(data().colorMarkerColor(), (std::vector{Color::black(), Color::white()}));
    EXPECT_EQ(data().colorMarkerOpacity(), (Positions{1.0, 1.0}));
    EXPECT_EQ(editor.markers().selectedColorMarkerIndex(), 1);
    EXPECT_TRUE(editor.controls().formReady());
    const std::pair<StopValue, std::string> fields[] = {
        {StopValue::Red, "256"},        {StopValue::Green, "256"},    {StopValue::Blue, "256"},
        {StopValue::Hue, "0"},          {StopValue::Saturation, "0"}, {StopValue::Lightness, "100"},
        {StopValue::Position, "1.000"}, {StopValue::Opacity, "1.000"}};
    for (const auto& [value, text] : fields) {
        EXPECT_EQ(shown(value), text);
    }
    EXPECT_EQ(controls.stepper(StopValue::Red).held, 255) << "the field shows what the stepper cannot hold";
    EXPECT_EQ(controls.orientation.selected, 0);
    EXPECT_EQ(controls.colorFormat.selected, 0);
    EXPECT_FALSE(controls.field(StopValue::Opacity).enabled);
    EXPECT_TRUE(controls.field(StopValue::Position).enabled);
}

TEST_F(GradientEditorTest, aRepaintFromIdleRunsOnceMoreNestedAndPostsForEach) {
    editor.createBackground();
    EXPECT_EQ(surface.paints, 2);
    EXPECT_EQ(posts, 2);
    EXPECT_TRUE(editor.controls().formReady());
    posts = 0;
    step(StopValue::Position, 0.5);
    EXPECT_EQ(posts, 1) << "a handler keeps the form closed, and the echo of the well out";
}

TEST_F(GradientEditorTest, aDoubleClickAddsABlackStopAndGrabsIt) {
    press({220, 30}, 2);
    EXPECT_EQ(data().colorMarkerPos(), (Positions{0.0, 0.5, 1.0}));
    EXPECT_EQ(data().colorMarkerColor()[1], Color::black());
    EXPECT_EQ(editor.markers().selectedColorMarkerIndex(), 1);
    EXPECT_TRUE(mouse().startDrag());
    const int redrawsBefore = surface.redraws;
    mouse().mouseDragged({260, 90});
    EXPECT_GT(surface.redraws, redrawsBefore);
    EXPECT_EQ(data().colorMarkerPos()[1], 0.6);
    EXPECT_EQ(mouse().markerDragOrientation(), 1);
    mouse().mouseUp();
    mouse().mouseDragged({300, 30});
    EXPECT_EQ(data().colorMarkerPos()[1], 0.6);
    press({15, 30}, 2);
    press({425, 30}, 2);
    EXPECT_EQ(data().stopCount(), 3U) << "off the track";
    for (const char* message : {"double Clicked!", "addColorMarker: -2", "position: 1", "Clicked!",
                                "selectedColorMarkerIndex: 1", "startDragImagePosX: 200"}) {
        EXPECT_TRUE(log.has(message)) << message;
    }
}

TEST_F(GradientEditorTest, draggingPastANeighbourReordersAndKeepsTheSelection) {
    press({220, 25}, 2); // at 0.5
    mouse().mouseUp();
    press({300, 25}, 2); // at 0.7
    mouse().mouseUp();
    type(StopValue::Red, "255");
    drag({220, 25}, {320, 25});
    EXPECT_EQ(data().colorMarkerPos(), (Positions{0.0, 0.7, 0.75, 1.0}));
    EXPECT_EQ(editor.markers().selectedColorMarkerIndex(), 2);
    EXPECT_EQ(data().colorMarkerColor()[1], Color::calibratedRGB(1, 0, 0));
    drag({320, 25}, {0, 25});
    EXPECT_EQ(data().colorMarkerPos(), (Positions{0.0, 0.0, 0.7, 1.0})) << "clamped, and behind its equal";
    EXPECT_EQ(editor.markers().selectedColorMarkerIndex(), 1);
}

TEST_F(GradientEditorTest, aRadialDoubleClickRaisesTheLowerBoundForGood) {
    chooseOrientation(4);
    press({320, 60}, 2);
    EXPECT_EQ(data().colorMarkerPos(), (Positions{0.0, 0.5, 1.0}));
    EXPECT_EQ(mouse().minColorMarkerPos(), 200);
    mouse().mouseDragged({270, 60}); // 50 of 200 points to the left
    EXPECT_EQ(data().colorMarkerPos()[1], 0.25);
    EXPECT_TRUE(log.has("newPos: 0.250000"));
    mouse().mouseUp();
    chooseOrientation(0);
    press({100, 30}, 2);
    EXPECT_EQ(data().stopCount(), 3U) << "offset 80 is below the bound";
    press({320, 30}, 2); // offset 300: the place of the click over what the bound leaves
    EXPECT_EQ(data().colorMarkerPos(), (Positions{0.0, 0.25, 1.0, 1.5}));
    drag({120, 25}, {0, 25});
    EXPECT_EQ(data().colorMarkerPos()[1], 0.5) << "no further left than offset 200";
}

TEST_F(GradientEditorTest, dragsAlongTheTrackOfEveryOrientation) {
    const struct {
        std::int64_t item;
        Point from, to;
        double position;
    } rows[] = {{0, {20, 25}, {120, 0}, 0.25},
                {1, {25, 20}, {400, 70}, 0.5},
                {2, {20, 20}, {400, 40}, 0.2},
                {3, {420, 20}, {420, 95}, 0.75},
                {4, {225, 65}, {325, 65}, 0.5}};
    for (const auto& row : rows) {
        data().colorMarkerPos() = {0.0, 1.0};
        chooseOrientation(row.item);
        drag(row.from, row.to);
        EXPECT_EQ(data().colorMarkerPos()[0], row.position) << row.item;
    }
}

TEST_F(GradientEditorTest, deletesAndDeliberatelyLeavesTheOpacityBehind) {
    data().setColorMarkerPos({0.0, 0.5, 1.0});
    data().setColorMarkerColor({Color::black(), Color::black(), Color::white()});
    data().setColorMarkerOpacity({1.0, 0.5, 0.2});
    editor.repaint();
    const auto counts = [&] { return std::array{surface.paints, surface.redraws, posts}; };
    const auto countsBefore = counts();
    EXPECT_TRUE(mouse().rightMouseDown({20, 25}));
    EXPECT_EQ(counts(), countsBefore) << "a right click repaints nothing";
    EXPECT_FALSE(mouse().rightMouseDown({100, 100}));
    mouse().deleteColorMarker();
    EXPECT_EQ(data().colorMarkerPos(), (Positions{0.5, 1.0}));
    EXPECT_EQ(data().colorMarkerOpacity(), (Positions{1.0, 0.5, 0.2}));
    EXPECT_EQ(editor.markers().selectedColorMarkerIndex(), 0);
    editor.markers().select(1);
    mouse().deleteColorMarker();
    mouse().deleteColorMarker();
    mouse().deleteColorMarker(); // nothing is left to delete
    EXPECT_EQ(data().stopCount(), 0U);
    EXPECT_FALSE(controls.field(StopValue::Red).enabled || controls.well.enabled);
    type(StopValue::Position, "0.5");
    editor.markers().addColorMarker(Color::black(), 0.3, 1.0, 5);
    EXPECT_EQ(data().stopCount(), 0U);
    press({220, 25}, 2);
    EXPECT_EQ(data().stopCount(), 1U);
    EXPECT_TRUE(controls.field(StopValue::Red).enabled);
}

TEST_F(GradientEditorTest, typedAndSteppedColorsFollowEachOther) {
    type(StopValue::Red, "300");
    EXPECT_EQ(shown(StopValue::Red), "255");
    EXPECT_EQ(data().colorMarkerColor()[1], Color::white());
    type(StopValue::Green, "-7");
    type(StopValue::Blue, "");
    EXPECT_EQ(shown(StopValue::Green), "0");
    EXPECT_EQ(data().colorMarkerColor()[1], Color::calibratedRGB(1, 0, 0));
    EXPECT_EQ(shown(StopValue::Saturation), "100");
    EXPECT_EQ(shown(StopValue::Lightness), "50");
    step(StopValue::Red, 127);
    EXPECT_EQ(data().colorMarkerColor()[1].calibratedRGB()->red, static_cast<double>(127.0F / 255.0F));
    EXPECT_EQ(shown(StopValue::Red), "127");
    type(StopValue::Saturation, "100");
    type(StopValue::Lightness, "50");
    type(StopValue::Hue, "120");
    EXPECT_EQ(shown(StopValue::Red), "-1") << "as converted, the stepper beside it at its bound";
    EXPECT_EQ(shown(StopValue::Blue), "1");
    EXPECT_EQ(controls.stepper(StopValue::Red).held, 0);
    EXPECT_EQ(data().colorMarkerColor()[1], Color::calibratedRGB(0, 1, static_cast<double>(1.0F / 255.0F)));
}

TEST_F(GradientEditorTest, aPickedColorReachesTheStopAndAllFields) {
    controls.well.setBackgroundColor(Color::calibratedRGB(0, 0, 1));
    EXPECT_EQ(data().colorMarkerColor()[1], Color::calibratedRGB(0, 0, 1));
    EXPECT_EQ(shown(StopValue::Blue), "256");
    EXPECT_EQ(shown(StopValue::Hue), "240");
    EXPECT_TRUE(log.has("colorChangedNotification"));
    FakeWell stranger;
    posts = 0;
    stranger.setBackgroundColor(Color::black());
    EXPECT_EQ(posts, 0);
}

TEST_F(GradientEditorTest, typedPositionsDoNotSortAndOpacityNeedsItsNotation) {
    press({220, 25}, 2);
    mouse().mouseUp();
    editor.markers().select(2);
    type(StopValue::Position, "0.2");
    EXPECT_EQ(data().colorMarkerPos(), (Positions{0.0, 0.5, 0.2}));
    EXPECT_EQ(shown(StopValue::Position), "0.200");
    type(StopValue::Position, "1e9");
    EXPECT_EQ(data().colorMarkerPos()[2], 1.0);
    posts = 0;
    editor.controls().setFormReady(false);
    chooseFormat(colorFormat::rgba);
    EXPECT_EQ(posts, 0);
    editor.controls().setFormReady(true);
    chooseFormat(colorFormat::rgba);
    EXPECT_EQ(posts, 2);
    EXPECT_TRUE(controls.field(StopValue::Opacity).enabled && controls.stepper(StopValue::Opacity).enabled);
    type(StopValue::Opacity, "0.25");
    EXPECT_EQ(data().colorMarkerOpacity()[2], 0.25);
    chooseFormat(-1);
    EXPECT_EQ(data().colorFormatType(), colorFormat::rgba);
    EXPECT_TRUE(controls.field(StopValue::Opacity).enabled);
    chooseFormat(colorFormat::hsl);
    EXPECT_FALSE(controls.field(StopValue::Opacity).enabled);
}

TEST_F(GradientEditorTest, mapsTheOrientationListToTheCodesAndBack) {
    constexpr std::array<std::int64_t, 5> codes{1, 0, 2, 3, 4};
    for (std::int64_t item = 0; item < 5; ++item) {
        chooseOrientation(item);
        EXPECT_EQ(data().orientationType(), codes[static_cast<std::size_t>(item)]);
        controls.orientation.selected = -1;
        editor.gradientReplaced();
        EXPECT_EQ(controls.orientation.selected, item);
    }
    chooseOrientation(-1);
    EXPECT_EQ(data().orientationType(), 4);
    data().setOrientationType(9);
    editor.gradientReplaced();
    EXPECT_EQ(controls.orientation.selected, -1);
}

TEST_F(GradientEditorTest, keysMoveTheSelectedStopAlongItsTrackPointByPoint) {
    const struct {
        std::int64_t item;
        int right, up;
        double position; // after one point from 0.5, or unchanged
    } rows[] = {{0, 1, 0, 201.0 / 400}, {0, 0, 1, 0.5},        {1, 0, -1, 49.0 / 100}, {2, 1, 0, 51.0 / 100},
                {3, 1, 0, 49.0 / 100},  {3, 0, 1, 51.0 / 100}, {4, -1, 0, 99.0 / 200}};
    for (const auto& row : rows) {
        chooseOrientation(row.item);
        data().colorMarkerPos() = {0.0, 0.5};
        EXPECT_EQ(mouse().moveSelected(row.right, row.up, 1), row.position != 0.5);
        EXPECT_DOUBLE_EQ(data().colorMarkerPos()[1], row.position) << row.item;
    }
    chooseOrientation(0);
    data().colorMarkerPos() = {0.0, 0.5};
    for (int i = 0; i < 400; ++i) {
        mouse().moveSelected(-1, 0, 1);
    }
    EXPECT_EQ(data().colorMarkerPos(), (Positions{0.0, 0.0})) << "no step may stick to a rounded place";
    EXPECT_TRUE(mouse().selectNeighbour(-1));
    EXPECT_FALSE(mouse().selectNeighbour(-1));
    editor.markers().select(7); // as after a preset with fewer stops
    EXPECT_TRUE(mouse().selectNeighbour(-1));
    EXPECT_EQ(editor.markers().selectedColorMarkerIndex(), 1);
}

TEST_F(GradientEditorTest, noSequenceOfActionsBreaksTheInvariants) {
    std::mt19937 random;
    const auto upTo = [&](int most) { return std::uniform_int_distribution<int>{0, most}(random); };
    const auto anywhere = [&] { return Point{upTo(500) - 30.0, upTo(200) - 30.0}; };
    const auto anyValue = [&] { return stopValues[static_cast<std::size_t>(upTo(7))].value; };
    const std::string texts[] = {"", "0", "0.5", "300", "-4", "1e99", "abc", "128"};
    const auto deleteOne = [&] {
        mouse().rightMouseDown(anywhere());
        if (data().stopCount() > static_cast<std::size_t>(upTo(8))) {
            mouse().deleteColorMarker();
        }
    };
    constexpr std::size_t deletion = 0;
    constexpr std::size_t firstUnsorting = 7;
    const std::function<void()> actions[] = {
        deleteOne,
        [&] { press(anywhere(), 2); },
        [&] { press(anywhere()); },
        [&] { mouse().mouseDragged(anywhere()); },
        [&] { mouse().mouseUp(); },
        [&] { mouse().moveSelected(upTo(2) - 1, upTo(2) - 1, upTo(10)); },
        [&] { chooseOrientation(upTo(6) - 1), chooseFormat(upTo(6) - 1); },
        [&] { type(anyValue(), texts[upTo(7)]); },
        [&] { step(anyValue(), upTo(300) / 2.0); },
        [&] { editor.markers().select(upTo(12) - 2), editor.repaint(); }};
    const auto isSorted = [] {
        return std::is_sorted(data().colorMarkerPos().begin(), data().colorMarkerPos().end());
    };
    editor.repaint();
    for (unsigned i = 0; i < 10'000; ++i) {
        if (i % 2'000 == 0) {
            random.seed(i);
        }
        const bool wasSorted = isSorted();
        const std::size_t opacities = data().colorMarkerOpacity().size();
        const auto action = static_cast<std::size_t>(upTo(std::size(actions) - 1));
        actions[action]();
        ASSERT_TRUE(isSorted() || !wasSorted || action >= firstUnsorting) << i;
        ASSERT_TRUE(action != deletion || data().colorMarkerOpacity().size() == opacities) << i;
        ASSERT_EQ(data().colorMarkerPos().size(), data().colorMarkerColor().size()) << i;
        ASSERT_GE(data().colorMarkerOpacity().size(), data().stopCount()) << i;
        ASSERT_EQ(surface.markers.size(), data().stopCount()) << i;
        ASSERT_TRUE(editor.controls().formReady()) << i;
        for (const double opacity : data().colorMarkerOpacity()) {
            ASSERT_TRUE(opacity >= 0 && opacity <= 1) << i;
        }
    }
}

} // namespace
} // namespace tessaly
