// The serial port on a POSIX system: a terminal device in raw mode, eight data bits, no parity, one
// stop bit, no flow control.
#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <utility>

#include "device/serial_port.h"
#include "platform/unique_fd.h"

namespace keplin {

// The path of the device behind a port number, empty when the computer has no such port. Asked at
// each Open, so that a port plugged in meanwhile is found.
using DevicePaths = std::function<std::string(std::int32_t number)>;

class PosixPort : public SerialPort {
  public:
    explicit PosixPort(DevicePaths devicePaths);
    ~PosixPort() override;
    PosixPort(const PosixPort&) = delete;
    PosixPort& operator=(const PosixPort&) = delete;

    void PortNumber(std::int32_t number) override { portNumber_ = number; }
    // One of the standard speeds from 1200 to 230400; with any other the next Open fails.
    void LineSpeed(std::int32_t bitsPerSecond) override { lineSpeed_ = bitsPerSecond; }
    // Means nothing to this adapter.
    void Setting3(std::int32_t) override {}
    // Means nothing to this adapter.
    void Setting47(std::int32_t) override {}

    // 1 when the port is open now, 0 when it is not: no such device, not a serial line, held by
    // another program, no permission, settings that the device does not take. Closes the port that
    // was open before. Does not wait for a carrier.
    std::int32_t Open() override;
    // Always 0. Drops what was written and has not left yet.
    std::int32_t Close() override;
    // Also -1 when the port is closed or the line is lost.
    std::int32_t ReadByte() override;
    // Both end within 500 ms. They throw PortError when the port is closed, the line is lost or the
    // device does not take the bytes in that time; what it did not send by then is dropped.
    void WriteByte(std::uint8_t byte) override;
    void WriteText(std::string_view text) override;
    // Does nothing on a closed port.
    void DiscardInput() override;

    // Noticed by a read, a write or a discard. Ends with the next successful opening, or with
    // Close.
    [[nodiscard]] bool LineLost() const override { return lost_; }
    // Notices by itself that the line is gone. Drops what was received, as a discard does.
    void ReopenLostLine() override;

    // The descriptor to wait on for the next byte (POLLIN) while the line is idle: nothing was read
    // since the last opening, discard or write, or the last read found nothing. -1 when there is
    // nothing to wait for: the last read gave a byte and more may follow, the port is closed, the
    // line is lost, or it was asked for already and nothing was read since: one wait for each read
    // that finds nothing. A line that hung up ends such a wait at once, and the next ReadByte
    // notices. The descriptor belongs to the port and serves for one wait.
    [[nodiscard]] int TakeIdleDescriptor() {
        return std::exchange(idle_, false) ? line_.Get() : -1;
    }

  private:
    using Moment = std::chrono::steady_clock::time_point;

    bool OpenLine();
    void CloseLine() noexcept;
    void LoseLine() noexcept;
    void Write(std::string_view bytes);
    std::string_view WriteSome(std::string_view bytes);
    void AwaitRoom(Moment deadline);

    DevicePaths devicePaths_;
    std::int32_t portNumber_ = 0;
    std::int32_t lineSpeed_ = 0;

    // The line opened last, as a lost one is to be opened again.
    std::string path_;
    std::int32_t speed_ = 0;

    UniqueFd line_;
    bool lost_ = false;
    bool idle_ = true;
};

}  // namespace keplin
