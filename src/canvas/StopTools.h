#pragma once

#include "model/GlobalData.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace tessaly {

/// What rearranges the stops as a whole, or adds one to them, beside the mouse and the fields.
enum class StopTool {
    AddInBetween, ///< half way to the next stop, or from the last to the one before; the picture stays
    Duplicate,    ///< the selected stop, at the next place
    Reverse,      ///< the gradient runs the other way
    Distribute,   ///< in their order, evenly from the lowest position to the highest
    Sort          ///< by position; those at one position keep their order
};

inline constexpr std::array allStopTools{StopTool::AddInBetween, StopTool::Duplicate, StopTool::Reverse,
                                         StopTool::Distribute, StopTool::Sort};

/// The name of the step.
std::string_view nameOf(StopTool tool);

/// A gradient and which of its stops is selected.
struct StopSelection {
    Gradient gradient;
    std::int64_t selected;
};

/// What the tool makes of a gradient, without opacities that deletions left behind. The selection follows its
/// stop; a duplicate is selected in the place of its original. None: it would change nothing.
std::optional<StopSelection> appliedTo(const GlobalData& record, std::int64_t selected, StopTool tool);

} // namespace tessaly
