#pragma once

#include "foundation/Notification.h"

#include <cstdint>
#include <optional>

/// The notification that a strip of tabs posts.
namespace tessaly::tabNotification {

inline constexpr const char* selectIndexChanged = "SelectIndexChanged";

/// Another tab of `strip`, or the same once more, was selected: carries its index.
Notification makeSelectIndexChanged(std::int64_t index, const void* strip);

/// The index of the selected tab; none when it is missing.
std::optional<std::int64_t> indexOf(const Notification& notification);

} // namespace tessaly::tabNotification
