#include "foundation/DiagnosticLog.h"

#include <cstdio>
#include <string>
#include <utility>

namespace tessaly {
namespace {

// A message may quote generated text; its line breaks are escaped so that it stays one line.
void writeToStandardError(std::string_view message) {
    std::string line;
    line.reserve(message.size() + 1);
    for (const char c : message) {
        if (c == '\n' || c == '\r') {
            line += c == '\n' ? "\\n" : "\\r";
        } else {
            line += c;
        }
    }
    line += '\n';
    std::fwrite(line.data(), 1, line.size(), stderr);
}

DiagnosticLog::Sink& currentSink() {
    static DiagnosticLog::Sink sink = writeToStandardError;
    return sink;
}

} // namespace

void DiagnosticLog::write(std::string_view message) {
    currentSink()(message);
}

DiagnosticLog::Sink DiagnosticLog::exchangeSink(Sink sink) {
    return std::exchange(currentSink(), std::move(sink));
}

} // namespace tessaly
