#pragma once

#include "foundation/RGBAComponents.h"
#include "sourceview/CodeStretch.h"

/// The colours of a code view in a palette: `text` and `background` are those of its plain text. All can be
/// read on that background, and none is stronger than that takes.
namespace tessaly::codeColor {

RGBAComponents ofRole(CodeRole role, const RGBAComponents& text, const RGBAComponents& background);
RGBAComponents ofLineNumber(const RGBAComponents& text, const RGBAComponents& background);

} // namespace tessaly::codeColor
