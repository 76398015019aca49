#pragma once

#include "foundation/Notification.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tessaly {

/// Delivers notifications by name and poster, synchronously and in order of registration.
/// A handler may post, add and remove: an observer removed during a delivery is no longer called by it, one
/// added during a delivery is first called by the next.
class NotificationCenter {
    struct Observer;

  public:
    using Handler = std::function<void(const Notification&)>;

    /// Ends its observation when it dies or is reset. May outlive the centre.
    class Observation {
      public:
        Observation() = default;
        Observation(Observation&&) noexcept = default;
        Observation& operator=(Observation&& other) noexcept;
        Observation(const Observation&) = delete;
        Observation& operator=(const Observation&) = delete;
        ~Observation() { reset(); }

        void reset();

      private:
        friend class NotificationCenter;
        explicit Observation(std::weak_ptr<Observer> observer) : observer_{std::move(observer)} {}

        std::weak_ptr<Observer> observer_;
    };

    /// The one centre that all rooms of the program share.
    static NotificationCenter& defaultCenter();

    /// Calls `handler` for every notification of that name; a null `object` means from any poster.
    [[nodiscard]] Observation addObserver(std::string name, const void* object, Handler handler);

    void post(const Notification& notification);

  private:
    std::vector<std::shared_ptr<Observer>> observers_;
};

} // namespace tessaly
