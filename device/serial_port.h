// The serial port control: ten members, each with the numeric identifier that the control knows it
// by, and two beside them for a line that is lost. The two settings mean nothing to most ports.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string_view>

namespace keplin {

// A member that failed. Callers pass over it and go on with their next step, except while opening.
class PortError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

class SerialPort {
  public:
    virtual ~SerialPort() = default;

    // 1: the port that the next Open opens, 1 to 4.
    virtual void PortNumber(std::int32_t number) = 0;
    // 2: in bits a second, for the next Open.
    virtual void LineSpeed(std::int32_t bitsPerSecond) = 0;
    // 3: given as 0 before each Open.
    virtual void Setting3(std::int32_t) {}
    // 47: given as -1 immediately before the DiscardInput that precedes a transmission.
    virtual void Setting47(std::int32_t) {}

    // 31: a positive status when the port is open now, 0 or -1 when it is not.
    virtual std::int32_t Open() = 0;
    // 32: 0 or less once the port is closed.
    virtual std::int32_t Close() = 0;
    // 33: the next received byte, 0 to 255, or -1 when none is waiting. Returns at once.
    virtual std::int32_t ReadByte() = 0;
    // 35: sends one byte, as a text of one character unless the port has another way.
    virtual void WriteByte(std::uint8_t byte) {
        const char character = static_cast<char>(byte);
        WriteText({&character, 1});
    }
    // 56: drops what was received and not read.
    virtual void DiscardInput() = 0;
    // 57: sends the characters of a text, one byte each, in order, adding nothing.
    virtual void WriteText(std::string_view text) = 0;

    // The line hung up (an unplugged adapter, a far end that closed): no byte can ever come.
    [[nodiscard]] virtual bool LineLost() const = 0;
    // Opens a lost line anew: the same device with the settings it had. What hangs on it then need
    // not be what hung on it before, so this is not for the midst of an update.
    virtual void ReopenLostLine() = 0;
};

}  // namespace keplin
