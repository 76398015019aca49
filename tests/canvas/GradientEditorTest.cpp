#include "canvas/GradientEditor.h"

#include "foundation/NumberText.h"
#include "support/FakeControls.h"
#include "support/LogCapture.h"
#include "support/NoHistory.h"

#include <functional>
#include <gtest/gtest.h>

namespace tessaly {
namespace {

using Positions = std::vector<double>;
using Counts = std::array<int, 2>;

class GradientEditorTest : public testing::Test {
  protected:
    GradientEditorTest() {
        editor.awakeFromNib();
        takeCounts();
    }

    MarkerInteraction& mouse() { return editor.interaction(); }

    void type(StopValue value, const std::string& text) {
        controls.fields[static_cast<std::size_t>(value)].shown = text;
        editor.controls().updateTextFieldValue(value);
    }
    void step(StopValue value, double to) {
        controls.steppers[static_cast<std::size_t>(value)].setValue(to);
        editor.controls().updateStepperValue(value);
    }

    /// Stops a, b, c ... each with a colour and an opacity of its own, the last one selected.
    void setStops(const Positions& positions, std::int64_t orientation = orientation::leftToRight) {
        std::vector<ColorStop> stops;
        for (const double position : positions) {
            const double shade = 0.125 * static_cast<double>(stops.size() + 1);
            stops.push_back({position, Color::calibratedRGB(shade, 0, 0), 1 - shade});
        }
        data = {Gradient{std::move(stops), orientation}};
        mouse().select(std::ssize(positions) - 1);
    }
    /// Letter and position of each stop, ">" before the selected one. "+" is a black one, "w" a white; "*"
    /// follows the letter of one whose opacity is not its own.
    std::string stops() {
        std::string text;
        for (std::int64_t i = 0; const auto stop = data.gradient.stopAt(i); ++i) {
            const double shade = stop->color.calibratedRGB()->red;
            text += i == editor.markers().selectedColorMarkerIndex() ? " >" : " ";
            text += "+abcdefgw"[static_cast<int>(shade * 8)];
            text += (stop->opacity == 1 - shade ? "" : "*") + significantText(stop->position, 12);
        }
        return text;
    }
    /// What the eight fields show, the disabled ones in parentheses.
    std::string fields() {
        std::string text;
        for (std::size_t i = 0; i < stopValues.size(); ++i) {
            const std::string& shown = controls.fields[i].shown;
            text += controls.fields[i].enabled ? ' ' + shown : " (" + shown + ')';
            EXPECT_EQ(controls.steppers[i].enabled, controls.fields[i].enabled);
        }
        return text;
    }
    /// Announcements and paintings since the last call.
    Counts takeCounts() { return {std::exchange(posts, 0), std::exchange(surface.paints, 0)}; }

    LogCapture log;
    FakeControls controls;
    FakeSurface surface;
    GlobalData data;
    const CanvasGeometry geometry{Size{440, 140}};
    NoHistory history;
    GradientEditor editor{data, history, geometry, surface, controls.set};
    int posts = 0;
    NotificationCenter::Observation observation = NotificationCenter::defaultCenter().addObserver(
        canvasNotification::needToUpdateWebCode, &editor, [this](const auto&) { ++posts; });
};

TEST_F(GradientEditorTest, startsWithTheDefaultGradientAndFilledControls) {
    EXPECT_EQ(stops(), " +0 >w*1");
    EXPECT_EQ(fields(), " 256 256 256 0 0 100 1.000 (1.000)");
    EXPECT_EQ(controls.steppers[0].held, 255) << "the field shows what the stepper cannot hold";
    EXPECT_TRUE(controls.orientation.selected == 0 && controls.colorFormat.selected == 0);
    editor.createBackground();
    EXPECT_EQ(takeCounts(), (Counts{2, 2})) << "from idle it runs once more, nested";
    step(StopValue::Position, 0.5);
    EXPECT_EQ(takeCounts(), (Counts{1, 1})) << "a handler keeps the echo of the well out";
}

TEST_F(GradientEditorTest, mouseAndKeysAddAndMoveStopsOnEveryTrack) {
    const auto drag = [&](Point from, Point to, int clicks = 1) {
        mouse().mouseDown(from, clicks);
        mouse().mouseDragged(to);
        mouse().mouseUp();
        mouse().mouseDragged(from);
    };
    const auto add = [&](Point at, Point to) { drag(at, to, 2); };
    const auto key = [&](Point way, Point /*unused*/) {
        mouse().moveSelected(static_cast<int>(way.x), static_cast<int>(way.y), 1);
    };
    using Gesture = std::function<void(Point, Point)>;
    const std::tuple<const char*, std::int64_t, Positions, Gesture, Point, Point, const char*> rows[] = {
        {"adds and grabs", 1, {0, 1}, add, {220, 30}, {260, 90}, " a0 >+0.6 b1"},
        {"left of the track", 1, {0, 1}, add, {15, 30}, {60, 30}, " a0 >b1"},
        {"right of the track", 1, {0, 1}, add, {425, 30}, {300, 30}, " a0 >b1"},
        {"in the corner of a marker", 1, {0, 0.5}, drag, {212, 33}, {312, 33}, " a0 >b0.5"},
        {"on the edge of a marker", 1, {0, 0.5}, drag, {210, 25}, {250, 25}, " a0 >b0.6"},
        {"the lower of two markers", 1, {0.5, 0.52}, drag, {224, 25}, {264, 25}, " b0.52 >a0.6"},
        {"past the end", 1, {0, 0.5, 0.7}, drag, {220, 25}, {500, 25}, " a0 c0.7 >b1"},
        {"adds beside the upward track", 0, {0, 1}, add, {220, 45}, {0, 0}, " a0 >+0.25 b1"},
        {"drags up", 0, {0, 1}, drag, {25, 20}, {400, 70}, " >a0.5 b1"},
        // Added where the other diagonal through the point meets the track, not square to it.
        {"adds below a diagonal", 2, {0, 1}, add, {220, 20}, {0, 0}, " a0 >+0.25 b1"},
        {"adds above a diagonal", 3, {0, 1}, add, {420, 70}, {0, 0}, " a0 >+0.25 b1"},
        {"drags to the top left", 9, {0, 1}, drag, {420, 20}, {420, 95}, " >a0.75 b1"},
        {"down", 0, {0, 0.5}, key, {0, -1}, {}, " a0 >b0.49"},
        {"right is up", 2, {0, 0.5}, key, {1, 0}, {}, " a0 >b0.51"},
        {"right is down", 3, {0, 0.5}, key, {1, 0}, {}, " a0 >b0.49"},
        {"inwards", 4, {0, 0.5}, key, {-1, 0}, {}, " a0 >b0.495"},
        {"drags outwards", 4, {0, 1}, drag, {225, 65}, {325, 65}, " >a0.5 b1"},
        {"adds and drags inwards", 4, {0, 1}, add, {320, 60}, {270, 60}, " a0 >+0.25 b1"},
        // The disc's lower bound stays for good; above it the place counts over what the bound leaves.
        {"below the bound", 1, {0, 1}, add, {100, 30}, {300, 30}, " a0 >b1"},
        {"above the bound", 1, {0, 1}, add, {320, 30}, {0, 30}, " a0 b1 >+1.5"},
        {"down to the bound", 1, {0, 0.25, 1}, drag, {120, 25}, {0, 25}, " a0 >b0.5 c1"}};
    for (const auto& [name, orientation, before, act, from, to, after] : rows) {
        setStops(before, orientation);
        act(from, to);
        EXPECT_EQ(stops(), after) << name;
    }
    EXPECT_TRUE(log.has("startDragImagePosX: 200") && log.has("x: 320.000000 y: 45.000000"));
}

TEST_F(GradientEditorTest, deletesAndDeliberatelyLeavesTheOpacityBehind) {
    setStops({0, 0.5, 1});
    takeCounts();
    EXPECT_TRUE(mouse().rightMouseDown({20, 25}) && !mouse().rightMouseDown({100, 100}));
    EXPECT_EQ(takeCounts(), Counts{}) << "a right click repaints nothing";
    for (const char* left : {" >b*0.5 c*1", " >c*1", "", ""}) {
        mouse().deleteColorMarker();
        EXPECT_EQ(stops(), left);
    }
    type(StopValue::Position, "0.5"); // of no stop
    EXPECT_TRUE(fields().starts_with(" (") && !controls.well.enabled);
    mouse().mouseDown({220, 25}, 2);
    EXPECT_TRUE(stops() == " >+*0.5" && !fields().starts_with(" (") && controls.well.enabled);
}

TEST_F(GradientEditorTest, keysReachEveryPointAndEveryStop) {
    setStops({0, 0}, orientation::bottomToTop);
    EXPECT_FALSE(mouse().moveSelected(1, 0, 1)) << "the track does not run so";
    for (int i = 0; i < 100; ++i) {
        mouse().moveSelected(0, 1, 1);
    }
    EXPECT_EQ(stops(), " a0 >b1") << "no step may stick to a rounded place";
    setStops({0.5, 1});
    mouse().mouseDown({420, 25}, 1);
    mouse().addBesideSelected();
    mouse().addBesideSelected();
    mouse().mouseDragged({20, 25}); // of what it grabbed no more
    mouse().mouseUp();
    EXPECT_EQ(stops(), " a0.5 +0.75 >+0.875 b1") << "before the last, then behind the new one";
    setStops({0, 1});
    EXPECT_TRUE(mouse().selectNeighbour(-1) && !mouse().selectNeighbour(-1));
    setStops({0, 1, 1, 1});
    data.gradient = Gradient{{{0.0}, {1.0}}}; // a preset with fewer stops
    EXPECT_TRUE(mouse().selectNeighbour(-1));
    EXPECT_EQ(editor.markers().selectedColorMarkerIndex(), 1);
}

TEST_F(GradientEditorTest, typedAndSteppedValuesReachTheStopAndTheOtherFields) {
    setStops({0, 0.5, 1});
    data.colorFormatType = colorFormat::rgba;
    controls.well.setBackgroundColor(Color::white()); // picked
    EXPECT_EQ(fields(), " 256 256 256 0 0 100 1.000 0.625");
    // Typed, or stepped where there is no text.
    const std::tuple<StopValue, const char*, double, const char*> rows[] = {
        {StopValue::Red, "300", 0, " 255 256 256 0 0 100 1.000 0.625"},
        {StopValue::Green, "-7", 0, " 255 0 256 300 100 50 1.000 0.625"},
        {StopValue::Blue, "", 0, " 255 0 0 0 100 50 1.000 0.625"},
        {StopValue::Red, nullptr, 127, " 127 0 0 0 100 24 1.000 0.625"},
        {StopValue::Lightness, nullptr, 50, " 255 0 0 0 100 50 1.000 0.625"},
        {StopValue::Hue, "120", 0, " -1 255 1 120 100 50 1.000 0.625"}, // as converted
        {StopValue::Opacity, nullptr, 0.25, " -1 255 1 120 100 50 1.000 0.250"},
        {StopValue::Position, "-1e9", 0, " -1 255 1 120 100 50 0.000 0.250"},
        {StopValue::Position, "0.2", 0, " -1 255 1 120 100 50 0.200 0.250"}};
    for (const auto& [value, typed, stepped, shown] : rows) {
        typed != nullptr ? type(value, typed) : step(value, stepped);
        EXPECT_EQ(fields(), shown);
    }
    EXPECT_TRUE(log.has("Temporary RGB: 0.666333, 0.333333, 0.000333") && log.has("RGB: -1, 255, 1"));
    const Color color = Color::calibratedRGB(0, 1, static_cast<double>(1 / 255.0F));
    EXPECT_EQ(data.gradient.stopAt(2), (ColorStop{0.2, color, 0.25})) << "a typed position does not sort";
}

} // namespace
} // namespace tessaly
