// The time that the desktop and the port of a test share. A sleep passes it, and so does a yield
// that waits for the serial line.
#pragma once

#include <algorithm>
#include <chrono>
#include <utility>

#include "simulator/wire.h"

namespace keplin::test {

using Microseconds = std::chrono::microseconds;

class VirtualTime {
  public:
    // A read found nothing: the next yield waits for what comes over the wire, where there is one.
    void ReadNothing(simulator::Wire* wire = nullptr) {
        waits_ = true;
        wire_ = wire;
    }

    // Waits if a read found nothing since the last time.
    void Wait() {
        if (!std::exchange(waits_, false)) return;
        const Microseconds end = Now + LongestWait;
        if (wire_ != nullptr) wire_->Advance(Now);
        const auto event = wire_ != nullptr ? wire_->NextEvent() : std::nullopt;
        // Rounded up, so that what happens then has happened.
        Now = event ? std::min(end, std::max(Now, std::chrono::ceil<Microseconds>(*event))) : end;
    }

    Microseconds Now{0};
    Microseconds LongestWait{2000};  // of one yield while nothing comes

  private:
    bool waits_ = false;
    simulator::Wire* wire_ = nullptr;
};

}  // namespace keplin::test
