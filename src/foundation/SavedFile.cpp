#include "foundation/SavedFile.h"

namespace tessaly {

std::error_code SavedFile::save(std::string_view contents, AtomicFile::Durability durability) {
    UserFile file{path_, left_};
    file.write(contents);
    const std::error_code error = file.commit(durability);
    struct stat status {};
    if (!error && ::stat(path_.c_str(), &status) == 0) { // by name: closing a file may date it on a network
        left_.emplace(status);
    }
    return error;
}

} // namespace tessaly
