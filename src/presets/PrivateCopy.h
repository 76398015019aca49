#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <utility>

namespace tessaly {

/// A database as it stands at one moment, with what belongs to it, copied to a folder that only the user may
/// read. The copy goes with this; whatever is done to it, the original never knows.
class PrivateCopy {
  public:
    /// None: there is no file that can be read, it is larger than `mostBytes`, it changes all the time, or
    /// there is no room for a copy.
    static std::optional<PrivateCopy> of(const std::filesystem::path& database, std::uintmax_t mostBytes);

    PrivateCopy(PrivateCopy&& other) noexcept
        : folder_{std::exchange(other.folder_, std::filesystem::path{})} {}
    PrivateCopy& operator=(PrivateCopy&&) = delete;
    PrivateCopy(const PrivateCopy&) = delete;
    PrivateCopy& operator=(const PrivateCopy&) = delete;
    ~PrivateCopy();

    std::filesystem::path file() const { return folder_ / "copy.sqlite3"; }

  private:
    explicit PrivateCopy(std::filesystem::path folder) : folder_{std::move(folder)} {}

    bool take(const std::filesystem::path& database, std::uintmax_t mostBytes) const;

    std::filesystem::path folder_;
};

} // namespace tessaly
