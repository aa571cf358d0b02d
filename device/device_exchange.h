// The conversation with the controller's loader: the ping, one byte that comes back, and the record
// exchange, a record whose reply line tells whether the loader obeyed it.
#pragma once

#include <chrono>
#include <cstdint>
#include <string_view>

#include "device/serial_port.h"
#include "platform/desktop.h"

namespace keplin {

// A loader answers within milliseconds; the slowest thing it does, an erase, takes seconds. A reply
// line that pauses for longer than this will not end.
inline constexpr std::chrono::seconds kReplySilenceLimit{30};

// Nor will one that has not ended by then, however often a byte comes: a cable that hangs loose can
// bring one now and then for ever.
inline constexpr std::chrono::seconds kReplyTimeLimit{120};

// A reply is the record's echo and a few characters. A line that grows this much longer than its
// record is not a reply, and the device that sends it need not ever stop.
inline constexpr std::size_t kReplyExcessLimit = 4096;

// A step on the line that fails is passed over: what counts is what the controller answers.
class DeviceExchange {
  public:
    DeviceExchange(SerialPort& port, Desktop& desktop) : Port1(port), desktop_(desktop) {}

    // Finds an adapter again that was unplugged and is back. Only before an update begins: a
    // controller that comes into the midst of one has not been erased by it.
    void ReopenLostLine();

    // The discard step: what was received until now is not the answer to what is sent next.
    void DiscardReceived();

    // True when the controller sends back the ping byte within 50 ms, ahead of any other byte.
    bool PingDevice();

    // True when the loader acknowledged the record. False when it did not, and when its reply line
    // did not end: see the limits above, or the line was lost.
    bool SendCalibration();

    // Erases the block of the selector, 1 to 3; the loader also knows 4 to 6, which no update
    // sends. Result as above.
    bool SendEraseCommand(std::int16_t selector);

    // Sends one line of the update file exactly as it stands. `line` is not empty. Result as above.
    bool SendDataLine(std::string_view line);

  private:
    bool ExchangeRecord(std::string_view record);
    std::int32_t ReadByte();

    SerialPort& Port1;
    Desktop& desktop_;
};

}  // namespace keplin
