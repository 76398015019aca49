#pragma once

#include "exchange/Reading.h"

#include <filesystem>
#include <functional>
#include <string_view>
#include <system_error>

namespace tessaly {

class GradientPicture;

/// Takes the bytes of a file as they come, and must not throw; an error ends the writing.
using ByteSink = std::function<std::error_code(std::string_view bytes)>;

/// Writes the picture as PNG: sRGB, 8 bits a channel, with alpha. It holds a few rows of it, whatever its
/// size. False from `progress`, which is told the share that is done, ends it: `operation_canceled`. An error
/// of the sink is answered as it is; `not_enough_memory`: the encoder failed.
std::error_code writePng(const GradientPicture& picture, const ByteSink& sink, const Progress& progress = {});

/// The same into a file for the user, as a whole or not at all; its errors are those of UserFile too.
std::error_code writePngFile(const GradientPicture& picture, const std::filesystem::path& file,
                             const Progress& progress = {});

} // namespace tessaly
