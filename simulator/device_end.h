// Whatever stands at the controller's end of the serial line. It knows bytes and no clock: the line
// decides when a byte reaches it and when its answer arrives.
#pragma once

#include <chrono>
#include <cstdint>
#include <vector>

namespace keplin::simulator {

struct SentByte {
    std::uint8_t value = 0;
    std::chrono::microseconds rest{0};  // how long the line rests before the byte; never below 0
};

class DeviceEnd {
  public:
    virtual ~DeviceEnd() = default;

    // A byte has come in. Appends what is sent in answer, in order.
    virtual void Receive(std::uint8_t byte, std::vector<SentByte>& answer) = 0;

    // Something came in or went out, and nothing more is waiting to be sent. Appends what is sent
    // without being asked; asked again when that has gone out.
    virtual void LineIdle([[maybe_unused]] std::vector<SentByte>& answer) {}

    // The connection is gone; the line hangs up when it sees this.
    [[nodiscard]] virtual bool HungUp() const { return false; }

    // The line saw HungUp() and is gone: all bytes under way, in both directions, are lost.
    virtual void LineClosed() {}
};

// Hears everything and never answers.
class SilentDevice final : public DeviceEnd {
  public:
    void Receive(std::uint8_t /*byte*/, std::vector<SentByte>& /*answer*/) override {}
};

}  // namespace keplin::simulator
