#pragma once

#include "foundation/DiagnosticLog.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace tessaly {

/// Keeps what is logged during its life.
class LogCapture {
  public:
    LogCapture()
        : previous_{DiagnosticLog::exchangeSink([this](auto message) { messages.emplace_back(message); })} {}
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;
    ~LogCapture() { DiagnosticLog::exchangeSink(std::move(previous_)); }

    auto count(const std::string& text) const { return std::count(messages.begin(), messages.end(), text); }
    bool has(const std::string& text) const { return count(text) > 0; }

    std::vector<std::string> messages;

  private:
    DiagnosticLog::Sink previous_;
};

} // namespace tessaly
