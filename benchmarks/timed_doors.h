// The two doors of the program with a stopwatch in each: all passes through unchanged.
#pragma once

#include <cstdlib>
#include <vector>

#include "benchmarks/moment.h"
#include "device/serial_port.h"
#include "platform/desktop.h"

namespace keplin::benchmarks {

// One record and its reply line.
struct Exchange {
    Moment writing = 0;   // the record is about to be handed to the line
    Moment written = 0;   // the line has taken it
    Moment slept = 0;     // the pause after it is over
    Moment answered = 0;  // the reply's last byte was read
};

class TimedPort : public SerialPort {
  public:
    TimedPort(SerialPort& port, std::vector<Exchange>& exchanges)
        : port_(port), exchanges_(exchanges) {}

    void PortNumber(std::int32_t number) override { port_.PortNumber(number); }
    void LineSpeed(std::int32_t bitsPerSecond) override { port_.LineSpeed(bitsPerSecond); }
    void Setting3(std::int32_t value) override { port_.Setting3(value); }
    void Setting47(std::int32_t value) override { port_.Setting47(value); }
    std::int32_t Open() override { return port_.Open(); }
    std::int32_t Close() override { return port_.Close(); }
    void WriteByte(std::uint8_t byte) override { port_.WriteByte(byte); }
    void DiscardInput() override { port_.DiscardInput(); }
    [[nodiscard]] bool LineLost() const override { return port_.LineLost(); }
    void ReopenLostLine() override { port_.ReopenLostLine(); }

    void WriteText(std::string_view text) override {
        exchanges_.push_back({.writing = Now()});
        port_.WriteText(text);
        exchanges_.back().written = Now();
    }
    std::int32_t ReadByte() override {
        const std::int32_t byte = port_.ReadByte();
        if (byte == '\n' && !exchanges_.empty()) exchanges_.back().answered = Now();
        return byte;
    }

  private:
    SerialPort& port_;
    std::vector<Exchange>& exchanges_;
};

class TimedDesktop : public Desktop {
  public:
    TimedDesktop(Desktop& desktop, std::vector<Exchange>& exchanges)
        : desktop_(desktop), exchanges_(exchanges) {}

    void Sleep(std::chrono::milliseconds duration) override {
        desktop_.Sleep(duration);
        if (!exchanges_.empty() && exchanges_.back().slept == 0)
            exchanges_.back().slept = benchmarks::Now();
    }

    void YieldOnce() override { desktop_.YieldOnce(); }
    std::chrono::milliseconds Now() override { return desktop_.Now(); }
    std::optional<std::string> ShowOpen(const OpenFileRequest& request) override {
        return desktop_.ShowOpen(request);
    }
    std::string CurrentDirectory() override { return desktop_.CurrentDirectory(); }
    std::uint64_t FileLength(const std::string& path) override { return desktop_.FileLength(path); }
    std::string FileDateTime(const std::string& path) override {
        return desktop_.FileDateTime(path);
    }
    void KeepAwake(bool awake) override { desktop_.KeepAwake(awake); }
    [[noreturn]] void End() override {
        desktop_.End();
        std::abort();  // not reached, which the compiler cannot know
    }

  private:
    Desktop& desktop_;
    std::vector<Exchange>& exchanges_;
};

}  // namespace keplin::benchmarks
