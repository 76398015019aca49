#pragma once

#include <QImage>
#include <QVariant>
#include <QWebEngineView>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tessaly {

/// Square boxes on white, each with a background of its own, as a real browser engine paints them.
class BoxPage {
  public:
    static constexpr int side = 101; ///< of a box, in pixels
    static constexpr std::size_t mostBoxes = 108;

    /// What can be seen of a box; none: the engine refuses its value.
    using Picture = std::optional<QImage>;

    /// Shows an empty page. False: it does not load.
    bool open();

    /// Paints a box for each value. Empty: the engine does not answer.
    std::vector<Picture> paint(std::span<const std::string> values);

  private:
    unsigned paints_ = 0;
    std::optional<QVariantList> taken_; ///< what the engine answered; it may do so until it ends
    QWebEngineView view_;
};

} // namespace tessaly
