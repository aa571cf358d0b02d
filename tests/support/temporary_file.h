// A file in the temporary folder that lives as long as its object.
#pragma once

#include <filesystem>
#include <fstream>
#include <random>

#include "platform/path.h"

namespace keplin::test {

inline std::filesystem::path TemporaryName(const char* ending) {
    std::random_device random;
    const std::string number = std::to_string(random()) + "-" + std::to_string(random());
    return std::filesystem::temp_directory_path() / ("keplin-test-" + number + ending);
}

class TemporaryFile {
  public:
    explicit TemporaryFile(std::string_view contents) {
        std::ofstream(path_, std::ios::binary) << contents;
    }
    // Windows keeps a file that the program still has open.
    ~TemporaryFile() {
        std::error_code kept;
        std::filesystem::remove(path_, kept);
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    [[nodiscard]] std::string Path() const { return FromPath(path_); }

  private:
    const std::filesystem::path path_ = TemporaryName(".HEX");
};

// A folder of the same kind.
class TemporaryFolder {
  public:
    TemporaryFolder() { std::filesystem::create_directory(path_); }
    ~TemporaryFolder() { std::filesystem::remove_all(path_); }

    [[nodiscard]] std::filesystem::path Path() const { return path_; }

  private:
    const std::filesystem::path path_ = TemporaryName("");
};

}  // namespace keplin::test
