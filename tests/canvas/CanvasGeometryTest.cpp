#include "canvas/CanvasGeometry.h"
#include "model/Orientation.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

TEST(CanvasGeometry, placesMarkersGuideLinesAndTheDisc) {
    const CanvasGeometry geometry{Size{440, 140}};
    const struct {
        std::int64_t orientation;
        double position;
        Point corner;
    } rows[] = {{1, 0.5, {210, 15}}, {1, 0.0, {10, 15}},   {0, 0.0, {15, 10}},  {0, 1.0, {15, 110}},
                {2, 0.0, {10, 10}},  {2, 1.0, {410, 110}}, {3, 0.0, {410, 10}}, {3, 1.0, {10, 110}},
                {4, 0.0, {210, 50}}, {4, 0.5, {310, 50}},  {4, 1.0, {410, 50}}, {9, 0.25, {310, 35}}};
    for (const auto& [orientation, position, corner] : rows) {
        EXPECT_EQ(geometry.markerRect(orientation, position), (Rect{corner.x, corner.y, 20, 20}))
            << orientation << " at " << position;
    }
    const CanvasGeometry odd{Size{441.7, 141.7}}; // extents are cut, and halved as whole numbers
    EXPECT_EQ(odd.markerRect(orientation::radial, 1.0), (Rect{410.5, 50, 20, 20}));
    EXPECT_EQ(geometry.guideLine(2), (GuideLine{{{20, 20}, {420, 120}}, {{21, 20}, {420, 119}}}));
    EXPECT_EQ(geometry.guideLine(3), (GuideLine{{{20, 120}, {420, 20}}, {{20, 119}, {419, 20}}}));
    EXPECT_EQ(geometry.guideLine(4), (GuideLine{{{210, 60}, {420, 60}}, {{210, 61}, {420, 61}}}));
    EXPECT_FALSE(geometry.guideLine(0) || geometry.guideLine(1) || geometry.guideLine(5));
    EXPECT_EQ(geometry.radialCenter(), (Point{210, 60}));
    EXPECT_EQ(geometry.radialRadius(), 200);
}

} // namespace
} // namespace tessaly
