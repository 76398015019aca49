#pragma once

#include "codegen/Declaration.h"

#include <string>

namespace tessaly {

class GlobalData;

/// One declaration of the gradient, with its tab in front and its line break behind; empty for a gradient
/// without stops. What an unknown orientation or notation code leaves without text reads (null).
std::string declarationText(Declaration declaration, const GlobalData& gradient);

} // namespace tessaly
