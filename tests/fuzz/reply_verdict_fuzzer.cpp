// Any bytes as a record and what comes back: the exchange ends, and its verdict is the right one.
#include <cstdlib>

#include "device/device_exchange.h"
#include "tests/support/virtual_port.h"

namespace {

// Answers the last byte of a record with a fixed reply, and then nothing more.
class FixedReply : public keplin::simulator::DeviceEnd {
  public:
    FixedReply(std::size_t record, std::string_view reply) : awaited_(record), reply_(reply) {}

    void Receive(std::uint8_t, std::vector<keplin::simulator::SentByte>& answer) override {
        if (--awaited_ != 0) return;
        for (const char byte : reply_)
            answer.push_back({static_cast<std::uint8_t>(byte)});
    }

  private:
    std::size_t awaited_;  // bytes of the record
    const std::string_view reply_;
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
    FixedReply device(record.size(), reply);
    keplin::test::VirtualPort port(device, screen);
    port.LineSpeed(38400);
    port.PortNumber(port.kControllerPort);
    port.Open();
    keplin::DeviceExchange controller(port, screen.desktop);
    if (controller.SendDataLine(record) != Expected(record, reply)) std::abort();
    return 0;
}
