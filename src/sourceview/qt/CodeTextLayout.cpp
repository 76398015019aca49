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
    const QRectF row = view_.rectangleOfRowAt(offset);
    return row.isNull() ? std::vector<Rect>{} : std::vector{fromQt(row)};
}

TextRange CodeTextLayout::charactersIn(const Rect& rectangle) const {
    return view_.charactersIn({rectangle.x, rectangle.y, rectangle.width, rectangle.height});
}

Rect CodeTextLayout::visibleRect() const {
    return fromQt(view_.visibleRect());
}

Size CodeTextLayout::sizeOf(std::string_view label) const {
    return {metrics_.horizontalAdvance(toQString(label)), metrics_.height()};
}

} // namespace tessaly
