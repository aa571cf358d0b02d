#include "update/line_reader.h"

#include <algorithm>
#include <stdexcept>

namespace keplin {

bool LineReader::AtEnd() {
    ReadBlockIfEmpty();
    if (afterReturn_ && !unread_.empty()) {
        afterReturn_ = false;
        if (unread_.front() == '\n') unread_.remove_prefix(1);
        ReadBlockIfEmpty();
    }
    return unread_.empty();
}

// A line that lies within one block is not copied.
std::string_view LineReader::ReadLine() {
    const std::string_view first = TakeUpToReturn();
    if (afterReturn_) return first;
    joined_ = first;
    while (!afterReturn_ && !AtEnd())
        joined_ += TakeUpToReturn();
    return joined_;
}

// The rest of the line or, where that does not end in it, of the block.
std::string_view LineReader::TakeUpToReturn() {
    const std::size_t length = std::min(unread_.find('\r'), unread_.size());
    const std::string_view taken = unread_.substr(0, length);
    afterReturn_ = length < unread_.size();
    unread_.remove_prefix(length + (afterReturn_ ? 1 : 0));
    return taken;
}

void LineReader::ReadBlockIfEmpty() {
    if (!unread_.empty() || file_.eof()) return;
    file_.read(block_.data(), static_cast<std::streamsize>(block_.size()));
    if (file_.fail() && !file_.eof()) throw std::runtime_error("read error");
    unread_ = {block_.data(), static_cast<std::size_t>(file_.gcount())};
    size_ += unread_.size();
    if (size_ > kLargestFile) throw std::runtime_error("no text file");
}

}  // namespace keplin
