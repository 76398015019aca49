#pragma once

#include <string_view>

/// What the user can do to the document, each by the name that the menu gives it behind "Undo".
namespace tessaly::editStep {

inline constexpr std::string_view addStop = "Add Stop";
inline constexpr std::string_view moveStop = "Move Stop";
inline constexpr std::string_view deleteStop = "Delete Stop";
inline constexpr std::string_view changeColor = "Change Color";
inline constexpr std::string_view changePosition = "Change Position";
inline constexpr std::string_view changeOpacity = "Change Opacity";
inline constexpr std::string_view changeOrientation = "Change Orientation";
inline constexpr std::string_view changeNotation = "Change Notation";
inline constexpr std::string_view boundTrack = "Bound Track";
inline constexpr std::string_view addPreset = "Add Preset";
inline constexpr std::string_view applyPreset = "Apply Preset";
inline constexpr std::string_view deletePreset = "Delete Preset";
inline constexpr std::string_view movePreset = "Move Preset";
inline constexpr std::string_view newGradient = "New Gradient";
inline constexpr std::string_view pasteGradient = "Paste Gradient";
inline constexpr std::string_view openGradient = "Open Gradient";
inline constexpr std::string_view addToPresets = "Add to Presets";
inline constexpr std::string_view addStopInBetween = "Add Stop in Between";
inline constexpr std::string_view duplicateStop = "Duplicate Stop";
inline constexpr std::string_view reverse = "Reverse";
inline constexpr std::string_view distributeEvenly = "Distribute Evenly";
inline constexpr std::string_view sortStops = "Sort Stops";

} // namespace tessaly::editStep
