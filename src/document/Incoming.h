#pragma once

#include "exchange/CssColor.h"
#include "exchange/Reading.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessaly {

/// What a text or a file that came in has to offer; if nothing, `failure` is the sentence that says so.
struct Incoming {
    std::vector<FoundGradient> gradients;
    std::optional<ReadColor> color; ///< the text is a colour
    std::string failure;
    std::string leftOut; ///< what of the text is not among the gradients, a phrase; empty: nothing
};

/// Longer ones are refused.
inline constexpr std::size_t longestIncoming = std::size_t{16} << 20U;

// Both are pure but for the reading of the file, and may run on any thread.

/// `source` is what a failure calls it, such as "the clipboard".
Incoming readIncomingText(std::string_view text, const std::string& source, const Progress& progress = {});

/// A text file, or a database of presets.
Incoming readIncomingFile(const std::filesystem::path& file, const Progress& progress = {});

} // namespace tessaly
