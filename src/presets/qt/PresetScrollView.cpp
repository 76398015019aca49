#include "presets/qt/PresetScrollView.h"

#include "foundation/qt/ReadableColor.h"

#include <QEvent>
#include <QPainter>
#include <QRegion>
#include <algorithm>
#include <cmath>

namespace tessaly {

PresetScrollView::PresetScrollView(QWidget* parent) : QScrollArea{parent} {
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setLineWidth(1);
}

bool PresetScrollView::event(QEvent* event) {
    if (event->type() == QEvent::Paint) {
        paintFrame();
        return true;
    }
    return QScrollArea::event(event);
}

// Margins, and no alignment: a scroller that is hidden must not shift them.
void PresetScrollView::resizeEvent(QResizeEvent* event) {
    const int spare = width() - minimumWidth();
    setViewportMargins(spare / 2, 0, spare - spare / 2, 0);
    QScrollArea::resizeEvent(event);
}

// The toolkit cuts a widget at its edges rounded to pixels; a line that is drawn in points may round
// otherwise and be cut off, or be covered by what lies within the frame.
void PresetScrollView::paintFrame() {
    QPainter painter{this};
    const QTransform toDevice = painter.deviceTransform();
    const QPoint topLeft = toDevice.map(QPointF{0, 0}).toPoint();
    const QPoint bottomRight = toDevice.map(QPointF{QPoint{width(), height()}}).toPoint();
    const QRect whole{topLeft, bottomRight - QPoint{1, 1}};
    const int thickness = std::max(static_cast<int>(std::floor(devicePixelRatioF())), 1);
    const QRect within = whole.adjusted(thickness, thickness, -thickness, -thickness);
    const QColor color = readableOnWindow(palette(), QPalette::Mid, lineContrast);
    painter.setWorldTransform(toDevice.inverted());
    for (const QRect& side : QRegion{whole}.subtracted(within)) {
        painter.fillRect(side, color);
    }
}

} // namespace tessaly
