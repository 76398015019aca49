#include "sourceview/qt/SelectionBand.h"

#include "foundation/Contrast.h"
#include "foundation/qt/ToQColor.h"

#include <QPainter>

namespace tessaly::selectionBand {
namespace {

constexpr RGBAComponents bandFill = rgbOfBytes(209, 226, 242, 0.4);
constexpr RGBAComponents bandBorder = rgbOfBytes(120, 174, 229, 0.4);

// At full strength the pale fill would take the contrast from the light text of a dark desktop.
RGBAComponents fillOn(const QColor& background) {
    constexpr double strengthOnDark = 0.35;
    RGBAComponents fill = bandFill;
    fill.alpha *= isDark(background) ? strengthOnDark : 1.0;
    return fill;
}

// On a dark desktop the border is as strong as it takes to be seen.
RGBAComponents borderOn(const QColor& background) {
    RGBAComponents strongest = bandBorder;
    strongest.alpha = 1.0;
    const RGBAComponents base = toComponents(background);
    return isDark(background) ? withContrast(lineContrast, laidOver(base, bandBorder), strongest, base)
                              : bandBorder;
}

} // namespace

RGBAComponents colorOn(const QColor& background) {
    return laidOver(toComponents(background), fillOn(background));
}

void draw(QPainter& painter, const QRect& band, const QColor& background) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(band, toQColor(fillOn(background)));
    painter.setPen(QPen{toQColor(borderOn(background)), 1});
    painter.drawRect(QRectF{band}.adjusted(0.5, 0.5, -0.5, -0.5));
}

} // namespace tessaly::selectionBand
