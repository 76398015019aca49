// What the view draws, and what it tells of its layout.

#include "model/qt/ColorBridge.h"
#include "sourceview/BandColors.h"
#include "sourceview/qt/CustomTextView.h"

#include <QPainter>
#include <QTextBlock>
#include <QTextLayout>
#include <algorithm>

namespace tessaly {

void CustomTextView::awakeFromNib() {
    textViewSelectColor_ = toQColor(bandColor::fill);
    textViewSelectColorBorder_ = toQColor(bandColor::border);
    redisplay();
}

void CustomTextView::paintEvent(QPaintEvent* event) {
    {
        QPainter painter{viewport()};
        drawViewBackgroundInRect(painter, event->rect());
    }
    QPlainTextEdit::paintEvent(event); // the text; the background is the viewport's own
}

void CustomTextView::drawViewBackgroundInRect(QPainter& painter, const QRectF& rectangle) const {
    const QRectF band = highlightRectForRange(selection()).toAlignedRect();
    if (!band.intersects(rectangle) || !textViewSelectColor_.isValid()) {
        return;
    }
    painter.save();
    painter.setOpacity(bandColor::strength(isDark(palette().color(QPalette::Base))));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(band, textViewSelectColor_);
    painter.setPen(QPen{textViewSelectColorBorder_, 1});
    painter.drawRect(band.adjusted(0.5, 0.5, -0.5, -0.5));
    painter.restore();
}

QRectF CustomTextView::highlightRectForRange(TextRange range) const {
    const std::size_t last = range.length == 0 ? range.location : range.end() - 1;
    const QRectF rows = rowRectangle(range.location).united(rowRectangle(last));
    return {0, rows.y() + contentOffset().y(), static_cast<double>(viewport()->width()), rows.height()};
}

// Lays the row's block out if it is not yet.
QRectF CustomTextView::rowRectangle(std::size_t offset) const {
    const int position = static_cast<int>(std::min(offset, length()));
    const QTextBlock block = document()->findBlock(position);
    const QRectF geometry = blockBoundingGeometry(block);
    const QTextLine row = block.layout()->lineForTextPosition(position - block.position());
    return row.isValid() ? row.rect().translated(geometry.topLeft()) : geometry;
}

QRectF CustomTextView::rectangleOfRowAt(std::size_t offset) const {
    const int position = static_cast<int>(std::min(offset, length()));
    const QTextBlock block = document()->findBlock(position);
    const QTextLine row = block.layout()->lineForTextPosition(position - block.position());
    // The toolkit starts no row behind NEL; the row has its number already.
    const bool starts = row.isValid() && block.position() + row.textStart() == position;
    return starts ? rowRectangle(offset) : QRectF{};
}

QRectF CustomTextView::visibleRect() const {
    return {-contentOffset(), viewport()->size()};
}

TextRange CustomTextView::charactersIn(const QRectF& rectangle) const {
    QTextBlock block = firstVisibleBlock();
    double top = blockBoundingGeometry(block).top();
    int from = -1;
    int to = block.position();
    for (; block.isValid() && top < rectangle.bottom(); block = block.next()) {
        const double height = blockBoundingRect(block).height(); // lays the block out
        for (int i = 0; i < block.layout()->lineCount(); ++i) {
            const QTextLine row = block.layout()->lineAt(i);
            const QRectF place = row.rect().translated(0, top);
            if (place.bottom() > rectangle.top() && place.top() < rectangle.bottom()) {
                from = from < 0 ? block.position() + row.textStart() : from;
                to = block.position() + row.textStart() + row.textLength() +
                     (i + 1 == block.layout()->lineCount() ? 1 : 0); // with the end of the line
            }
        }
        top += height;
    }
    const auto start = static_cast<std::size_t>(from < 0 ? to : from);
    return {start, std::min(static_cast<std::size_t>(to), length()) - start};
}

void CustomTextView::setVerticalRuler(QWidget* ruler, int width) {
    ruler_ = ruler;
    ruler->setParent(this);
    ruler->setBackgroundRole(QPalette::Base);
    ruler->setAutoFillBackground(true);
    setViewportMargins(width, 0, 0, 0);
    placeRuler();
    ruler->show();
}

void CustomTextView::placeRuler() {
    if (ruler_ != nullptr) {
        const QRect area = viewport()->geometry();
        const int width = viewportMargins().left();
        ruler_->setGeometry(area.left() - width, area.top(), width, area.height());
    }
}

void CustomTextView::resizeEvent(QResizeEvent* event) {
    QPlainTextEdit::resizeEvent(event);
    placeRuler();
}

void CustomTextView::scrollContentsBy(int dx, int dy) {
    QPlainTextEdit::scrollContentsBy(dx, dy);
    redisplay(); // the band does not move sideways with the text
}

} // namespace tessaly
