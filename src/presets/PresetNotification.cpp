#include "presets/PresetNotification.h"

namespace tessaly::presetNotification {
namespace {

constexpr const char* gradientKey = "gradient";
constexpr const char* indexKey = "index";

template <typename Value>
const Value* valueOf(const Notification& notification, const char* key) {
    const auto entry = notification.userInfo.find(key);
    return entry == notification.userInfo.end() ? nullptr : std::any_cast<Value>(&entry->second);
}

} // namespace

Notification makeGradientIndexChanged(const Preset& preset, const void* thumbnail) {
    return {gradientIndexChanged, thumbnail, {{gradientKey, preset.gradient}}};
}

Notification makeDeleteGradient(std::int64_t index, const void* thumbnail) {
    return {deleteGradient, thumbnail, {{indexKey, index}}};
}

const Gradient* gradientOf(const Notification& notification) {
    return valueOf<Gradient>(notification, gradientKey);
}

std::optional<std::int64_t> indexOf(const Notification& notification) {
    const auto* const index = valueOf<std::int64_t>(notification, indexKey);
    return index ? std::optional{*index} : std::nullopt;
}

} // namespace tessaly::presetNotification
