#pragma once

#include <QBackingStore>
#include <QImage>
#include <QTimer>
#include <QWidget>
#include <chrono>
#include <vector>

namespace tessaly {

/// Looks every millisecond at what a window shows in a part of it, and notes when the picture there is
/// another one.
class PictureWatch {
  public:
    using Clock = std::chrono::steady_clock;

    PictureWatch(QWidget& window, QWidget& part) : window_{window}, part_{part} {
        timer_.setTimerType(Qt::PreciseTimer);
        timer_.setInterval(1);
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { look(); });
    }

    void start() {
        pictures_.clear();
        last_ = row();
        timer_.start();
    }

    /// Whether there is a picture that is black at its left edge, as the first gradient is.
    bool startsBlack() const {
        const std::vector<uchar> now = row();
        return !now.empty() && now[0] < 16;
    }

    const std::vector<Clock::time_point>& pictures() const { return pictures_; }

  private:
    // A row of pixels through the upper half of the part, four bytes each; none before there is a picture.
    std::vector<uchar> row() const {
        auto* const image = dynamic_cast<QImage*>(window_.backingStore()->paintDevice());
        if (image == nullptr || image->isNull()) {
            return {};
        }
        const QPoint corner = part_.mapTo(&window_, QPoint{20, 100});
        const uchar* const pixels = image->constScanLine(corner.y()) + corner.x() * 4;
        return {pixels, pixels + (part_.width() - 40) * 4};
    }

    void look() {
        std::vector<uchar> now = row();
        if (now != last_) {
            last_ = std::move(now);
            pictures_.push_back(Clock::now());
        }
    }

    QWidget& window_;
    QWidget& part_;
    QTimer timer_;
    std::vector<uchar> last_;
    std::vector<Clock::time_point> pictures_;
};

} // namespace tessaly
