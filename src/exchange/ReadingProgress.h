#pragma once

#include "exchange/Reading.h"

#include <algorithm>
#include <cstddef>

namespace tessaly {

/// Tells how far a text is read, every now and then, and knows when the reading is to end.
class ReadingProgress {
  public:
    /// `length` of the text in bytes; `progress` may be empty.
    ReadingProgress(std::size_t length, const Progress& progress) : length_{length}, progress_{progress} {}

    /// Everything up to `place` is read; false: the reading is to end.
    bool reach(std::size_t place) {
        constexpr std::size_t interval = 1U << 16U;
        if (progress_ && goesOn_ && place >= next_) {
            next_ = place + interval;
            share_ = std::max(share_, static_cast<double>(place) / static_cast<double>(length_));
            goesOn_ = progress_(share_);
        }
        return goesOn_;
    }

    /// The text is read once more; the share that was told stays.
    void startOver() { next_ = 0; }

    bool goesOn() const { return goesOn_; }

  private:
    std::size_t length_;
    const Progress& progress_;
    std::size_t next_ = 0;
    double share_ = 0.0;
    bool goesOn_ = true;
};

} // namespace tessaly
