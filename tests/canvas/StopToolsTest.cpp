#include "canvas/StopTools.h"

#include "raster/GradientRamp.h"

#include <gtest/gtest.h>
#include <vector>

namespace tessaly {
namespace {

const Color red = Color::calibratedRGB(1, 0, 0);
const Color green = Color::calibratedRGB(0, 1, 0);
const Color blue = Color::calibratedRGB(0, 0, 1);

GlobalData record(std::vector<ColorStop> stops, std::int64_t notation = colorFormat::rgba) {
    return {Gradient{std::move(stops), orientation::radial}, notation};
}

TEST(StopTools, RearrangeTheStopsAndTakeTheSelectionAlong) {
    const std::vector<ColorStop> unsorted{{0.5, red, 0.25}, {0.25, green}, {0.25, blue}};
    struct Case {
        StopTool tool;
        std::int64_t selected;
        std::vector<ColorStop> stops;
        std::int64_t selectedThen;
    };
    for (const Case& wanted : {
             Case{StopTool::Reverse, 0, {{0.75, blue}, {0.75, green}, {0.5, red, 0.25}}, 2},
             Case{StopTool::Reverse, 7, {{0.75, blue}, {0.75, green}, {0.5, red, 0.25}}, 7},
             Case{StopTool::Distribute, 1, {{0.25, red, 0.25}, {0.375, green}, {0.5, blue}}, 1},
             Case{StopTool::Sort, 0, {{0.25, green}, {0.25, blue}, {0.5, red, 0.25}}, 2},
             Case{StopTool::Sort, 2, {{0.25, green}, {0.25, blue}, {0.5, red, 0.25}}, 1},
             Case{StopTool::Duplicate,
                  0,
                  {{0.5, red, 0.25}, {0.5, red, 0.25}, {0.25, green}, {0.25, blue}},
                  1},
         }) {
        const auto result = appliedTo(record(unsorted), wanted.selected, wanted.tool);
        ASSERT_TRUE(result) << nameOf(wanted.tool);
        EXPECT_EQ(result->gradient, Gradient(wanted.stops, orientation::radial)) << nameOf(wanted.tool);
        EXPECT_EQ(result->selected, wanted.selectedThen) << nameOf(wanted.tool);
    }
}

TEST(StopTools, AddAStopInBetweenThatCannotBeSeen) {
    const std::vector<ColorStop> stops{{0.0, red, 0.5}, {0.5, blue}, {1.0, green, 0.0}};
    for (const std::int64_t notation : {colorFormat::rgba, colorFormat::hexadecimal}) {
        const auto opacity = GradientRamp::opacityIn(notation);
        const GradientRamp before{stops, opacity};
        for (const std::int64_t selected : {0, 1, 2}) {
            const auto result = appliedTo(record(stops, notation), selected, StopTool::AddInBetween);
            ASSERT_TRUE(result);
            const std::size_t added = selected == 0 ? 1 : 2;
            EXPECT_EQ(result->gradient.stops()[added].position, selected == 0 ? 0.25 : 0.75);
            EXPECT_EQ(result->gradient.stops()[added].opacity, selected == 0 ? 0.75 : 0.5);
            EXPECT_EQ(result->selected, selected == 2 ? 3 : selected) << "its stop";
            const GradientRamp after{result->gradient.stops(), opacity};
            for (double t = 0.003; t < 1.0; t += 0.01) {
                ASSERT_EQ(after.pixelAt(t), before.pixelAt(t)) << notation << ' ' << selected << ' ' << t;
            }
        }
    }
    const auto unseen = appliedTo(record({{0.0, red, 0.0}, {1.0, blue, 0.0}}), 1, StopTool::AddInBetween);
    EXPECT_EQ(unseen->gradient.stops()[1], (ColorStop{0.5, blue, 0.0})) << "a colour that nobody sees";
}

TEST(StopTools, DropOpacitiesThatDeletionsLeftBehind) {
    GlobalData deleted = record({{0.0, red}, {0.5, green, 0.5}, {1.0, blue}});
    deleted.gradient.remove(1);
    const auto result = appliedTo(deleted, 0, StopTool::Reverse);
    EXPECT_TRUE(result->gradient.leftOpacities().empty());
}

TEST(StopTools, AreOfNoUseWhereNothingWouldChange) {
    const std::vector<ColorStop> even{{0.0, red}, {0.5, blue}, {1.0, red}};
    for (const StopTool tool : {StopTool::Reverse, StopTool::Distribute, StopTool::Sort}) {
        EXPECT_FALSE(appliedTo(record(even), 0, tool)) << nameOf(tool);
    }
    for (const StopTool tool : allStopTools) {
        EXPECT_FALSE(appliedTo(record({}), 0, tool)) << nameOf(tool);
    }
    for (const StopTool tool : {StopTool::AddInBetween, StopTool::Duplicate}) {
        EXPECT_FALSE(appliedTo(record(even), 3, tool)) << nameOf(tool);
        EXPECT_FALSE(appliedTo(record(even), -1, tool)) << nameOf(tool);
    }
    EXPECT_FALSE(appliedTo(record({{0.5, red}}), 0, StopTool::AddInBetween));
}

} // namespace
} // namespace tessaly
