#include "update/line_reader.h"

#include <algorithm>
#include <stdexcept>

namespace keplin {

bool LineReader::AtEnd() {
    ReadBlockIfEmpty();
    if (afterReturn_ && !unread_.empty()) {
        afterReturn_ = false;
        if (unread_.front() == '\n') unread_ = unread_.subspan(1);
        ReadBlockIfEmpty();
    }
    return unread_.empty();
}

std::string LineReader::ReadLine() {
    std::string line;
    while (!AtEnd()) {
        const auto end = std::find(unread_.begin(), unread_.end(), '\r');
        line.append(unread_.begin(), end);
        unread_ = std::span<const char>(end, unread_.end());
        if (!unread_.empty()) {
            unread_ = unread_.subspan(1);
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
    unread_ = std::span(block_).first(static_cast<std::size_t>(file_.gcount()));
}

}  // namespace keplin
