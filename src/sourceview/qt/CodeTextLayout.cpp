#include "sourceview/qt/CodeTextLayout.h"

#include "foundation/qt/ToQString.h"
#include "sourceview/qt/CustomTextView.h"

namespace tessaly {
namespace {

Rect fromQt(const QRectF& r) {
    return {r.x(), r.y(), r.width(), r.height()};
}

} // namespace

std::vector<Rect> CodeTextLayout::rectanglesOfEmptyRange(std::size_t offset) const {
    const QRectF row = view_ != nullptr ? view_->rectangleOfRowAt(offset) : QRectF{};
    return row.isNull() ? std::vector<Rect>{} : std::vector{fromQt(row)};
}

TextRange CodeTextLayout::charactersIn(const Rect& rectangle) const {
    const QRectF area{rectangle.x, rectangle.y, rectangle.width, rectangle.height};
    return view_ != nullptr ? view_->charactersIn(area) : TextRange{};
}

Rect CodeTextLayout::visibleRect() const {
    return view_ != nullptr ? fromQt(view_->visibleRect()) : Rect{};
}

Size CodeTextLayout::sizeOf(std::string_view label) const {
    return {metrics_.horizontalAdvance(toQString(label)), metrics_.height()};
}

} // namespace tessaly
