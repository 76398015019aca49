#pragma once

#include <any>
#include <map>
#include <string>

namespace tessaly {

/// What a poster tells its observers: a name, the posting object and named values.
struct Notification {
    std::string name;
    const void* object = nullptr; ///< identity of the poster; never dereferenced
    std::map<std::string, std::any> userInfo;
};

} // namespace tessaly
