// What a real browser engine makes of the generated code.

#include "canvas/CanvasScene.h"
#include "canvas/GradientRaster.h"
#include "codegen/DeclarationText.h"
#include "support/Eventually.h"
#include "support/Gradients.h"

#include <QEventLoop>
#include <QImage>
#include <QSignalSpy>
#include <QTest>
#include <QWebEnginePage>
#include <QWebEngineView>
#include <gtest/gtest.h>

namespace tessaly {
namespace {

constexpr QSize box{400, 236};

int difference(const QImage& picture, const std::vector<std::uint32_t>& pixels) {
    int worst = picture.size() == box ? 0 : 255;
    for (int y = 0; worst < 255 && y < box.height(); ++y) {
        for (int x = 0; x < box.width(); ++x) {
            const QRgb ours = pixels[static_cast<std::size_t>(y * box.width() + x)];
            const QRgb theirs = picture.pixel(x, y);
            worst =
                std::max({worst, std::abs(qRed(ours) - qRed(theirs)), std::abs(qGreen(ours) - qGreen(theirs)),
                          std::abs(qBlue(ours) - qBlue(theirs))});
        }
    }
    return worst;
}

class BrowserTest : public testing::Test {
  protected:
    BrowserTest() {
        resetToDefaultGradient();
        view.resize(box);
        view.show();
    }

    // Shows a page that consists of one box with the given declaration.
    void show(const std::string& declaration) {
        QSignalSpy loaded{&view, &QWebEngineView::loadFinished};
        view.setHtml(QStringLiteral("<style>html{overflow:hidden}body{margin:0;background:white}"
                                    "div{height:236px;%1}</style><div></div>")
                         .arg(QString::fromStdString(declaration)));
        ASSERT_TRUE(loaded.wait(20'000));
    }

    QString computedBackground() {
        QString result;
        QEventLoop loop;
        view.page()->runJavaScript(
            QStringLiteral("getComputedStyle(document.querySelector('div')).backgroundImage"),
            [&](const QVariant& value) {
                result = value.toString();
                loop.quit();
            });
        loop.exec();
        return result;
    }

    // How far the box as the engine paints it is from our pixels. It paints when it likes, so this waits for
    // it.
    int worstDifference(const std::vector<std::uint32_t>& pixels) {
        int worst = 255;
        eventually([&] {
            const QImage picture = view.grab().toImage().convertToFormat(QImage::Format_RGB32);
            worst = difference(picture, pixels);
            return worst <= 2;
        });
        return worst;
    }

    QWebEngineView view;
};

std::vector<std::uint32_t> rasterized() {
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(box.width() * box.height()));
    const PixelBuffer buffer{pixels, box.width(), box.height(), 1.0, static_cast<double>(box.height())};
    const GradientRamp ramp{CanvasScene::drawnStops(GlobalData::sharedData()), {1, 1, 1, 1}};
    fillLinear(buffer, {0, 0, static_cast<double>(box.width()), static_cast<double>(box.height())},
               gradientDirection(GlobalData::sharedData().orientationType()), ramp);
    return pixels;
}

void setStops(int count, double opacity) {
    GlobalData& data = GlobalData::sharedData();
    data = GlobalData{};
    data.setColorFormatType(colorFormat::rgba);
    for (int i = 0; i < count; ++i) {
        data.colorMarkerPos().push_back(std::round(1000.0 * i / (count - 1)) / 1000);
        data.colorMarkerColor().push_back(Color::calibratedRGB(
            (i * 97 % 256) / 255.0, (i * 151 % 256) / 255.0, (255 - i * 59 % 256) / 255.0));
        data.colorMarkerOpacity().push_back(opacity);
    }
}

TEST_F(BrowserTest, acceptsTheStandardDeclarationOfEveryOrientation) {
    const std::pair<std::int64_t, const char*> rows[] = {{0, "linear-gradient(to top, "},
                                                         {1, "linear-gradient(to right, "},
                                                         {2, "linear-gradient(45deg, "},
                                                         {3, "linear-gradient(-45deg, "},
                                                         {4, "radial-gradient("}};
    for (const auto& [orientation, start] : rows) {
        GlobalData::sharedData().setOrientationType(orientation);
        show(declarationText(Declaration::Standard, GlobalData::sharedData()));
        const std::string computed = computedBackground().toStdString();
        EXPECT_EQ(computed.rfind(start, 0), 0U) << computed;
        EXPECT_NE(computed.find("rgb(255, 255, 255) 100%)"), std::string::npos) << computed;
    }
}

TEST_F(BrowserTest, paintsLinearGradientsAsTheCanvasDoes) {
    for (const int stops : {2, 3, 20}) {
        for (const double opacity : {1.0, 0.5}) {
            for (const std::int64_t orientation : {0, 1, 2, 3}) {
                setStops(stops, opacity);
                GlobalData::sharedData().setOrientationType(orientation);
                show(declarationText(Declaration::Standard, GlobalData::sharedData()));
                EXPECT_LE(worstDifference(rasterized()), 2)
                    << stops << " stops, opacity " << opacity << ", orientation " << orientation;
            }
        }
    }
}

} // namespace
} // namespace tessaly
