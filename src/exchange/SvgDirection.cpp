#include "exchange/SvgDirection.h"

#include "foundation/NumberText.h"
#include "model/Orientation.h"

#include <array>
#include <cmath>

namespace tessaly {
namespace {

struct Turn {
    std::int64_t orientation;
    bool isTurned;
};

constexpr double step = 45.0;
constexpr std::array<Turn, 8> turns{{
    {orientation::bottomToTop, false},
    {orientation::diagonalToTopRight, false},
    {orientation::leftToRight, false},
    {orientation::diagonalToTopLeft, true},
    {orientation::bottomToTop, true},
    {orientation::diagonalToTopRight, true},
    {orientation::leftToRight, true},
    {orientation::diagonalToTopLeft, false},
}};

std::string degrees(double angle) {
    const double tenths = std::round(angle * 10.0) / 10.0;
    return fixedText(tenths, tenths == std::round(tenths) ? 0 : 1) + "\u00B0";
}

} // namespace

SvgDirection nearestSvgDirection(double angle) {
    constexpr double seen = 0.1; // moves the outermost colors by less than half a level
    const double nearest = std::round(angle / step);
    const Turn& turn = turns[static_cast<std::size_t>(nearest) % turns.size()];
    const double taken = nearest * step;
    const bool isExact = std::abs(angle - taken) <= seen;
    return {turn.orientation, turn.isTurned,
            isExact ? std::string{} : degrees(angle) + " taken as " + degrees(taken)};
}

} // namespace tessaly
