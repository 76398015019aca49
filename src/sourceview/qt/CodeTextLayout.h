#pragma once

#include "sourceview/TextLayout.h"

#include <QFontMetricsF>

namespace tessaly {

class CustomTextView;

/// What a text view has laid out, as the gutter asks for it.
class CodeTextLayout : public TextLayout {
  public:
    /// The view must outlive this object.
    CodeTextLayout(const CustomTextView& view, const QFont& labelFont) : view_{view}, metrics_{labelFont} {}

    std::vector<Rect> rectanglesOfEmptyRange(std::size_t offset) const override;
    TextRange charactersIn(const Rect& rectangle) const override;
    Rect visibleRect() const override;

    /// The toolkit counts the space above the text in its rectangles.
    double insetHeight() const override { return 0.0; }
    Size sizeOf(std::string_view label) const override;

  private:
    const CustomTextView& view_;
    QFontMetricsF metrics_;
};

} // namespace tessaly
