#include "foundation/NotificationCenter.h"

#include <algorithm>
#include <utility>

namespace tessaly {

struct NotificationCenter::Observer {
    std::string name;
    const void* object;
    Handler handler;
    std::weak_ptr<const void> observation;

    bool isActive() const { return !observation.expired(); }
    bool wants(const Notification& notification) const {
        return isActive() && name == notification.name &&
               (object == nullptr || object == notification.object);
    }
};

NotificationCenter& NotificationCenter::defaultCenter() {
    static NotificationCenter center;
    return center;
}

NotificationCenter::Observation NotificationCenter::addObserver(std::string name, const void* object,
                                                                Handler handler) {
    std::erase_if(observers_, [](const auto& observer) { return !observer->isActive(); });
    Observation observation = std::make_shared<char>(); // an identity alone: the centre owns the observer
    observers_.push_back(
        std::make_shared<Observer>(Observer{std::move(name), object, std::move(handler), observation}));
    return observation;
}

void NotificationCenter::post(const Notification& notification) {
    // The copy keeps the list, and each handler while it runs, whatever the handlers do to the centre.
    std::vector<std::shared_ptr<Observer>> receivers;
    std::copy_if(observers_.begin(), observers_.end(), std::back_inserter(receivers),
                 [&](const auto& observer) { return observer->wants(notification); });
    for (const auto& receiver : receivers) {
        if (receiver->isActive()) {
            receiver->handler(notification);
        }
    }
}

} // namespace tessaly
