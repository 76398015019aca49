#pragma once

#include <unistd.h>
#include <utility>

namespace tessaly {

/// Owns an open file or folder, or none.
class Descriptor {
  public:
    Descriptor() = default;

    /// Takes what `open` and its kin return; a negative number is none.
    explicit Descriptor(int number) : number_{number} {}
    Descriptor(Descriptor&& other) noexcept : number_{std::exchange(other.number_, -1)} {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(number_, other.number_); // what was held before ends with `other`
        return *this;
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { close(); }

    explicit operator bool() const { return number_ >= 0; }
    int number() const { return number_; }

    /// False when the system could not complete what was written before.
    bool close() { return number_ < 0 || ::close(std::exchange(number_, -1)) == 0; }

  private:
    int number_ = -1;
};

} // namespace tessaly
