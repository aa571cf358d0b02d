// Reads a text file line by line.
#pragma once

#include <array>
#include <istream>
#include <string>
#include <string_view>

namespace keplin {

// A line ends at a carriage return followed by a line feed, or at a carriage return alone; a line
// feed by itself belongs to the line. The last line needs no end. Bytes pass unchanged.
class LineReader {
  public:
    // In bytes, several times what 10,001 records of the greatest length take.
    static constexpr std::size_t kLargestFile = 32 << 20;

    // `file` must outlive the reader.
    explicit LineReader(std::istream& file) : file_(file) {}

    // Whether every line has been read. Throws std::runtime_error when the file cannot be read, and
    // when it is larger than the largest file: a disk image taken for one would fill the memory.
    bool AtEnd();

    // The next line without its end, until the next call of either. Only while not AtEnd. Throws as
    // above.
    std::string_view ReadLine();

  private:
    std::string_view TakeUpToReturn();
    void ReadBlockIfEmpty();

    std::istream& file_;
    std::size_t size_ = 0;  // of what was read of the file so far
    std::array<char, 65536> block_{};
    std::string_view unread_;   // of the block
    std::string joined_;        // a line that began in an earlier block
    bool afterReturn_ = false;  // a line feed that comes next belongs to the end of the last line
};

}  // namespace keplin
