// Any bytes as a record and what comes back: the exchange ends, and its verdict is the right one.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "device/device_exchange.h"
#include "tests/support/virtual_desktop.h"

namespace {

// A line on which a fixed reply comes in and then nothing more.
class FixedReply : public keplin::SerialPort {
  public:
    FixedReply(std::string_view reply, keplin::test::VirtualTime& time)
        : reply_(reply), time_(time) {}

    void PortNumber(std::int32_t) override {}
    void LineSpeed(std::int32_t) override {}
    std::int32_t Open() override { return 1; }
    std::int32_t Close() override { return 0; }
    std::int32_t ReadByte() override {
        if (read_ < reply_.size()) return static_cast<std::uint8_t>(reply_[read_++]);
        time_.ReadNothing();
        return -1;
    }
    void DiscardInput() override {}
    void WriteText(std::string_view) override {}
    [[nodiscard]] bool LineLost() const override { return false; }
    void ReopenLostLine() override {}

  private:
    const std::string_view reply_;
    keplin::test::VirtualTime& time_;
    std::size_t read_ = 0;
};

// The verdict by another road: letter for letter, on the reply's first line.
bool Expected(std::string_view record, std::string_view reply) {
    const auto end = reply.find('\n');
    if (end == std::string_view::npos) return false;
    if (end + 1 > record.size() + keplin::kReplyExcessLimit) return false;
    const std::string_view line = reply.substr(0, end + 1);
    for (std::size_t i = 0; i < record.size(); ++i) {
        if (i >= line.size() || line[i] != record[i]) return false;
    }
    for (std::size_t i = record.size() - 1; i < line.size(); ++i) {
        if (line[i] == '.') return true;
    }
    return false;
}

}  // namespace

// The first byte is the record's length less one; the record follows, and behind it the reply.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2) return 0;
    std::string_view text(reinterpret_cast<const char*>(data + 1), size - 1);
    const std::string_view record = text.substr(0, std::size_t{data[0]} + 1);
    const std::string_view reply = text.substr(record.size());

    keplin::test::VirtualScreen screen;
    screen.trace.Recording = false;
    screen.time.LongestWait = std::chrono::seconds(1);
    FixedReply port(reply, screen.time);
    keplin::DeviceExchange controller(port, screen.desktop);
    if (controller.SendDataLine(record) != Expected(record, reply)) std::abort();
    return 0;
}
