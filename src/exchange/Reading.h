#pragma once

#include "model/Gradient.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tessaly {

/// A gradient found in a text, and in how far it is not what was written there.
struct FoundGradient {
    Gradient gradient;              ///< positions 0 ... 1, stops in the order written
    std::string name;               ///< the rule's selector; of SVG the id; empty: it has none
    std::vector<std::string> notes; ///< what was changed, each a short phrase, such as "37° taken as 45°"
};

struct Reading {
    std::vector<FoundGradient> gradients;
    bool complete = true;      ///< false: a limit was reached
    std::size_t leftOut = 0;   ///< gradients that were seen and cannot be said here
    std::string_view reason{}; ///< why the first of them cannot, a phrase such as "is conic"; static
};

/// Adds a phrase to those that are told in one line; an empty one adds nothing.
void addPhrase(std::string& told, std::string_view phrase);

/// All notes in one line.
std::string notesOf(const FoundGradient& found);

/// Is told the share 0 ... 1 that is read or written; false from it ends that. A reading is then empty.
using Progress = std::function<bool(double share)>;

} // namespace tessaly
