// The serial port on Windows: a COM port, eight data bits, no parity, one stop bit, no flow
// control.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "device/port_paths.h"
#include "device/serial_port.h"
#include "device/win32/line.h"
#include "platform/watched_line.h"

namespace keplin {

class Win32Port : public SerialPort, public WatchedLine {
  public:
    // `names` is asked at each opening, so that a port plugged in meanwhile is found.
    explicit Win32Port(DevicePaths names) : names_(std::move(names)) {}
    ~Win32Port() override;
    Win32Port(const Win32Port&) = delete;
    Win32Port& operator=(const Win32Port&) = delete;

    void PortNumber(std::int32_t number) override { portNumber_ = number; }
    // 38400; with any other the next Open fails.
    void LineSpeed(std::int32_t bitsPerSecond) override { lineSpeed_ = bitsPerSecond; }
    // Means nothing to this adapter.
    void Setting3(std::int32_t) override {}
    // Means nothing to this adapter.
    void Setting47(std::int32_t) override {}

    // 1 when the port is open now, 0 when it is not: see OpenLine. Closes the port that was open
    // before.
    std::int32_t Open() override;
    // Always 0. Drops what was written and has not left yet; takes 0.5 s at most.
    std::int32_t Close() override;
    // Also -1 when the port is closed or the line is lost.
    std::int32_t ReadByte() override;
    // Both end within 500 ms. They throw PortError when the port is closed, the line is lost or the
    // device does not take the bytes in that time. What it has not taken by then never leaves.
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
    bool OpenNamed(const std::string& name);
    void CloseLine() noexcept;
    void LoseLine() noexcept;
    void ReadBlock();

    PortPaths names_;
    std::int32_t portNumber_ = 0;
    std::int32_t lineSpeed_ = 0;
    UniqueHandle line_;
    bool lost_ = false;
    bool idle_ = true;
    std::array<std::uint8_t, 4096> block_{};
    std::span<const std::uint8_t> unread_;  // of the block
};

}  // namespace keplin
