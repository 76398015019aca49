#include "canvas/CanvasGeometry.h"
#include "model/Orientation.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

TEST(CanvasGeometry, placesMarkersGuideLinesAndTheDisc) {
    const CanvasGeometry geometry{Size{440, 140}};
    EXPECT_EQ(geometry.markerRect(orientation::bottomToTop, 1.0), (Rect{15, 110, 20, 20}));
    EXPECT_EQ(geometry.markerRect(9, 0.25), (Rect{310, 35, 20, 20}));
    const CanvasGeometry odd{Size{441.7, 141.7}}; // extents are cut, and halved as whole numbers
    EXPECT_EQ(odd.markerRect(orientation::radial, 1.0), (Rect{410.5, 50, 20, 20}));
    EXPECT_EQ(geometry.guideLine(2), (GuideLine{{{20, 20}, {420, 120}}, {{21, 20}, {420, 119}}}));
    EXPECT_EQ(geometry.guideLine(3), (GuideLine{{{20, 120}, {420, 20}}, {{20, 119}, {419, 20}}}));
    EXPECT_EQ(geometry.guideLine(4), (GuideLine{{{210, 60}, {420, 60}}, {{210, 61}, {420, 61}}}));
    EXPECT_FALSE(geometry.guideLine(0) || geometry.guideLine(1) || geometry.guideLine(5));
    EXPECT_EQ(geometry.radialCenter(), (Point{210, 60}));
    EXPECT_EQ(geometry.radialRadius(), 200);
}

TEST(CanvasGeometry, knowsWhichWayEachTrackRuns) {
    struct Row {
        std::int64_t orientation;
        int right;
        int up;
    };
    for (const auto& [orientation, right, up] : {Row{orientation::bottomToTop, 0, 1},
                                                 {orientation::leftToRight, 1, 0},
                                                 {orientation::diagonalToTopRight, 1, 1},
                                                 {orientation::diagonalToTopLeft, -1, 1},
                                                 {orientation::radial, 1, 0}}) {
        EXPECT_EQ(CanvasGeometry::alongTrack(orientation, 1, 0), right) << orientation;
        EXPECT_EQ(CanvasGeometry::alongTrack(orientation, 0, 1), up) << orientation;
    }
}

} // namespace
} // namespace tessaly
