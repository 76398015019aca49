#include "canvas/CanvasGeometry.h"
#include "canvas/CanvasScene.h"
#include "canvas/MarkerHitAreas.h"
#include "support/Gradients.h"
#include "support/LogCapture.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

const CanvasGeometry geometry{Size{440, 140}};

TEST(CanvasGeometry, placesTheMarkersOfEveryOrientation) {
    EXPECT_EQ(geometry.strip(), (Rect{20, 20, 400, 100}));
    EXPECT_EQ(geometry.maxColorMarkerPosDiagonal(), 412);
    EXPECT_EQ(geometry.diagonalBottomGradient(), 0.25);
    EXPECT_EQ(geometry.diagonalTopGradient(), -0.25);
    const struct {
        std::int64_t orientation;
        double position;
        Point corner;
    } rows[] = {{1, 0.5, {210, 15}}, {1, 0.0, {10, 15}},   {0, 0.0, {15, 10}},  {0, 1.0, {15, 110}},
                {2, 0.0, {10, 10}},  {2, 1.0, {410, 110}}, {3, 0.0, {410, 10}}, {3, 1.0, {10, 110}},
                {4, 0.0, {210, 50}}, {4, 0.5, {310, 50}},  {4, 1.0, {410, 50}}, {9, 0.25, {310, 35}}};
    for (const auto& row : rows) {
        EXPECT_EQ(geometry.markerRect(row.orientation, row.position),
                  (Rect{row.corner.x, row.corner.y, 20, 20}))
            << row.orientation << " at " << row.position;
    }
    const CanvasGeometry odd{Size{441.7, 141.7}}; // extents are cut, and halved as whole numbers
    EXPECT_EQ(odd.markerRect(orientation::radial, 1.0), (Rect{410.5, 50, 20, 20}));
}

TEST(CanvasGeometry, laysOutGuideLinesAndTheDisc) {
    EXPECT_EQ(geometry.guideLine(2)->black, (Line{{20, 20}, {420, 120}}));
    EXPECT_EQ(geometry.guideLine(2)->white, (Line{{21, 20}, {420, 119}}));
    EXPECT_EQ(geometry.guideLine(3)->black, (Line{{20, 120}, {420, 20}}));
    EXPECT_EQ(geometry.guideLine(3)->white, (Line{{20, 119}, {419, 20}}));
    EXPECT_EQ(geometry.guideLine(4)->black, (Line{{210, 60}, {420, 60}}));
    EXPECT_EQ(geometry.guideLine(4)->white, (Line{{210, 61}, {420, 61}}));
    EXPECT_FALSE(geometry.guideLine(0) || geometry.guideLine(1) || geometry.guideLine(5));
    EXPECT_EQ(geometry.radialCenter(), (Point{210, 60}));
    EXPECT_EQ(geometry.radialRadius(), 200);
}

TEST(CanvasGeometry, projectsPointsOntoTheTrack) {
    const struct {
        std::int64_t orientation;
        Point point;
        double offset;
        std::int64_t limit;
    } rows[] = {{1, {220, 30}, 200, 400},
                {4, {15, 30}, -5, 400},
                {0, {220, 30}, 10, 100},
                {2, {220, 70}, std::hypot(200, 50), 412}, // on the diagonal
                {2, {220, 20}, std::hypot(100, 25), 412}, // moved along the other one, not square to it
                {2, {20, 70}, std::hypot(100, 25), 412},
                {3, {220, 70}, std::hypot(200, 50), 412},
                {3, {420, 70}, std::hypot(100, 25), 412},
                {7, {220, 120}, std::hypot(300, 75), 412}};
    for (const auto& row : rows) {
        const auto [offset, limit] = geometry.offsetOnTrack(row.orientation, row.point);
        EXPECT_NEAR(offset, row.offset, 1e-9) << row.orientation;
        EXPECT_EQ(limit, row.limit);
    }
    const LogCapture log;
    geometry.offsetOnTrack(orientation::diagonalToTopLeft, {420, 70});
    EXPECT_EQ(log.messages, std::vector<std::string>{"x: 320.000000 y: 45.000000"});
}

TEST(MarkerHitAreas, areOvalsAndTheLowestIndexWins) {
    resetToDefaultGradient();
    GlobalData::sharedData().setColorMarkerPos({0.5, 0.52});
    MarkerHitAreas areas;
    const CanvasScene scene{geometry, GlobalData::sharedData(), 1};
    areas.rebuild(scene);
    EXPECT_EQ(areas.markerAt({224, 25}), 0) << "under both";
    EXPECT_EQ(areas.markerAt({237, 25}), 1);
    EXPECT_EQ(areas.markerAt({212, 33}), std::nullopt) << "in the corner of the frame";
    EXPECT_EQ(scene.markers[0].dot, (Rect{217, 22, 6, 6}));
    EXPECT_EQ(scene.markers[1].dot, (Rect{221, 18, 14, 14})) << "selected";
}

} // namespace
} // namespace tessaly
