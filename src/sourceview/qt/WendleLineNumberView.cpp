#include "sourceview/qt/WendleLineNumberView.h"

#include "foundation/qt/ToQString.h"
#include "model/qt/ColorBridge.h"
#include "sourceview/GutterColors.h"

#include <QApplication>
#include <QFontInfo>
#include <QPainter>
#include <cmath>

namespace tessaly {
namespace {

std::int64_t keyOfLine(std::uint32_t lineNumber) {
    return static_cast<std::int64_t>(lineNumber) - 1;
}

const QString fontKey = QStringLiteral("font");
const QString textColorKey = QStringLiteral("textColor");
const QString alternateTextColorKey = QStringLiteral("alternateTextColor");
const QString backgroundColorKey = QStringLiteral("backgroundColor");

template <typename Value>
void save(QVariantMap& archive, const QString& key, const std::optional<Value>& value) {
    if (value) {
        archive.insert(key, *value);
    }
}

template <typename Value>
void restore(const QVariantMap& archive, const QString& key, std::optional<Value>& value) {
    value = archive.contains(key) ? std::optional{archive.value(key).value<Value>()} : std::nullopt;
}

} // namespace

WendleLineNumberView::WendleLineNumberView(CustomTextView* scrollView) : VerticalRuler{scrollView} {
    widthChange_.setSingleShot(true);
    connect(&widthChange_, &QTimer::timeout, this, [this] { setRuleThickness(requiredThickness()); });
    WendleLineNumberView::setClientView(scrollView);
}

QFont WendleLineNumberView::font() const {
    if (font_) {
        return *font_;
    }
    constexpr double miniSize = 0.85; // of the platform's font
    QFont small = QApplication::font();
    small.setPointSizeF(QFontInfo{small}.pointSizeF() * miniSize);
    return small;
}

QColor WendleLineNumberView::textColor() const {
    return textColor_.value_or(toQColor(gutterColor::text));
}

QColor WendleLineNumberView::alternateTextColor() const {
    return alternateTextColor_.value_or(toQColor(gutterColor::alternateText));
}

CustomTextView* WendleLineNumberView::textView() const {
    return qobject_cast<CustomTextView*>(clientView());
}

void WendleLineNumberView::awakeFromNib() {
    linesToMarkers_.clear();
    setClientView(scrollView());
}

void WendleLineNumberView::setClientView(QWidget* client) {
    if (const CustomTextView* const old = textView(); old != nullptr && old != client) {
        disconnect(old, nullptr, this, nullptr);
    }
    VerticalRuler::setClientView(client);
    if (const CustomTextView* const text = textView()) {
        connect(text, &QPlainTextEdit::textChanged, this, &WendleLineNumberView::textDidChange,
                Qt::UniqueConnection);
        connect(text, &QPlainTextEdit::updateRequest, this, &WendleLineNumberView::redrawWithText,
                Qt::UniqueConnection);
    }
    invalidateLineIndices();
}

void WendleLineNumberView::textDidChange() {
    invalidateLineIndices();
    update();
}

const LineIndices& WendleLineNumberView::lineIndices() const {
    if (!lineIndices_) {
        calculateLines();
    }
    static const LineIndices none;
    return lineIndices_ ? *lineIndices_ : none;
}

void WendleLineNumberView::calculateLines() const {
    const CustomTextView* const text = textView();
    if (text == nullptr) {
        return;
    }
    lineIndices_.emplace(text->text());
    // Usually the gutter is being drawn at this moment, when nothing may be laid out anew.
    const auto now = static_cast<float>(ruleThickness());
    const auto needed = static_cast<float>(requiredThickness());
    if (std::abs(now - needed) > 1.0F) {
        widthChange_.start();
    }
}

std::size_t WendleLineNumberView::lineNumberForCharacterIndex(std::size_t index) const {
    return lineIndices().lineNumberForCharacterIndex(index);
}

std::uint64_t WendleLineNumberView::lineNumberForLocation(float location) const {
    return GutterLayout{textLayout(), lineIndices()}.lineNumberForLocation(location);
}

double WendleLineNumberView::requiredThickness() const {
    return GutterLayout{textLayout(), lineIndices()}.requiredThickness();
}

VerticalRuler::MarkerPointer WendleLineNumberView::markerAtLine(std::uint32_t line) const {
    const auto marker = linesToMarkers_.find(keyOfLine(line));
    return marker != linesToMarkers_.end() ? marker->second : nullptr;
}

void WendleLineNumberView::setMarkers(const std::vector<MarkerPointer>& markers) {
    linesToMarkers_.clear();
    VerticalRuler::setMarkers(markers);
}

void WendleLineNumberView::addMarker(const MarkerPointer& marker) {
    if (const auto ofLine = std::dynamic_pointer_cast<WendleLineNumberMarker>(marker)) {
        linesToMarkers_[keyOfLine(ofLine->lineNumber())] = ofLine;
    } else {
        VerticalRuler::addMarker(marker);
    }
}

void WendleLineNumberView::removeMarker(const MarkerPointer& marker) {
    if (const auto ofLine = std::dynamic_pointer_cast<WendleLineNumberMarker>(marker)) {
        linesToMarkers_.erase(keyOfLine(ofLine->lineNumber()));
    } else {
        VerticalRuler::removeMarker(marker);
    }
}

void WendleLineNumberView::drawBackground(QPainter& painter) const {
    if (!backgroundColor_) {
        return;
    }
    painter.save();
    painter.fillRect(rect(), *backgroundColor_);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen{toQColor(gutterColor::separator), 1, Qt::SolidLine, Qt::FlatCap});
    // Half a point inset at one end only: the line is deliberately very slightly slanted.
    painter.drawLine(QPointF(width(), 0), QPointF(width() - 0.5, height()));
    painter.restore();
}

void WendleLineNumberView::drawHashMarksAndLabelsInRect(QPainter& painter) const {
    drawBackground(painter);
    const CodeTextLayout layout = textLayout();
    const auto isMarked = [this](std::size_t line) {
        return linesToMarkers_.contains(static_cast<std::int64_t>(line));
    };
    for (const GutterLabel& label : GutterLayout{layout, lineIndices()}.labels(width(), isMarked)) {
        if (label.marked) {
            drawMarker(painter, label);
        }
        const LabelAttributes attributes = label.marked ? markerTextAttributes() : textAttributes();
        const double ascent = QFontMetricsF{attributes.font}.ascent();
        painter.setFont(attributes.font);
        painter.setPen(attributes.color);
        painter.drawText(QPointF{label.rectangle.x, label.rectangle.y + ascent}, toQString(label.text));
    }
}

void WendleLineNumberView::drawMarker(QPainter& painter, const GutterLabel& label) const {
    const WendleLineNumberMarker& marker = *linesToMarkers_.at(static_cast<std::int64_t>(label.line));
    if (marker.image() == nullptr) {
        return;
    }
    const QSizeF size = marker.image()->size();
    const Point place =
        GutterLayout::markerPosition(label, width(), {size.width(), size.height()}, marker.imageOrigin().y());
    marker.image()->draw(painter, {place.x, place.y});
}

void WendleLineNumberView::redrawWithText(const QRect& changed, int scrolled) {
    if (scrolled != 0) {
        update();
    } else {
        update(0, changed.y(), width(), changed.height());
    }
}

void WendleLineNumberView::encodeWithCoder(QVariantMap& archive) const {
    save(archive, fontKey, font_);
    save(archive, textColorKey, textColor_);
    save(archive, alternateTextColorKey, alternateTextColor_);
    save(archive, backgroundColorKey, backgroundColor_);
}

void WendleLineNumberView::initWithCoder(const QVariantMap& archive) {
    linesToMarkers_.clear();
    restore(archive, fontKey, font_);
    restore(archive, textColorKey, textColor_);
    restore(archive, alternateTextColorKey, alternateTextColor_);
    restore(archive, backgroundColorKey, backgroundColor_);
}

} // namespace tessaly
