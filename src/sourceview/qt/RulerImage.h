#pragma once

#include <QPainter>
#include <functional>
#include <utility>

namespace tessaly {

/// An image that draws itself whenever it is shown. Its drawing is made for the size that it was created with
/// and is stretched when the image gets another one. Markers share it.
class RulerImage {
  public:
    using Drawing = std::function<void(QPainter& painter, QSizeF size)>;

    RulerImage(QSizeF size, Drawing drawing)
        : size_{size}, representationSize_{size}, drawing_{std::move(drawing)} {}

    QSizeF size() const { return size_; }
    void setSize(QSizeF size) { size_ = size; }

    void draw(QPainter& painter, QPointF topLeft) const {
        if (representationSize_.isEmpty()) {
            return; // it was asked for before the ruler had a size
        }
        painter.save();
        painter.translate(topLeft);
        painter.scale(size_.width() / representationSize_.width(),
                      size_.height() / representationSize_.height());
        drawing_(painter, representationSize_);
        painter.restore();
    }

  private:
    QSizeF size_;
    QSizeF representationSize_;
    Drawing drawing_;
};

} // namespace tessaly
