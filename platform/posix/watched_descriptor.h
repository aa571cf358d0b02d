// A line whose bytes and whose end an event loop can wait for.
#pragma once

#include <functional>

#include "platform/watched_line.h"

namespace keplin {

class WatchedDescriptor : public WatchedLine {
  public:
    // Called with the descriptor of each line that opens, and with -1 before it closes.
    std::function<void(int descriptor)> OnLineChange;
};

}  // namespace keplin
