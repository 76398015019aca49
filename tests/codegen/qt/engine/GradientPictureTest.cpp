// What a real browser engine makes of the generated code.

#include "codegen/DeclarationText.h"
#include "model/ColorFormat.h"
#include "model/Gradient.h"
#include "raster/GradientRaster.h"
#include "support/Eventually.h"

#include <QImage>
#include <QSignalSpy>
#include <QWebEngineView>
#include <cstdlib>
#include <gtest/gtest.h>
#include <numeric>

namespace tessaly {
namespace {

constexpr int width = 400;
constexpr int height = 236;

std::vector<std::uint32_t> expectedPixels(const Gradient& gradient, std::int64_t notation) {
    std::vector<std::uint32_t> pixels(width * height);
    const auto opacity =
        colorFormat::carriesOpacity(notation) ? GradientRamp::Opacity::Drawn : GradientRamp::Opacity::Ignored;
    fillGradient({pixels, width, height, 1.0, height}, GradientPlace::inBox({0, 0, width, height}),
                 gradient.orientation(), GradientRamp{gradient.stops(), opacity, {1, 1, 1, 1}});
    return pixels;
}

TEST(Browser, paintsEveryOrientationAndNotationAsTheRasterDoes) {
    QWebEngineView view;
    view.resize(width, height);
    view.show();
    Gradient gradient{{{0.1, Color::calibratedRGB(1.0, 0.2, 0.0)},
                       {0.25, Color::white(), 0.5},
                       {0.6, Color::black(), 0.2},
                       {0.999, Color::calibratedRGB(0.0, 0.4, 0.8), 0.8}}};
    const std::int64_t notations = std::ssize(colorFormat::notations);
    for (std::int64_t i = 0; i < 5 * notations; ++i) {
        gradient.setOrientation(i / notations);
        const std::string declaration = declarationText(Declaration::Standard, gradient, i % notations);
        QSignalSpy loaded{&view, &QWebEngineView::loadFinished};
        view.setHtml(QStringLiteral("<style>html{overflow:hidden}body{margin:0;background:white}"
                                    "div{height:236px;%1}</style><div></div>")
                         .arg(QString::fromStdString(declaration)));
        ASSERT_TRUE(loaded.wait(20'000));
        const std::vector<std::uint32_t> expected = expectedPixels(gradient, i % notations);
        const auto levelsOff = [&] {
            const QImage picture = view.grab().toImage().convertToFormat(QImage::Format_RGB32);
            const auto* const bytes = reinterpret_cast<const uchar*>(expected.data());
            return std::inner_product(
                bytes, bytes + picture.sizeInBytes(), picture.constBits(), 0,
                [](int one, int other) { return std::max(one, other); },
                [](int ours, int theirs) { return std::abs(ours - theirs); });
        };
        ASSERT_TRUE(eventually([&] { return levelsOff() <= 2; })) << levelsOff() << declaration;
    }
}

} // namespace
} // namespace tessaly
