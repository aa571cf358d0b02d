// The serial port on the virtual clock: a simulated controller at the end of a wire that has the
// real line's pace.
#pragma once

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "device/serial_port.h"
#include "simulator/wire.h"
#include "tests/support/trace.h"
#include "tests/support/virtual_time.h"

namespace keplin::test {

class VirtualPort : public SerialPort {
  public:
    // The controller is plugged in at port 2; port 1 opens and is silent, 3 and 4 do not exist.
    static constexpr std::int32_t kControllerPort = 2;

    VirtualPort(simulator::DeviceEnd& device, Trace& trace, VirtualTime& time)
        : wire_(device), trace_(trace), time_(time) {}

    void PortNumber(std::int32_t number) override { number_ = number; }
    void LineSpeed(std::int32_t) override {}

    std::int32_t Open() override {
        kept_.clear();
        open_ = number_ <= kControllerPort ? number_ : 0;
        lost_ = Connected() && !wire_.PlugIn();
        DiscardInput();
        return open_;
    }
    std::int32_t Close() override { return open_ = 0; }

    std::int32_t ReadByte() override {
        trace_.Add("ReadByte");
        const auto byte = Connected() && !LineLost() ? wire_.ReadAtHost(time_.Now) : std::nullopt;
        lost_ = Connected() && wire_.HungUp();
        if (!byte) time_.ReadNothing(&wire_);
        return byte ? *byte : -1;
    }
    void DiscardInput() override {
        if (!Connected()) return;
        wire_.DropArrived(time_.Now);
        lost_ = wire_.HungUp();
    }
    void WriteText(std::string_view text) override { Send(std::string(text)); }
    [[nodiscard]] bool LineLost() const override { return lost_; }
    void ReopenLostLine() override {
        DiscardInput();
        if (!lost_) return;
        kept_.clear();
        lost_ = !wire_.PlugIn();
    }

    // The window's event loop looks after the line.
    void CheckLine() { lost_ = lost_ || (Connected() && wire_.HungUp()); }

    // The adapter keeps the bytes of that transmission, counted from 0 over all of them, from the
    // given one on; they leave ahead of the next transmission.
    void KeepBack(std::size_t transmission, std::size_t from) {
        keptTransmission_ = transmission;
        keptFrom_ = from;
    }
    [[nodiscard]] bool KeepsBytes() const { return !kept_.empty(); }

    // Lets what is still on the wire arrive, as far as it is due.
    void Settle() { wire_.Advance(time_.Now); }

    std::vector<std::string> Sent;  // every transmission to the controller, in order

  private:
    [[nodiscard]] bool Connected() const { return open_ == kControllerPort; }

    void Send(std::string text) {
        if (LineLost()) throw PortError("the line is lost");
        trace_.Add(text == "U" ? "WriteByte 85" : "WriteText " + text);
        if (!Connected()) return;
        std::string leaving = std::exchange(kept_, "") + text;
        if (Sent.size() == keptTransmission_) {
            kept_ = text.substr(std::min(keptFrom_, text.size()));
            leaving.resize(leaving.size() - kept_.size());
        }
        const auto* bytes = reinterpret_cast<const std::uint8_t*>(leaving.data());
        wire_.HostSends({bytes, leaving.size()}, time_.Now);
        Sent.push_back(std::move(text));
    }

    simulator::Wire wire_;
    Trace& trace_;
    VirtualTime& time_;
    std::int32_t number_ = 0;
    std::int32_t open_ = 0;
    bool lost_ = false;
    std::size_t keptTransmission_ = std::string::npos;
    std::size_t keptFrom_ = 0;
    std::string kept_;  // in the adapter
};

}  // namespace keplin::test
