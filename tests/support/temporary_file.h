// A file in the temporary folder that lives as long as its object.
#pragma once

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace keplin::test {

class TemporaryFile {
  public:
    explicit TemporaryFile(std::string_view contents) {
        std::ofstream(path_, std::ios::binary) << contents;
    }
    ~TemporaryFile() { std::filesystem::remove(path_); }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    [[nodiscard]] std::string Path() const { return path_.string(); }

  private:
    inline static int count_ = 0;
    const std::filesystem::path path_ =
        std::filesystem::temp_directory_path() /
        ("keplin-test-" + std::to_string(getpid()) + "-" + std::to_string(++count_) + ".HEX");
};

// A folder of the same kind.
class TemporaryFolder {
  public:
    ~TemporaryFolder() { std::filesystem::remove_all(path_); }

    [[nodiscard]] std::filesystem::path Path() const { return path_; }

  private:
    std::string name_ = std::filesystem::temp_directory_path() / "keplin-test-XXXXXX";
    const std::filesystem::path path_ = ::mkdtemp(name_.data());
};

}  // namespace keplin::test
