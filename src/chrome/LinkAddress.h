#pragma once

#include <string>
#include <string_view>

namespace tessaly {

/// What a click on a link label opens, and the line to log once that was asked for.
struct LinkAddress {
    std::string address; ///< may be no valid address; then nothing is opened
    std::string logLine;

    /// A text with "http://" anywhere in it, in capitals or not, is opened as it stands; any other text, also
    /// one with another scheme, gets that prefix put in front.
    static LinkAddress ofLabel(std::string_view text);

    /// An address as a link label shows it: without "https://", which a label would take for a host, and
    /// without a final slash.
    static std::string labelText(std::string_view address);
};

} // namespace tessaly
