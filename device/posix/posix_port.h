// The serial port on a POSIX system: a terminal device in raw mode, eight data bits, no parity, one
// stop bit, no flow control.
#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <utility>

#include "device/port_paths.h"
#include "device/serial_port.h"
#include "platform/posix/unique_fd.h"
#include "platform/posix/watched_descriptor.h"

namespace keplin {

class PosixPort : public SerialPort, public WatchedDescriptor {
  public:
    // `devicePaths` is asked at each opening, so that a port plugged in meanwhile is found.
    // `lockFolder` is where terminal programs leave their lock files.
    explicit PosixPort(DevicePaths devicePaths, std::filesystem::path lockFolder = "/run/lock");
    ~PosixPort() override;
    PosixPort(const PosixPort&) = delete;
    PosixPort& operator=(const PosixPort&) = delete;

    void PortNumber(std::int32_t number) override { portNumber_ = number; }
    // 38400; with any other the next Open fails.
    void LineSpeed(std::int32_t bitsPerSecond) override { lineSpeed_ = bitsPerSecond; }
    // Means nothing to this adapter.
    void Setting3(std::int32_t) override {}
    // Means nothing to this adapter.
    void Setting47(std::int32_t) override {}

    // 1 when the port is open now, 0 when it is not: no such device, not a serial line, held by
    // another program or claimed by its lock file, no permission, settings that the device does not
    // take. Closes the port that was open before. Does not wait for a carrier.
    std::int32_t Open() override;
    // Always 0. Drops what was written and has not left yet; takes 0.5 s at most, whatever hangs on
    // the line.
    std::int32_t Close() override;
    // Also -1 when the port is closed or the line is lost.
    std::int32_t ReadByte() override;
    // Both end within 500 ms. They throw PortError when the port is closed, the line is lost or the
    // device does not take the bytes in that time. What it has not taken by then never leaves. What
    // it has taken may leave later, ahead of the next bytes: a UART of the board forgets it, a USB
    // adapter does not.
    void WriteByte(std::uint8_t byte) override;
    void WriteText(std::string_view text) override;
    // Does nothing on a closed port.
    void DiscardInput() override;

    // Noticed by a read, a write, a discard or CheckLine; the line is let go of at once. Ends with
    // the next successful opening, or with Close.
    [[nodiscard]] bool LineLost() const override { return lost_; }
    // Notices by itself that the line is gone. Drops what was received, as a discard does.
    void ReopenLostLine() override;

    [[nodiscard]] bool TakeIdle() override { return std::exchange(idle_, false) && line_; }
    void CheckLine() noexcept override;

  private:
    using Moment = std::chrono::steady_clock::time_point;

    bool OpenLine(const std::string& path);
    void CloseLine() noexcept;
    void LoseLine() noexcept;
    void Write(std::string_view bytes);
    std::string_view WriteSome(std::string_view bytes);
    void AwaitRoom(Moment deadline);

    PortPaths paths_;
    const std::filesystem::path lockFolder_;
    std::int32_t portNumber_ = 0;
    std::int32_t lineSpeed_ = 0;

    UniqueFd line_;
    bool lost_ = false;
    bool idle_ = true;
};

}  // namespace keplin
