#pragma once

#include <system_error>

namespace tessaly {

/// Why a file for the user is not written, beyond what the system has to say.
enum class UserFileError {
    ChangedByOthers = 1, ///< since it was written here
    NoOrdinaryFile,      ///< a device, say
};

std::error_code make_error_code(UserFileError error);

} // namespace tessaly

template <>
struct std::is_error_code_enum<tessaly::UserFileError> : std::true_type {};
