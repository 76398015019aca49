#include "sourceview/qt/MarkerLineNumberView.h"

#include "foundation/qt/ToQColor.h"
#include "foundation/qt/ToQString.h"
#include "sourceview/CodeColors.h"
#include "sourceview/qt/CustomTextView.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontInfo>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

namespace tessaly {
namespace {

// The markers' own colours, the same on a light and on a dark desktop.
constexpr RGBAComponents alternateTextColor{1.0, 1.0, 1.0, 1.0};
constexpr RGBAComponents markerFill{0.003, 0.56, 0.85, 1.0};
constexpr RGBAComponents markerStroke{0.0, 0.44, 0.8, 1.0};
constexpr double markerLineWidth = 2.0;
constexpr double markerHeight = 13.0;

// The marker of a line: a tag that points right, its left corners rounded. y runs upwards, where the path,
// which counts angles as if it ran downwards, goes counter-clockwise.
QPainterPath markerPath(double width, double height) {
    constexpr double radius = 3.0;
    QPainterPath tag{{width - 1, 2 + (height - 3) / 2}};
    const auto addCorner = [&](double x, double y, double startDegrees) {
        tag.arcTo(x - radius, y - radius, 2 * radius, 2 * radius, -startDegrees, -90);
    };
    tag.lineTo(width - 6, height - 1);
    addCorner(4, height - 4, 90);
    addCorner(4, 5, 180);
    tag.lineTo(width - 6, 2);
    tag.closeSubpath();
    return tag;
}

void drawMarker(QPainter& painter, const Rect& place) {
    const QPainterPath tag = markerPath(place.width, place.height);
    painter.save();
    painter.translate(place.x, place.maxY());
    painter.scale(1, -1);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(tag, toQColor(markerFill));
    painter.strokePath(tag, QPen{toQColor(markerStroke), markerLineWidth});
    painter.restore();
}

// The platform's small label font; never larger than the code, whose rows are as high as its own font.
QFont labelFont() {
    constexpr double miniSize = 0.85;
    const QFont code = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    QFont small = QApplication::font();
    small.setPointSizeF(std::min(QFontInfo{small}.pointSizeF(), QFontInfo{code}.pointSizeF()) * miniSize);
    return small;
}

gutter::Measure labelMeasure() {
    return [metrics = QFontMetricsF{labelFont()}](const std::string& label) {
        return Size{metrics.horizontalAdvance(toQString(label)), metrics.height()};
    };
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
    return gutter::requiredThickness(lineIndices_ ? *lineIndices_ : LineIndices{textView_.text()},
                                     labelMeasure());
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
    const RGBAComponents textColor = codeColor::ofLineNumber(toComponents(palette().color(QPalette::Text)),
                                                             toComponents(palette().color(backgroundRole())));
    painter.setFont(font);
    for (const GutterLabel& label : gutter::labels(textView_, lineIndices(), width(), labelMeasure())) {
        const bool isMarked = markedLines_.contains(static_cast<std::uint32_t>(label.line + 1));
        if (isMarked) {
            drawMarker(painter, gutter::markerRect(label, width(), {ruleThickness_, markerHeight}));
        }
        painter.setPen(toQColor(isMarked ? alternateTextColor : textColor));
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

// The toolkit scrolls a text for what its viewport hears.
void MarkerLineNumberView::wheelEvent(QWheelEvent* event) {
    QCoreApplication::sendEvent(textView_.viewport(), event);
}

void MarkerLineNumberView::mousePressEvent(QMouseEvent* event) {
    update();
    event->accept();
}

} // namespace tessaly
