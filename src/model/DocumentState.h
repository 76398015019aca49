#pragma once

#include "model/ColorFormat.h"
#include "model/GradientList.h"

#include <cstdint>
#include <memory>

namespace tessaly {

/// Everything that the user can change, at one moment. What did not change since another moment is shared
/// with the state of that.
struct DocumentState {
    std::shared_ptr<const Gradient> gradient;
    std::int64_t notation = colorFormat::hexadecimal; ///< a code of ColorFormat.h
    std::int64_t selectedStop = 0;
    std::int64_t lowerBound = 0; ///< of the track, in points
    std::shared_ptr<const GradientList> presets;
};

/// Whether only the selection may differ.
inline bool sameContent(const DocumentState& a, const DocumentState& b) {
    return a.notation == b.notation && a.lowerBound == b.lowerBound &&
           (a.gradient == b.gradient || *a.gradient == *b.gradient) &&
           (a.presets == b.presets || *a.presets == *b.presets);
}

} // namespace tessaly
