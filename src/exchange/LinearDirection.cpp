#include "exchange/LinearDirection.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace tessaly {
namespace {

constexpr double turn = 360;
constexpr double step = 45;
constexpr double unseen = 0.1; // degrees; moves the outermost colors by less than half a level

struct Way {
    std::int64_t orientation;
    bool turned;
};

// Clockwise from upwards.
constexpr std::array ways{
    Way{orientation::bottomToTop, false}, Way{orientation::diagonalToTopRight, false},
    Way{orientation::leftToRight, false}, Way{orientation::diagonalToTopLeft, true},
    Way{orientation::bottomToTop, true},  Way{orientation::diagonalToTopRight, true},
    Way{orientation::leftToRight, true},  Way{orientation::diagonalToTopLeft, false},
};

} // namespace

bool LinearDirection::isExact() const {
    return std::abs(offset) < unseen;
}

LinearDirection nearestDirection(double degrees) {
    const double angle = degrees - std::floor(degrees / turn) * turn;
    const double steps = std::floor(std::clamp(angle, 0.0, turn) / step + 0.5);
    const auto place = static_cast<std::size_t>(steps) % ways.size();
    const Way& way = ways[place];
    return {way.orientation, way.turned, static_cast<int>(place) * 45, angle - steps * step};
}

double degreesOf(double right, double up) {
    const double degrees = std::atan2(right, up) * 180 / std::numbers::pi;
    return degrees < 0 ? degrees + turn : degrees;
}

} // namespace tessaly
