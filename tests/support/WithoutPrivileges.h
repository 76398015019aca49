#pragma once

#include <array>
#include <linux/capability.h>
#include <memory>
#include <sys/syscall.h>
#include <unistd.h>

namespace tessaly {

/// Permissions hold for this thread, even if it is root's, until the answer is dropped.
inline std::shared_ptr<void> withoutPrivileges() {
    static __user_cap_header_struct process{_LINUX_CAPABILITY_VERSION_3, 0};
    using Sets = std::array<__user_cap_data_struct, _LINUX_CAPABILITY_U32S_3>;
    Sets before{};
    ::syscall(SYS_capget, &process, before.data());
    Sets reduced = before;
    reduced[0].effective &= ~(1U << CAP_DAC_OVERRIDE | 1U << CAP_DAC_READ_SEARCH);
    ::syscall(SYS_capset, &process, reduced.data());
    return {nullptr, [before](void*) { ::syscall(SYS_capset, &process, before.data()); }};
}

} // namespace tessaly
