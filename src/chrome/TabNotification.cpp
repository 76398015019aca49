#include "chrome/TabNotification.h"

#include <any>

namespace tessaly::tabNotification {
namespace {

constexpr const char* indexKey = "Index";

} // namespace

Notification makeSelectIndexChanged(std::int64_t index, const void* strip) {
    return {selectIndexChanged, strip, {{indexKey, index}}};
}

std::optional<std::int64_t> indexOf(const Notification& notification) {
    const auto entry = notification.userInfo.find(indexKey);
    const auto* const index =
        entry == notification.userInfo.end() ? nullptr : std::any_cast<std::int64_t>(&entry->second);
    return index != nullptr ? std::optional{*index} : std::nullopt;
}

} // namespace tessaly::tabNotification
