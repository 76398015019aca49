#pragma once

#include "model/ColorFormat.h"
#include "model/Gradient.h"

#include <cstdint>

namespace tessaly {

/// The record of what is being edited. Whoever changes it announces that.
struct GlobalData {
    Gradient gradient;
    std::int64_t colorFormatType =
        colorFormat::hexadecimal; ///< a code of ColorFormat.h, or any other value for none

    bool operator==(const GlobalData&) const = default;
};

} // namespace tessaly
