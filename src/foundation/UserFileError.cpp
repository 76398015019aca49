#include "foundation/UserFileError.h"

#include <string>

namespace tessaly {
namespace {

class Category : public std::error_category {
  public:
    const char* name() const noexcept override { return "user file"; }
    std::string message(int code) const override {
        return static_cast<UserFileError>(code) == UserFileError::ChangedByOthers
                   ? "Changed by another program"
                   : "Not an ordinary file";
    }
};

} // namespace

std::error_code make_error_code(UserFileError error) {
    static const Category category;
    return {static_cast<int>(error), category};
}

} // namespace tessaly
