#pragma once

#include "model/ColorStop.h"
#include "presets/SqliteStatement.h"

namespace tessaly {

/// The columns that a stop is stored in, as a query names them.
inline constexpr const char* storedStopColumns = "position, red, green, blue, opacity";

/// The stop in the current row, from its first column on.
inline ColorStop storedStop(const SqliteStatement& row, int column) {
    return {row.real(column),
            Color::calibratedRGB(row.real(column + 1), row.real(column + 2), row.real(column + 3)),
            row.real(column + 4)};
}

} // namespace tessaly
