#include "foundation/NotificationCenter.h"

#include <algorithm>
#include <utility>

namespace tessaly {

struct NotificationCenter::Observer {
    std::string name;
    const void* object;
    Handler handler;
    bool active = true;

    bool wants(const Notification& notification) const {
        return active && name == notification.name && (object == nullptr || object == notification.object);
    }
};

NotificationCenter::Observation& NotificationCenter::Observation::operator=(Observation&& other) noexcept {
    if (this != &other) {
        reset();
        observer_ = std::move(other.observer_);
    }
    return *this;
}

void NotificationCenter::Observation::reset() {
    if (const auto observer = observer_.lock()) {
        observer->active = false;
    }
    observer_.reset();
}

NotificationCenter& NotificationCenter::defaultCenter() {
    static NotificationCenter center;
    return center;
}

NotificationCenter::Observation NotificationCenter::addObserver(std::string name, const void* object,
                                                                Handler handler) {
    std::erase_if(observers_, [](const auto& observer) { return !observer->active; });
    observers_.push_back(std::make_shared<Observer>(Observer{std::move(name), object, std::move(handler)}));
    return Observation{observers_.back()};
}

void NotificationCenter::post(const Notification& notification) {
    // The copy keeps the list, and each handler while it runs, whatever the handlers do to the centre.
    std::vector<std::shared_ptr<Observer>> receivers;
    std::copy_if(observers_.begin(), observers_.end(), std::back_inserter(receivers),
                 [&](const auto& observer) { return observer->wants(notification); });
    for (const auto& receiver : receivers) {
        if (receiver->active) {
            receiver->handler(notification);
        }
    }
}

} // namespace tessaly
