#pragma once

#include <functional>
#include <string_view>

namespace tessaly {

/// The program's one log. Messages carry no level; they go to standard error, one line each.
class DiagnosticLog {
  public:
    using Sink = std::function<void(std::string_view message)>;

    static void write(std::string_view message);

    /// Sends all further messages to `sink` and returns the one that had them before.
    static Sink exchangeSink(Sink sink);
};

} // namespace tessaly
