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
  public:
    using Handler = std::function<void(const Notification&)>;

    /// Ends when it is dropped or reset. May outlive the centre.
    using Observation = std::shared_ptr<const void>;

    /// The one centre that all rooms of the program share.
    static NotificationCenter& defaultCenter();

    /// Calls `handler` for every notification of that name; a null `object` means from any poster.
    [[nodiscard]] Observation addObserver(std::string name, const void* object, Handler handler);

    void post(const Notification& notification);

  private:
    struct Observer;

    std::vector<std::shared_ptr<Observer>> observers_;
};

} // namespace tessaly
