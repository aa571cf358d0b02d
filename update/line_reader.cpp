#include "update/line_reader.h"

#include <algorithm>
#include <stdexcept>

namespace keplin {
namespace {

// In bytes, far beyond any update file: a disk image taken for one would fill the memory.
constexpr std::size_t kLongestLine = 64 << 20;

}  // namespace

bool LineReader::AtEnd() {
    ReadBlockIfEmpty();
    if (afterReturn_ && !unread_.empty()) {
        afterReturn_ = false;
        if (unread_.front() == '\n') unread_.remove_prefix(1);
        ReadBlockIfEmpty();
    }
    return unread_.empty();
}

std::string LineReader::ReadLine() {
    std::string line;
    while (!AtEnd()) {
        const std::size_t length = std::min(unread_.find('\r'), unread_.size());
        line.append(unread_, 0, length);
        unread_.remove_prefix(length);
        if (line.size() > kLongestLine) throw std::runtime_error("no text file");
        if (!unread_.empty()) {
            unread_.remove_prefix(1);
            afterReturn_ = true;
            break;
        }
    }
    return line;
}

void LineReader::ReadBlockIfEmpty() {
    if (!unread_.empty() || file_.eof()) return;
    file_.read(block_.data(), static_cast<std::streamsize>(block_.size()));
    if (file_.fail() && !file_.eof()) throw std::runtime_error("read error");
    unread_ = {block_.data(), static_cast<std::size_t>(file_.gcount())};
}

}  // namespace keplin
