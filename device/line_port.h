// The serial port as every system has it: which line of this computer is opened, and whether it is
// still there. An adapter adds how the system opens, closes, reads and writes one.
//
// WriteByte and WriteText end within 500 ms, and a Close where the line is lost. They throw
// PortError when the port is closed, the line is lost or the device does not take the bytes in that
// time. What it has not taken by then never leaves.
#pragma once

#include <string>
#include <utility>

#include "device/port_paths.h"
#include "device/serial_port.h"

namespace keplin {

// `Watched` is how the desktop sees the line.
template <typename Watched>
class LinePort : public SerialPort, public Watched {
  public:
    // `paths` is asked at each opening, so that a port plugged in meanwhile is found.
    explicit LinePort(DevicePaths paths) : paths_(std::move(paths)) {}
    LinePort(const LinePort&) = delete;
    LinePort& operator=(const LinePort&) = delete;

    void PortNumber(std::int32_t number) override { portNumber_ = number; }
    // 38400; with any other the next Open fails.
    void LineSpeed(std::int32_t bitsPerSecond) override { lineSpeed_ = bitsPerSecond; }

    // 1 when the port is open now, 0 when it is not: see OpenLine, also for how long it may take.
    // Closes the port that was open before.
    std::int32_t Open() override {
        Close();
        const std::string& path = paths_.Choose(portNumber_);
        return lineSpeed_ == kBitsPerSecond && Reopen(path) ? 1 : 0;
    }
    // Always 0. Drops what was written and has not left yet; takes 0.5 s at most, whatever hangs on
    // the line, as long as the system has a timer or a thread to give.
    std::int32_t Close() override {
        CloseLine();
        lost_ = false;
        return 0;
    }

    // Noticed by a read, a write, a discard or CheckLine; the line is let go of at once. Ends with
    // the next successful opening, or with Close.
    [[nodiscard]] bool LineLost() const override { return lost_; }
    // Notices by itself that the line is gone. Drops what was received, as a discard does.
    void ReopenLostLine() override {
        DiscardInput();
        if (lost_) Reopen(paths_.FindAgain());
    }

    [[nodiscard]] bool TakeWait() override { return std::exchange(mayWait_, false) && IsOpen(); }

  protected:
    // Whether the line of that name could be opened; none has the empty name.
    virtual bool OpenLine(const std::string& path) = 0;
    // Does nothing where none is open.
    virtual void CloseLine() noexcept = 0;
    [[nodiscard]] virtual bool IsOpen() const = 0;

    // At once: as long as it is open, the adapter gets another name when it comes back.
    void LoseLine() noexcept {
        CloseLine();
        lost_ = true;
    }

    // Throws PortError when there is nothing to write to.
    void RequireOpen() const {
        if (!IsOpen()) throw PortError(lost_ ? "the line is lost" : "the port is not open");
    }

    bool mayWait_ = true;  // see WatchedLine::TakeWait

  private:
    // The loader knows no other speed.
    static constexpr std::int32_t kBitsPerSecond = 38400;

    bool Reopen(const std::string& path) {
        if (path.empty() || !OpenLine(path)) return false;
        lost_ = false;
        mayWait_ = true;
        return true;
    }

    PortPaths paths_;
    std::int32_t portNumber_ = 0;
    std::int32_t lineSpeed_ = 0;
    bool lost_ = false;
};

}  // namespace keplin
