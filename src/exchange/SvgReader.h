#pragma once

#include "exchange/Reading.h"

#include <string_view>

namespace tessaly {

/// Every gradient of the SVG that is in a text: a document, or pieces of one, in a page or by themselves.
/// What is no well-formed XML is passed over.
Reading readSvgGradients(std::string_view text, const Progress& progress = {});

} // namespace tessaly
