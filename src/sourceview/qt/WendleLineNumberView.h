#pragma once

#include "sourceview/GutterLayout.h"
#include "sourceview/LineIndices.h"
#include "sourceview/qt/CodeTextLayout.h"
#include "sourceview/qt/VerticalRuler.h"
#include "sourceview/qt/WendleLineNumberMarker.h"

#include <QTimer>
#include <QVariantMap>
#include <map>
#include <optional>

namespace tessaly {

/// How a number is written.
struct LabelAttributes {
    QFont font;
    QColor color;
};

/// A ruler that numbers the lines of its client, which must be a text view to have lines. The numbers that
/// are told and asked for are 1-based, unless an operation says otherwise.
class WendleLineNumberView : public VerticalRuler {
    Q_OBJECT

  public:
    /// Numbers the text of that view; `install` makes it the view's ruler.
    explicit WendleLineNumberView(CustomTextView* scrollView);

    /// What is absent is the platform's small label font, a medium grey, white, and no background at all.
    /// Setting does not redraw.
    QFont font() const;
    void setFont(const std::optional<QFont>& font) { font_ = font; }
    QColor textColor() const;
    void setTextColor(const std::optional<QColor>& color) { textColor_ = color; }
    QColor alternateTextColor() const;
    void setAlternateTextColor(const std::optional<QColor>& color) { alternateTextColor_ = color; }
    const std::optional<QColor>& backgroundColor() const { return backgroundColor_; }
    void setBackgroundColor(const std::optional<QColor>& color) { backgroundColor_ = color; }

    /// Of plain lines, and of those that carry a marker.
    LabelAttributes textAttributes() const { return {font(), textColor()}; }
    LabelAttributes markerTextAttributes() const { return {font(), alternateTextColor()}; }

    /// Starts anew, without markers of lines and with the scroll view's text as the client.
    void awakeFromNib();
    void setClientView(QWidget* client) override;

    /// Computed anew when they are invalid; no lines when the client is no text view.
    const LineIndices& lineIndices() const;
    void invalidateLineIndices() { lineIndices_.reset(); }
    void textDidChange();

    /// 0-based. The text is that of the client.
    std::size_t lineNumberForCharacterIndex(std::size_t index) const;

    /// `GutterLayout::notFound` when no line is at that height of the gutter.
    std::uint64_t lineNumberForLocation(float location) const;

    MarkerPointer markerAtLine(std::uint32_t line) const;
    double requiredThickness() const override;

    /// A line has one marker at most; one that belongs to a line replaces the marker there, and removing it
    /// removes whatever marker is there.
    void setMarkers(const std::vector<MarkerPointer>& markers) override;
    void addMarker(const MarkerPointer& marker) override;
    void removeMarker(const MarkerPointer& marker) override;

    /// Saves and restores font and colours; what is absent is not in the archive. Restoring drops the markers
    /// of the lines.
    void encodeWithCoder(QVariantMap& archive) const;
    void initWithCoder(const QVariantMap& archive);

  protected:
    void drawHashMarksAndLabelsInRect(QPainter& painter) const override;

  private:
    CustomTextView* textView() const;
    CodeTextLayout textLayout() const { return {textView(), textAttributes().font}; }
    void calculateLines() const;
    void drawBackground(QPainter& painter) const;
    void drawMarker(QPainter& painter, const GutterLabel& label) const;
    void redrawWithText(const QRect& changed, int scrolled);

    mutable std::optional<LineIndices> lineIndices_;                                 // absent: invalid
    std::map<std::int64_t, std::shared_ptr<WendleLineNumberMarker>> linesToMarkers_; // by 0-based line
    std::optional<QFont> font_;
    std::optional<QColor> textColor_;
    std::optional<QColor> alternateTextColor_;
    std::optional<QColor> backgroundColor_;
    mutable QTimer widthChange_; // on the next pass of the event loop
};

} // namespace tessaly
