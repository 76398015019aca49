#pragma once

#include <QApplication>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <string>

namespace tessaly {

/// In KiB: what the process has for itself and its part of what it shares with others; 0 when the system does
/// not tell.
inline long proportionalSet() {
    std::ifstream rollup{"/proc/self/smaps_rollup"};
    for (std::string word; rollup >> word;) {
        if (word == "Pss:") {
            rollup >> word;
            return std::stol(word);
        }
    }
    return 0;
}

/// Prints the milliseconds since `startedAt` (nanoseconds of the system clock, as text) and the proportional
/// set, and ends the program.
inline void report(const char* startedAt) {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    const double nanoseconds = std::chrono::duration<double, std::nano>{now}.count() - std::stod(startedAt);
    std::printf("%.1f %ld\n", nanoseconds / 1e6, proportionalSet());
    QApplication::quit();
}

} // namespace tessaly
