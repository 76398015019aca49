#pragma once

#include "sourceview/qt/WendleLineNumberView.h"

namespace tessaly {

/// The gutter of the code views. It supplies the image of a marker, a tag as wide as the gutter. A click only
/// redraws it.
class MarkerLineNumberView : public WendleLineNumberView {
    Q_OBJECT

  public:
    using WendleLineNumberView::WendleLineNumberView;

    void setRuleThickness(double thickness) override;

    /// Made on the first request, in that size; a later request returns the same image as it is.
    std::shared_ptr<RulerImage> markerImageWithSize(QSizeF size);
    static void drawMarkerImageIntoRep(QPainter& painter, QSizeF size);

  protected:
    void mousePressEvent(QMouseEvent* event) override;

  private:
    std::shared_ptr<RulerImage> markerImage_;
};

} // namespace tessaly
