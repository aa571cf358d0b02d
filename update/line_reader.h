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
    // `file` must outlive the reader.
    explicit LineReader(std::istream& file) : file_(file) {}

    // Whether every line has been read. Throws std::runtime_error when the file cannot be read.
    bool AtEnd();

    // The next line without its end. Only while not AtEnd. Throws as above, and for a line of more
    // than 64 MiB, which no text file has.
    std::string ReadLine();

  private:
    void ReadBlockIfEmpty();

    std::istream& file_;
    std::array<char, 65536> block_{};
    std::string_view unread_;
    bool afterReturn_ = false;  // a line feed that comes next belongs to the end of the last line
};

}  // namespace keplin
