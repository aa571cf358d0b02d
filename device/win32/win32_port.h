// The serial port on Windows: a COM port, eight data bits, no parity, one stop bit, no flow
// control.
#pragma once

#include <array>
#include <span>

#include "device/line_port.h"
#include "platform/watched_line.h"
#include "platform/win32/owned.h"

namespace keplin {

class Win32Port : public LinePort<WatchedLine> {
  public:
    using LinePort::LinePort;
    ~Win32Port() override { Win32Port::CloseLine(); }

    // Also -1 when the port is closed or the line is lost.
    std::int32_t ReadByte() override;
    void WriteText(std::string_view text) override;
    // Does nothing on a closed port.
    void DiscardInput() override;
    void CheckLine() noexcept override;

  private:
    // False when there is no such port, another program holds it, it does not take the settings or
    // has not opened after 2 s: the port of a radio may look that long for its far end.
    bool OpenLine(const std::string& name) override;
    void CloseLine() noexcept override;
    [[nodiscard]] bool IsOpen() const override { return line_ != nullptr; }
    void ReadBlock();

    UniqueHandle line_;
    std::array<std::uint8_t, 4096> block_{};
    std::span<const std::uint8_t> unread_;  // of the block
};

}  // namespace keplin
