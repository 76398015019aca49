#pragma once

#include <QImage>
#include <QVariant>
#include <QWebEngineView>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tessaly {

/// Boxes of one size on white, each with a content of its own, as a real browser engine paints them.
class BoxPage {
  public:
    /// The size of a box in pixels, and how many boxes there are at most.
    BoxPage(QSize box, int columns, int rows) : box_{box}, columns_{columns}, rows_{rows} {}

    std::size_t mostBoxes() const { return static_cast<std::size_t>(columns_ * rows_); }

    /// What can be seen of a box; none: the engine refuses its value.
    using Picture = std::optional<QImage>;

    /// Shows an empty page. False: it does not load.
    bool open();

    /// Paints a box for each content: markup, or else the value of a background. Empty: the engine does not
    /// answer.
    std::vector<Picture> paint(std::span<const std::string> contents);

  private:
    QSize pitch() const;
    QRect boxAt(int index) const;

    QSize box_;
    int columns_;
    int rows_;
    unsigned paints_ = 0;
    std::optional<QVariantList> taken_; ///< what the engine answered; it may do so until it ends
    QWebEngineView view_;
};

} // namespace tessaly
