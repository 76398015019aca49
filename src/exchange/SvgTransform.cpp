#include "exchange/SvgTransform.h"

#include "exchange/CssCharacter.h"
#include "exchange/SvgValue.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace tessaly {
namespace {

constexpr std::size_t mostNumbers = 6;
using Numbers = std::array<double, mostNumbers>; // those not written are 0

double radians(double degrees) {
    return degrees * std::numbers::pi / 180.0;
}

SvgTransform rotation(const Numbers& n) {
    const double cosine = std::cos(radians(n[0]));
    const double sine = std::sin(radians(n[0]));
    const SvgTransform turned{cosine, sine, -sine, cosine, 0.0, 0.0};
    return SvgTransform{1, 0, 0, 1, n[1], n[2]}.after(turned).after({1, 0, 0, 1, -n[1], -n[2]});
}

struct Function {
    std::string_view name;
    std::array<std::size_t, 2> counts; // of numbers, that may be given
    SvgTransform (*make)(const Numbers& numbers, std::size_t count);
};

constexpr std::array<Function, 6> functions{{
    {"matrix",
     {6, 6},
     [](const Numbers& n, std::size_t) { return SvgTransform{n[0], n[1], n[2], n[3], n[4], n[5]}; }},
    {"translate", {1, 2}, [](const Numbers& n, std::size_t) { return SvgTransform{1, 0, 0, 1, n[0], n[1]}; }},
    {"scale",
     {1, 2},
     [](const Numbers& n, std::size_t count) { return SvgTransform{n[0], 0, 0, n[count - 1], 0, 0}; }},
    {"rotate", {1, 3}, [](const Numbers& n, std::size_t) { return rotation(n); }},
    {"skewX",
     {1, 1},
     [](const Numbers& n, std::size_t) { return SvgTransform{1, 0, std::tan(radians(n[0])), 1, 0, 0}; }},
    {"skewY",
     {1, 1},
     [](const Numbers& n, std::size_t) { return SvgTransform{1, std::tan(radians(n[0])), 0, 1, 0, 0}; }},
}};

// Takes "name(1, 2)" off the front of the text.
std::optional<SvgTransform> takeFunction(std::string_view& text) {
    const std::size_t open = text.find('(');
    const Function* const function =
        std::ranges::find(functions, trimmed(text.substr(0, open)), &Function::name);
    if (open == std::string_view::npos || function == functions.end()) {
        return std::nullopt;
    }
    text.remove_prefix(open + 1);
    Numbers numbers{};
    std::size_t count = 0;
    for (skipSeparators(text); !text.starts_with(')'); skipSeparators(text)) {
        const std::optional<double> number = count < mostNumbers ? takeNumber(text) : std::nullopt;
        if (!number) {
            return std::nullopt;
        }
        numbers[count++] = *number;
    }
    text.remove_prefix(1);
    return std::ranges::find(function->counts, count) == function->counts.end()
               ? std::nullopt
               : std::optional{function->make(numbers, count)};
}

} // namespace

SvgTransform SvgTransform::after(const SvgTransform& first) const {
    const Point place = (*this)({first.e, first.f});
    return {a * first.a + c * first.b,
            b * first.a + d * first.b,
            a * first.c + c * first.d,
            b * first.c + d * first.d,
            place.x,
            place.y};
}

std::optional<SvgTransform> svgTransform(std::string_view text) {
    SvgTransform whole;
    for (skipSeparators(text); !text.empty(); skipSeparators(text)) {
        const std::optional<SvgTransform> next = takeFunction(text);
        if (!next) {
            return std::nullopt;
        }
        whole = whole.after(*next);
    }
    return whole;
}

} // namespace tessaly
