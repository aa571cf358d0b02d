// The serial port on a POSIX system: a terminal device in raw mode, eight data bits, no parity, one
// stop bit, no flow control.
#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <utility>

#include "device/line_port.h"
#include "platform/posix/unique_fd.h"
#include "platform/posix/watched_descriptor.h"

namespace keplin {

class PosixPort : public LinePort<WatchedDescriptor> {
  public:
    // `lockFolder` is where terminal programs leave their lock files.
    explicit PosixPort(DevicePaths devicePaths, std::filesystem::path lockFolder = "/run/lock")
        : LinePort(std::move(devicePaths)), lockFolder_(std::move(lockFolder)) {}
    ~PosixPort() override { PosixPort::CloseLine(); }

    // Also -1 when the port is closed or the line is lost.
    std::int32_t ReadByte() override;
    // What the device has taken may leave later, ahead of the next bytes: a UART of the board
    // forgets it, a USB adapter does not.
    void WriteText(std::string_view text) override;
    // Does nothing on a closed port.
    void DiscardInput() override;
    void CheckLine() noexcept override;

  private:
    using Moment = std::chrono::steady_clock::time_point;

    // False when there is no such device, it is not a serial line, another program holds it or has
    // claimed it by its lock file, there is no permission, or it does not take the settings. Does
    // not wait for a carrier.
    bool OpenLine(const std::string& path) override;
    void CloseLine() noexcept override;
    [[nodiscard]] bool IsOpen() const override { return static_cast<bool>(line_); }
    std::string_view WriteSome(std::string_view bytes);
    void AwaitRoom(Moment deadline);

    const std::filesystem::path lockFolder_;
    UniqueFd line_;
};

}  // namespace keplin
