#pragma once

#include <string>
#include <string_view>

namespace tessaly {

inline std::string repeated(std::string_view piece, std::size_t count) {
    std::string text;
    for (std::size_t i = 0; i < count; ++i) {
        text += piece;
    }
    return text;
}

} // namespace tessaly
