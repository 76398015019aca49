#pragma once

#include <csignal>
#include <memory>
#include <sys/resource.h>

namespace tessaly {

/// Lets no file grow beyond a number of bytes, as a full disk does, until the answer is dropped.
inline std::shared_ptr<void> limitFileSize(rlim_t bytes) {
    std::signal(SIGXFSZ, SIG_IGN); // the write fails instead
    rlimit before{};
    ::getrlimit(RLIMIT_FSIZE, &before);
    const rlimit limit{bytes, before.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
    return {nullptr, [before](void*) { ::setrlimit(RLIMIT_FSIZE, &before); }};
}

} // namespace tessaly
