#include "presets/PresetNotification.h"

namespace tessaly::presetNotification {
namespace {

constexpr const char* positionsKey = "colorMarkerPos";
constexpr const char* colorsKey = "colorMarkerColor";
constexpr const char* opacitiesKey = "colorMarkerOpacity";
constexpr const char* orientationKey = "orientationType";
constexpr const char* indexKey = "index";

template <typename Value>
const Value* valueOf(const Notification& notification, const char* key) {
    const auto entry = notification.userInfo.find(key);
    return entry == notification.userInfo.end() ? nullptr : std::any_cast<Value>(&entry->second);
}

} // namespace

Notification makeGradientIndexChanged(const Preset& preset, const void* thumbnail) {
    return {gradientIndexChanged,
            thumbnail,
            {{positionsKey, preset.colorMarkerPos},
             {colorsKey, preset.colorMarkerColor},
             {opacitiesKey, preset.colorMarkerOpacity},
             {orientationKey, preset.orientationType}}};
}

Notification makeDeleteGradient(std::int64_t index, const void* thumbnail) {
    return {deleteGradient, thumbnail, {{indexKey, index}}};
}

std::optional<Preset> presetOf(const Notification& notification) {
    const auto* const positions = valueOf<std::vector<double>>(notification, positionsKey);
    const auto* const colors = valueOf<std::vector<Color>>(notification, colorsKey);
    const auto* const opacities = valueOf<std::vector<double>>(notification, opacitiesKey);
    const auto* const orientationType = valueOf<std::int64_t>(notification, orientationKey);
    if (!positions || !colors || !opacities || !orientationType) {
        return std::nullopt;
    }
    return Preset{*positions, *colors, *opacities, *orientationType};
}

std::optional<std::int64_t> indexOf(const Notification& notification) {
    const auto* const index = valueOf<std::int64_t>(notification, indexKey);
    return index ? std::optional{*index} : std::nullopt;
}

} // namespace tessaly::presetNotification
