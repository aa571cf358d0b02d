// A file in the temporary folder that lives as long as its object.
#pragma once

#include <unistd.h>

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

}  // namespace keplin::test
