#include "device/reply_verdict.h"

namespace keplin {

bool IsAcknowledged(std::string_view record, std::string_view replyLine) {
    return replyLine.starts_with(record) &&
           replyLine.find('.', record.size() - 1) != std::string_view::npos;
}

}  // namespace keplin
