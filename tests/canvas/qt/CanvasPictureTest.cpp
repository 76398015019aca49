#include "canvas/qt/CanvasPicture.h"

#include <QLineF>
#include <cmath>
#include <gtest/gtest.h>

namespace tessaly {
namespace {

const QColor controlColor{200, 210, 220};
const CanvasGeometry geometry{Size{440, 141}};

// With the second stop selected.
QImage painted(const GlobalData& data, double ratio) {
    CanvasPicture picture{geometry};
    picture.setMedium(ratio, controlColor);
    picture.paint({geometry, data, 1});
    return picture.image();
}

// The pixel whose middle lies just right of and above a point.
QColor at(const QImage& picture, Point point) {
    const double ratio = picture.devicePixelRatio();
    const double down = std::ceil((geometry.viewSize().height - point.y) * ratio) - 1;
    return picture.pixelColor(static_cast<int>(point.x * ratio), static_cast<int>(down));
}

class CanvasPictureTest : public testing::TestWithParam<double> {};

TEST_P(CanvasPictureTest, showsStripFrameAndMarkersOfEveryOrientation) {
    const QColor first{102, 153, 153};
    const QColor second{255, 153, 153};
    GlobalData data{
        Gradient{{{0.25, Color::calibratedRGB(0.4, 0.6, 0.6)}, {0.75, Color::calibratedRGB(1, 0.6, 0.6)}}}};
    const QLineF ends[] = {
        {200, 21, 200, 118}, {21, 80, 418, 80}, {21, 21, 418, 118}, {418, 21, 21, 118}, {168, 60, 430, 100}};
    for (const std::int64_t orientation : {0, 1, 2, 3, 4}) {
        SCOPED_TRACE(orientation);
        data.gradient.setOrientation(orientation);
        const QImage picture = painted(data, GetParam());
        EXPECT_EQ(at(picture, {2, 2}), orientation == orientation::radial ? second : controlColor) << "frame";
        EXPECT_EQ(at(picture, {ends[orientation].x1(), ends[orientation].y1()}), first);
        EXPECT_EQ(at(picture, {ends[orientation].x2(), ends[orientation].y2()}), second);
        const auto [x, y] = geometry.markerRect(orientation, 0.25).center();
        EXPECT_EQ(at(picture, {x + 1, y}), first) << "a dot";
        const Point selected = geometry.markerRect(orientation, 0.75).center();
        EXPECT_EQ(at(picture, {selected.x + 5.5, selected.y}), second) << "a disc";
    }
}

TEST_P(CanvasPictureTest, showsOpacityOnlyForNotationsThatCarryIt) {
    GlobalData data{Gradient{{{0.0, Color::black(), 0.0}, {1.0, Color::white(), 0.0}}}};
    for (const std::int64_t code : {0, 1, 2, 3, 4}) {
        data.colorFormatType = code;
        EXPECT_EQ(at(painted(data, GetParam()), {25, 80}) == controlColor, code == 2 || code == 4) << code;
    }
    data = {};
    EXPECT_EQ(at(painted(data, GetParam()), {200, 70}), controlColor) << "without a stop a bare frame";
}

INSTANTIATE_TEST_SUITE_P(DevicePixelRatios, CanvasPictureTest, testing::Values(1.0, 1.5, 2.0));

} // namespace
} // namespace tessaly
