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

    bool has(const std::string& message) const {
        return std::find(messages.begin(), messages.end(), message) != messages.end();
    }

    std::vector<std::string> messages;

  private:
    DiagnosticLog::Sink previous_;
};

} // namespace tessaly
