#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace tessaly {

inline std::string contentsOf(const std::filesystem::path& file) {
    std::ifstream stream{file, std::ios::binary};
    return {std::istreambuf_iterator<char>{stream}, {}};
}

/// A fresh folder that goes with the test.
class TemporaryFolder {
  public:
    explicit TemporaryFolder(const std::filesystem::path& parent = std::filesystem::temp_directory_path()) {
        std::string name = (parent / "tessaly-test-XXXXXX").native();
        if (::mkdtemp(name.data()) == nullptr) {
            throw std::runtime_error{"no temporary folder"};
        }
        path = name;
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() { std::filesystem::remove_all(path); }

    std::filesystem::path path;
};

} // namespace tessaly
