#pragma once

#include "sourceview/GutterLayout.h"
#include "sourceview/LineIndices.h"

#include <QTimer>
#include <QWidget>
#include <cstdint>
#include <optional>
#include <set>

namespace tessaly {

class CustomTextView;

/// The gutter of a code view: the numbers of its lines, counted from 1. A click only redraws it; the
/// wheel scrolls the text.
class MarkerLineNumberView : public QWidget {
    Q_OBJECT

  public:
    /// Becomes the ruler of that view.
    explicit MarkerLineNumberView(CustomTextView& textView);

    /// In points.
    double requiredThickness() const;

    /// Lines with a tag under their number, one at most. This program marks none; it is kept, and kept
    /// working, for a build that points at lines.
    void setMarkers(const std::set<std::uint32_t>& lines);
    void addMarker(std::uint32_t line);
    void removeMarker(std::uint32_t line);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    const LineIndices& lineIndices();
    void textDidChange();
    void setRuleThickness();
    void redrawWithText(const QRect& changed, int scrolled);

    CustomTextView& textView_;
    std::optional<LineIndices> lineIndices_; ///< absent: invalid
    std::set<std::uint32_t> markedLines_;
    double ruleThickness_ = 0.0;
    QTimer widthChange_; ///< on the next pass of the event loop
};

} // namespace tessaly
