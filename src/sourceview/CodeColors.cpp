#include "sourceview/CodeColors.h"

#include "foundation/Contrast.h"

#include <array>
#include <cstddef>

namespace tessaly::codeColor {
namespace {

// In the order of `CodeRole`, as they are on white.
constexpr std::array tints{
    rgbOfBytes(111, 66, 150), // purple
    rgbOfBytes(20, 84, 160),  // blue
    rgbOfBytes(18, 104, 72),  // green
    rgbOfBytes(96, 104, 112), // grey
};

static_assert(tints.size() == codeRoleCount);

constexpr RGBAComponents lineNumber{0.42, 0.42, 0.42, 1.0};

} // namespace

RGBAComponents ofRole(CodeRole role, const RGBAComponents& text, const RGBAComponents& background) {
    return withContrast(textContrast, tints[static_cast<std::size_t>(role)], text, background);
}

RGBAComponents ofLineNumber(const RGBAComponents& text, const RGBAComponents& background) {
    return withContrast(textContrast, lineNumber, text, background);
}

} // namespace tessaly::codeColor
