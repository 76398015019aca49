#pragma once

#include "exchange/CssColor.h"

namespace tessaly {

/// How the colours between two stops are found: by their opacity, as CSS does, or as they are, as SVG does.
enum class StopMixing { Premultiplied, Plain };

/// The colour that a browser has on the way from one to the other, 0 ... 1.
ReadColor mixed(const ReadColor& from, const ReadColor& to, double way, StopMixing mixing);

/// By how much the channels differ that differ most. A colour without RGB form counts as black.
double colorDistance(const Color& one, const Color& other);

} // namespace tessaly
