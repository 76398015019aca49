#include "sourceview/qt/MarkerLineNumberView.h"

#include "foundation/qt/ToQColor.h"
#include "foundation/qt/ToQString.h"
#include "sourceview/GutterColors.h"
#include "sourceview/MarkerShape.h"
#include "sourceview/qt/CustomTextView.h"

#include <QApplication>
#include <QFontInfo>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <cmath>

namespace tessaly {
namespace {

// A quarter of a circle, counter-clockwise where y runs upwards. The path counts angles as if y ran
// downwards.
void addCorner(QPainterPath& path, Point center, double startDegrees) {
    constexpr double radius = MarkerShape::cornerRadius;
    path.arcTo(center.x - radius, center.y - radius, 2 * radius, 2 * radius, -startDegrees, -90);
}

void drawMarker(QPainter& painter, const Rect& place) {
    const MarkerShape shape{Size{place.width, place.height}};
    QPainterPath tag{{shape.tip.x, shape.tip.y}};
    tag.lineTo(shape.upperEdge.x, shape.upperEdge.y);
    addCorner(tag, shape.upperCorner, 90);
    addCorner(tag, shape.lowerCorner, 180);
    tag.lineTo(shape.lowerEdge.x, shape.lowerEdge.y);
    tag.closeSubpath();
    painter.save();
    painter.translate(place.x, place.maxY());
    painter.scale(1, -1);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(tag, toQColor(MarkerShape::fill));
    painter.strokePath(tag, QPen{toQColor(MarkerShape::stroke), MarkerShape::lineWidth});
    painter.restore();
}

} // namespace

MarkerLineNumberView::MarkerLineNumberView(CustomTextView& textView)
    : QWidget{&textView}, textView_{textView} {
    widthChange_.setSingleShot(true);
    connect(&widthChange_, &QTimer::timeout, this, &MarkerLineNumberView::setRuleThickness);
    connect(&textView_, &QPlainTextEdit::textChanged, this, &MarkerLineNumberView::textDidChange);
    connect(&textView_, &QPlainTextEdit::updateRequest, this, &MarkerLineNumberView::redrawWithText);
    setRuleThickness();
}

// The platform's small label font.
QFont MarkerLineNumberView::labelFont() {
    constexpr double miniSize = 0.85;
    QFont small = QApplication::font();
    small.setPointSizeF(QFontInfo{small}.pointSizeF() * miniSize);
    return small;
}

void MarkerLineNumberView::setRuleThickness() {
    ruleThickness_ = requiredThickness();
    textView_.setVerticalRuler(this, static_cast<int>(std::ceil(ruleThickness_)));
    update();
}

void MarkerLineNumberView::textDidChange() {
    lineIndices_.reset();
    update();
}

const LineIndices& MarkerLineNumberView::lineIndices() {
    if (!lineIndices_) {
        lineIndices_.emplace(textView_.text());
        // Usually the gutter is being drawn at this moment, when nothing may be laid out anew.
        if (std::abs(static_cast<float>(ruleThickness_) - static_cast<float>(requiredThickness())) > 1.0F) {
            widthChange_.start();
        }
    }
    return *lineIndices_;
}

double MarkerLineNumberView::requiredThickness() const {
    return GutterLayout{textLayout(), lineIndices_ ? *lineIndices_ : LineIndices{textView_.text()}}
        .requiredThickness();
}

void MarkerLineNumberView::setMarkers(const std::set<std::uint32_t>& lines) {
    markedLines_ = lines;
    update();
}

void MarkerLineNumberView::addMarker(std::uint32_t line) {
    markedLines_.insert(line);
    update();
}

void MarkerLineNumberView::removeMarker(std::uint32_t line) {
    markedLines_.erase(line);
    update();
}

void MarkerLineNumberView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter{this};
    const QFont font = labelFont();
    const double ascent = QFontMetricsF{font}.ascent();
    const CodeTextLayout layout = textLayout();
    const auto isMarked = [this](std::size_t line) {
        return markedLines_.contains(static_cast<std::uint32_t>(line + 1));
    };
    painter.setFont(font);
    for (const GutterLabel& label : GutterLayout{layout, lineIndices()}.labels(width(), isMarked)) {
        if (label.marked) {
            drawMarker(painter,
                       GutterLayout::markerRect(label, width(), {ruleThickness_, MarkerShape::height}));
        }
        painter.setPen(toQColor(label.marked ? gutterColor::alternateText : gutterColor::text));
        painter.drawText(QPointF{label.rectangle.x, label.rectangle.y + ascent}, toQString(label.text));
    }
}

void MarkerLineNumberView::redrawWithText(const QRect& changed, int scrolled) {
    if (scrolled != 0) {
        update();
    } else {
        update(0, changed.y(), width(), changed.height());
    }
}

void MarkerLineNumberView::mousePressEvent(QMouseEvent* event) {
    update();
    event->accept();
}

} // namespace tessaly
