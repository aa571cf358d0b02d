// The desktop on a virtual clock: a sleep takes no time, and whatever a test wants to happen while
// the window processes its events happens in a yield.
#pragma once

#include <algorithm>
#include <filesystem>

#include "platform/desktop.h"
#include "platform/path.h"
#include "simulator/wire.h"
#include "ui/isp_main.h"

namespace keplin::test {

// What a procedure did, step by step, as lines of text: property changes, yields, sleeps and the
// members of the port, in the order in which they happened.
class Trace : public Observer {
  public:
    // A read that follows a yield becomes one line with it, and a run of such lines one line.
    void Add(std::string line) {
        if (!Recording) return;
        static const std::string kWait = "Yield, ReadByte";
        if (line == "ReadByte" && !lines_.empty() && lines_.back() == "Yield") {
            lines_.pop_back();
            line = kWait;
        }
        if (line != kWait || lines_.empty() || lines_.back() != kWait) lines_.push_back(line);
    }

    void Changed(const Control& control, const PropertyBase& property) override {
        if (!Recording) return;
        if (control.Name != "Shape2" || property.Which != Aspect::Left) Add(property.Line());
    }

    // All lines since the last Take, each ended by a line feed.
    std::string Take() {
        std::string text;
        for (const std::string& line : lines_)
            text += line + "\n";
        lines_.clear();
        return text;
    }

    bool Recording = true;

  private:
    std::vector<std::string> lines_;
};

using Microseconds = std::chrono::microseconds;

// The time that the desktop and the port of a test share. A sleep passes it, and so does a yield
// that waits for the serial line.
class VirtualTime {
  public:
    // A read found nothing: the next yield waits for what comes over the wire, where there is one.
    void ReadNothing(simulator::Wire* wire = nullptr) {
        waits_ = true;
        wire_ = wire;
    }

    // Waits if a read found nothing since the last time.
    void Wait() {
        if (!std::exchange(waits_, false)) return;
        const Microseconds end = Now + LongestWait;
        if (wire_ != nullptr) wire_->Advance(Now);
        const auto event = wire_ != nullptr ? wire_->NextEvent() : std::nullopt;
        // Rounded up, so that what happens then has happened.
        Now = event ? std::min(end, std::max(Now, std::chrono::ceil<Microseconds>(*event))) : end;
    }

    Microseconds Now{0};
    Microseconds LongestWait{2000};  // of one yield while nothing comes

  private:
    bool waits_ = false;
    simulator::Wire* wire_ = nullptr;
};

// Thrown in place of the end of the program.
struct ProgramEnded {};

class VirtualDesktop : public Desktop {
  public:
    VirtualDesktop(ISPMain& window, Trace& trace, VirtualTime& time)
        : window_(window), trace_(trace), time_(time) {}

    void YieldOnce() override {
        ++Yields;
        trace_.Add("Yield");
        if (OnYield) OnYield();
        time_.Wait();
        if (Ticks && time_.Now >= nextTick_) {
            nextTick_ = time_.Now + std::chrono::milliseconds(window_.Timer1.Interval);
            window_.Timer1.Tick();
        }
    }

    void Sleep(std::chrono::milliseconds duration) override {
        trace_.Add("Sleep " + std::to_string(duration.count()));
        time_.Now += duration;
    }

    std::chrono::milliseconds Now() override {
        return std::chrono::duration_cast<std::chrono::milliseconds>(time_.Now);
    }

    std::optional<std::string> ShowOpen(const OpenFileRequest& request) override {
        trace_.Add("ShowOpen " + request.title + " " + request.initialDirectory + " " +
                   request.filter);
        return Answer;
    }

    std::string CurrentDirectory() override { return "/current"; }

    std::uint64_t FileLength(const std::string& path) override {
        if (FactsFail) throw std::runtime_error("no facts");
        return std::filesystem::file_size(ToPath(path));
    }

    std::string FileDateTime(const std::string&) override { return "11/22/26 9:41 PM"; }

    void KeepAwake(bool awake) override {
        if (AwakeFails) throw std::runtime_error("no thread left");
        trace_.Add(awake ? "KeepAwake" : "MaySleep");
        AwakeTwice = AwakeTwice || (awake && Awake);
        Awake = awake;
    }

    [[noreturn]] void End() override {
        trace_.Add("End");
        EndedBusy = !window_.cmdExit.Enabled;
        throw ProgramEnded{};
    }

    long Yields = 0;
    bool Ticks = true;  // of the window's timer
    bool Awake = false;
    bool EndedBusy = false;   // the program ended although Close could not be pressed
    bool AwakeTwice = false;  // it was to be kept awake while it already was
    bool FactsFail = false;
    bool AwakeFails = false;
    std::optional<std::string> Answer;  // of the open-file dialog; none: cancelled
    std::function<void()> OnYield;      // clicks, for instance

  private:
    ISPMain& window_;
    Trace& trace_;
    VirtualTime& time_;
    Microseconds nextTick_{0};
};

// A window's model that is at home on it.
struct VirtualScreen {
    ISPMain window;
    Trace trace;
    VirtualTime time;
    VirtualDesktop desktop{window, trace, time};
};

}  // namespace keplin::test
