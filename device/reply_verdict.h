// How the controller's reply to a record is judged.
#pragma once

#include <string_view>

namespace keplin {

// True when the reply line begins with the record itself, letter for letter, and a "." stands at
// or after the place of the record's last character. `record` is not empty.
bool IsAcknowledged(std::string_view record, std::string_view replyLine);

}  // namespace keplin
