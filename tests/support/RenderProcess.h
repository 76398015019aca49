#pragma once

#include "support/TemporaryFolder.h"

#include <unistd.h>

namespace tessaly {

/// The process that paints the preview of this one, forked by a child of ours; 0 when there is none.
inline pid_t renderProcess() {
    const std::filesystem::path processes{"/proc"};
    const auto parentOf = [&](pid_t process) {
        const std::string status = contentsOf(processes / std::to_string(process) / "status");
        const std::size_t at = status.find("\nPPid:\t");
        return at == std::string::npos ? 0 : std::atoi(status.c_str() + at + 7);
    };
    for (const auto& entry : std::filesystem::directory_iterator{processes}) {
        const pid_t process = std::atoi(entry.path().filename().c_str());
        if (process != 0 && parentOf(parentOf(process)) == ::getpid() &&
            contentsOf(entry.path() / "cmdline").find("QtWebEngineProcess") != std::string::npos) {
            return process;
        }
    }
    return 0;
}

} // namespace tessaly
