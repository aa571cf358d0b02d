// The serial port with a simulated controller behind it, in the same process and at the pace of the
// real line.
#pragma once

#include <utility>

#include "device/serial_port.h"
#include "platform/watched_line.h"
#include "simulator/wire.h"

namespace keplin {

// What is plugged in where.
struct PluggedIn {
    simulator::DeviceEnd& device;
    std::int32_t port;  // 1 or 2
};

class InProcessPort : public SerialPort, public WatchedLine {
  public:
    // The device must outlive this. The other one of ports 1 and 2 opens and is silent; ports 3 and
    // 4 do not exist.
    explicit InProcessPort(const PluggedIn& plug) : wire_(plug.device), port_(plug.port) {}

    void PortNumber(std::int32_t number) override { number_ = number; }
    void LineSpeed(std::int32_t) override {}
    std::int32_t Open() override;
    std::int32_t Close() override { return open_ = 0; }
    std::int32_t ReadByte() override;
    void DiscardInput() override;
    void WriteText(std::string_view text) override;
    [[nodiscard]] bool LineLost() const override { return lost_; }
    void ReopenLostLine() override;

    [[nodiscard]] bool TakeWait() override { return std::exchange(mayWait_, false) && open_ != 0; }
    void CheckLine() noexcept override {}

  private:
    [[nodiscard]] bool Connected() const { return open_ == port_; }

    simulator::Wire wire_;
    const std::int32_t port_;
    std::int32_t number_ = 0;
    std::int32_t open_ = 0;  // the port that is open, or 0
    bool lost_ = false;
    bool mayWait_ = true;
};

}  // namespace keplin
