#pragma once

#include "model/History.h"

namespace tessaly {

/// That of a document in which nothing ever changes.
struct NoHistory : History {
    NoHistory()
        : History{{[] {
                       return DocumentState{.gradient = std::make_shared<Gradient>(),
                                            .presets = std::make_shared<GradientList>()};
                   },
                   [](const auto&, const auto&) {}, [] {}}} {}
};

} // namespace tessaly
