// The serial port on the virtual clock: a simulated controller at the end of a wire that has the
// real line's pace.
#pragma once

#include "device/line_port.h"
#include "platform/watched_line.h"
#include "tests/support/virtual_desktop.h"

namespace keplin::test {

class VirtualPort : public LinePort<WatchedLine> {
  public:
    // The controller is plugged in at port 2; port 1 opens and is silent, 3 and 4 do not exist.
    static constexpr std::int32_t kControllerPort = 2;

    VirtualPort(simulator::DeviceEnd& device, VirtualScreen& screen)
        : LinePort([] {
              return std::vector<std::string>{"silent", kController};
          }),
          wire_(device),
          screen_(screen) {}

    std::int32_t ReadByte() override {
        screen_.trace.Add("ReadByte");
        const auto byte = Connected() ? wire_.ReadAtHost(screen_.time.Now) : std::nullopt;
        CheckLine();
        if (!byte) screen_.time.ReadNothing(&wire_);
        return byte ? *byte : -1;
    }
    void WriteText(std::string_view text) override {
        RequireOpen();
        screen_.trace.Add(text == "U" ? "WriteByte 85" : "WriteText " + std::string(text));
        if (!Connected()) return;
        std::string leaving = std::exchange(kept_, "").append(text);
        if (Sent.size() == keptTransmission_) {
            kept_ = text.substr(std::min(keptFrom_, text.size()));
            leaving.resize(leaving.size() - kept_.size());
        }
        const auto* bytes = reinterpret_cast<const std::uint8_t*>(leaving.data());
        wire_.HostSends({bytes, leaving.size()}, screen_.time.Now);
        Sent.emplace_back(text);
    }
    void DiscardInput() override {
        if (Connected()) wire_.DropArrived(screen_.time.Now);
        CheckLine();
    }
    void CheckLine() noexcept override {
        if (Connected() && wire_.HungUp()) LoseLine();
    }

    // The adapter keeps the bytes of that transmission, counted from 0 over all of them, from the
    // given one on; they leave ahead of the next transmission.
    void KeepBack(std::size_t transmission, std::size_t from) {
        keptTransmission_ = transmission;
        keptFrom_ = from;
    }
    [[nodiscard]] bool KeepsBytes() const { return !kept_.empty(); }

    // Lets what is still on the wire arrive, as far as it is due.
    void Settle() { wire_.Advance(screen_.time.Now); }

    std::vector<std::string> Sent;  // every transmission to the controller, in order

  private:
    static constexpr const char* kController = "controller";

    bool OpenLine(const std::string& path) override {
        kept_.clear();
        if (path == kController && !wire_.PlugIn()) return false;
        open_ = path;
        DiscardInput();
        return true;
    }
    void CloseLine() noexcept override { open_.clear(); }
    [[nodiscard]] bool IsOpen() const override { return !open_.empty(); }
    [[nodiscard]] bool Connected() const { return open_ == kController; }

    simulator::Wire wire_;
    VirtualScreen& screen_;
    std::string open_;  // empty: none
    std::size_t keptTransmission_ = std::string::npos;
    std::size_t keptFrom_ = 0;
    std::string kept_;  // in the adapter
};

}  // namespace keplin::test
