#include "canvas/qt/CanvasPicture.h"
#include "canvas/GradientRaster.h"
#include "support/Gradients.h"

#include <cmath>
#include <gtest/gtest.h>

namespace tessaly {
namespace {

const QColor controlColor{200, 210, 220};
const CanvasGeometry geometry{Size{440, 141}};

// The picture of the gradient as it is, with the second stop selected.
class Picture {
  public:
    explicit Picture(double ratio) : ratio_{ratio} {
        picture_.setMedium(ratio, controlColor);
        picture_.paint({geometry, GlobalData::sharedData(), 1});
    }

    // The pixel whose middle lies just right of and above a point.
    QColor at(double x, double y) const {
        const double height = geometry.viewSize().height;
        return picture_.image().pixelColor(static_cast<int>(std::floor(x * ratio_)),
                                           static_cast<int>(std::ceil((height - y) * ratio_)) - 1);
    }

    // The darkest and the lightest pixel within two points of a line, along one dash and the gap behind it.
    std::pair<int, int> range(Point from, double slope) const {
        std::pair<int, int> found{255, 0};
        for (double along = 0; along < 25; along += 1 / ratio_) {
            for (double aside = -2; aside <= 2; aside += 1 / ratio_) {
                const int level = at(from.x + along, from.y + slope * along + aside).green();
                found = {std::min(found.first, level), std::max(found.second, level)};
            }
        }
        return found;
    }

  private:
    double ratio_;
    CanvasPicture picture_{geometry};
};

class CanvasPictureTest : public testing::TestWithParam<double> {
  protected:
    CanvasPictureTest() {
        resetToDefaultGradient();
        GlobalData::sharedData().setColorMarkerColor({grey, Color::calibratedRGB(1, 0, 0)});
        GlobalData::sharedData().setColorMarkerPos({0.25, 0.75});
    }

    const Color grey = Color::calibratedRGB(0.4, 0.4, 0.4);
};

TEST_P(CanvasPictureTest, showsStripFrameAndMarkersOfEveryOrientation) {
    for (const std::int64_t orientation : {0, 1, 2, 3, 4}) {
        SCOPED_TRACE(orientation);
        GlobalData::sharedData().setOrientationType(orientation);
        const Picture picture{GetParam()};
        const bool radial = orientation == orientation::radial;
        const QColor first{102, 102, 102};
        EXPECT_EQ(picture.at(2, 2), radial ? QColor(Qt::red) : controlColor) << "frame";
        const struct {
            Point start, end;
        } ends[] = {{{200, 21}, {200, 118}},
                    {{21, 80}, {418, 80}},
                    {{21, 21}, {418, 118}},
                    {{418, 21}, {21, 118}},
                    {{211, 80}, {430, 100}}};
        const auto& [start, end] = ends[orientation];
        EXPECT_EQ(picture.at(start.x, start.y), first);
        EXPECT_EQ(picture.at(end.x, end.y), QColor(Qt::red));

        const Point plain = geometry.markerRect(orientation, 0.25).center();
        EXPECT_EQ(picture.at(plain.x, plain.y), first) << "the dot has the colour of the stop";
        EXPECT_EQ(picture.at(plain.x + 6.5, plain.y + 0.5), QColor(Qt::white));
        const Point selected = geometry.markerRect(orientation, 0.75).center();
        EXPECT_EQ(picture.at(selected.x + 5.5, selected.y + 0.5), QColor(Qt::red)) << "a disc in a ring";
        EXPECT_GT(picture.at(selected.x + 8, selected.y + 0.5).green(), 200);
    }
}

TEST_P(CanvasPictureTest, drawsGuideLinesOnDiagonalsAndDisc) {
    const Color light = Color::calibratedRGB(0.6, 0.6, 0.6); // level 153
    GlobalData::sharedData().setColorMarkerColor({light, light});
    GlobalData::sharedData().setColorMarkerPos({0.9, 0.95}); // out of the way
    const struct {
        std::int64_t orientation;
        Point place;
        double slope;
    } guides[] = {{2, {320, 95.5}, 0.2525}, {3, {120, 95.5}, -0.2525}, {4, {330, 60.5}, 0}};
    for (const std::int64_t orientation : {0, 1, 2, 3, 4}) {
        GlobalData::sharedData().setOrientationType(orientation);
        const Picture picture{GetParam()};
        for (const auto& guide : guides) {
            const auto [darkest, lightest] = picture.range(guide.place, guide.slope);
            const bool drawn = guide.orientation == orientation;
            EXPECT_EQ(darkest < 120, drawn) << orientation << ' ' << guide.orientation;
            EXPECT_EQ(lightest > 190, drawn) << orientation << ' ' << guide.orientation;
        }
    }
}

TEST_P(CanvasPictureTest, showsOpacityOnlyForNotationsThatCarryIt) {
    GlobalData::sharedData().colorMarkerOpacity() = {0.0, 0.0};
    for (const std::int64_t format : {0, 1, 2, 3, 4}) {
        GlobalData::sharedData().setColorFormatType(format);
        EXPECT_EQ(Picture{GetParam()}.at(25, 80) == controlColor, colorFormat::carriesOpacity(format))
            << format;
    }
}

TEST(CanvasPicture, paintsAnEmptyGradientAsBareFrame) {
    GlobalData::sharedData() = GlobalData{};
    EXPECT_EQ(Picture{1.5}.at(200, 70), controlColor);
}

INSTANTIATE_TEST_SUITE_P(DevicePixelRatios, CanvasPictureTest, testing::Values(1.0, 1.5, 2.0));

} // namespace
} // namespace tessaly
