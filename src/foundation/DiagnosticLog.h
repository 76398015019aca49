#pragma once

#include <functional>
#include <string_view>

namespace tessaly {

/// The program's one log. Messages carry no level; they go to standard error, one line each. Many only trace
/// what the program does ("userpath", "mouseDown"): they stay, for whoever looks for a fault from its log.
class DiagnosticLog {
  public:
    using Sink = std::function<void(std::string_view message)>;

    static void write(std::string_view message);

    /// Sends all further messages to `sink` and returns the one that had them before.
    static Sink exchangeSink(Sink sink);
};

} // namespace tessaly
