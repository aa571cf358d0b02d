// A serial port that follows a script to the letter: a member that the script does not have next is
// a failure of the test, and so is what is left of the script at the end.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <optional>
#include <string>
#include <utility>

#include "device/serial_port.h"
#include "tests/support/trace.h"
#include "tests/support/virtual_time.h"

namespace keplin::test {

class ScriptedPort : public SerialPort {
  public:
    // `trace`, where there is one, notes each member that is called.
    explicit ScriptedPort(VirtualTime& time, Trace* trace = nullptr) : time_(time), trace_(trace) {}
    ~ScriptedPort() override { EXPECT_TRUE(script_.empty()) << "left: " << script_.front().first; }

    // The next member called must be `call`, and gives `result`.
    ScriptedPort& Expect(std::string call, std::int32_t result = 0) {
        script_.emplace_back(std::move(call), result);
        return *this;
    }
    // The next member called must be `call`, and fails.
    ScriptedPort& Fail(std::string call) {
        script_.emplace_back(std::move(call), std::nullopt);
        return *this;
    }
    ScriptedPort& ExpectDiscardStep() { return Expect("Setting47 -1").Expect("DiscardInput"); }
    ScriptedPort& ExpectReads(std::string_view bytes) {
        for (const char byte : bytes)
            Expect("ReadByte", static_cast<unsigned char>(byte));
        return *this;
    }

    void PortNumber(std::int32_t number) override { Play("PortNumber " + std::to_string(number)); }
    void LineSpeed(std::int32_t speed) override { Play("LineSpeed " + std::to_string(speed)); }
    void Setting3(std::int32_t value) override { Play("Setting3 " + std::to_string(value)); }
    void Setting47(std::int32_t value) override { Play("Setting47 " + std::to_string(value)); }
    std::int32_t Open() override { return Play("Open"); }
    std::int32_t Close() override { return Play("Close"); }
    std::int32_t ReadByte() override {
        const std::int32_t byte = Play("ReadByte");
        if (byte < 0) time_.ReadNothing();
        return byte;
    }
    void WriteByte(std::uint8_t byte) override { Play("WriteByte " + std::to_string(byte)); }
    void DiscardInput() override { Play("DiscardInput"); }
    void WriteText(std::string_view text) override { Play("WriteText " + std::string(text)); }
    [[nodiscard]] bool LineLost() const override { return Lost; }
    void ReopenLostLine() override { Play("ReopenLostLine"); }

    bool Lost = false;

  private:
    std::int32_t Play(const std::string& call) {
        if (script_.empty() || script_.front().first != call) {
            ADD_FAILURE() << "called: " << call << ", expected: "
                          << (script_.empty() ? "nothing more" : script_.front().first);
            return -1;
        }
        if (trace_ != nullptr) trace_->Add(call);
        const auto result = script_.front().second;
        script_.pop_front();
        return result ? *result : throw PortError(call);
    }

    VirtualTime& time_;
    Trace* const trace_;
    // Each member, and what it gives: nothing when it fails.
    std::deque<std::pair<std::string, std::optional<std::int32_t>>> script_;
};

}  // namespace keplin::test
