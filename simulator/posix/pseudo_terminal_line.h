// Puts a device behind a pseudo-terminal, so that a program reaches it through a serial device file
// at the pace of the real wire.
#pragma once

#include <cstdint>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "platform/posix/unique_fd.h"
#include "simulator/device_end.h"
#include "simulator/wire.h"

namespace keplin::simulator {

// The line runs in a thread of its own from construction to destruction. When the device hangs up,
// the pseudo-terminal is closed and DevicePath() cannot be opened; when it is back, which is looked
// for every 10 ms, DevicePath() names a new one. Bytes for a host that reads too slowly, or is not
// there, are lost.
class PseudoTerminalLine {
  public:
    // `device` must outlive the line. Throws std::system_error when the system refuses a
    // pseudo-terminal.
    explicit PseudoTerminalLine(DeviceEnd& device);
    ~PseudoTerminalLine();
    PseudoTerminalLine(const PseudoTerminalLine&) = delete;
    PseudoTerminalLine& operator=(const PseudoTerminalLine&) = delete;

    // The device file for the host; the same for the life of the line. It is no more than a
    // descriptor of this process, so that nothing of it is left behind however the process ends.
    [[nodiscard]] std::string DevicePath() const;

    // Calls `action` while the line leaves the device alone, and returns what it returns. The
    // device must not be touched in any other way while the line stands.
    template <typename Action>
    decltype(auto) WithDevice(Action&& action) {
        const std::lock_guard lock(mutex_);
        return std::forward<Action>(action)();
    }

  private:
    void Run();
    void CarryBytes();
    void FollowHangUp();
    void PlugIn();
    void Unplug();
    void ReadHost(Time now);
    void WriteHost();
    // False when the line is to end.
    bool WaitForWork();
    [[nodiscard]] std::optional<Time> WakeTime(Time now) const;

    std::mutex mutex_;  // guards the device, and with it the wire
    Wire wire_;
    const UniqueFd hostEnd_;  // what DevicePath() names
    UniqueFd master_;
    bool hostThere_ = true;  // has the device file open, as far as is known
    UniqueFd wakeReader_;
    UniqueFd wakeWriter_;  // closed to end the thread
    std::vector<std::uint8_t> toHost_;
    std::thread thread_;
};

}  // namespace keplin::simulator
