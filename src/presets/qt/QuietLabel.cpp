#include "presets/qt/QuietLabel.h"

#include "foundation/qt/ReadableColor.h"

#include <QPainter>

namespace tessaly {

QuietLabel::QuietLabel(const QString& text, QWidget* parent) : QLabel{text, parent} {
    setWordWrap(true);
    setAlignment(Qt::AlignCenter);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void QuietLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter{this};
    painter.setPen(readableOnWindow(palette(), QPalette::PlaceholderText, textContrast));
    painter.drawText(contentsRect(), static_cast<int>(alignment()) | Qt::TextWordWrap, text());
}

} // namespace tessaly
