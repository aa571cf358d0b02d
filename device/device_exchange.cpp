#include "device/device_exchange.h"

#include <algorithm>
#include <array>
#include <string>

#include "device/reply_verdict.h"
#include "platform/pass_over.h"

namespace keplin {
namespace {

using namespace std::chrono_literals;

constexpr std::uint8_t kPing = 0x55;
constexpr auto kAnswerTime = 50ms;
constexpr std::int32_t kNoByte = -1;

// A yield takes milliseconds, unless the technician holds the window: nobody listened meanwhile.
constexpr auto kMostOfAYield = 1s;
constexpr std::int32_t kLineFeed = 10;

constexpr std::string_view kCalibration = ":010000020CF1";
constexpr std::array<std::string_view, 6> kErase = {
    ":020000030100FA", ":020000030120DA", ":020000030140BA",
    ":0200000301807A", ":0200000301C03A", ":020000030700F4",
};

// The reply line as it comes in, and the limits at which no more is waited for.
class ReplyLine {
  public:
    ReplyLine(std::size_t recordLength, Desktop& desktop)
        : lengthLimit_(recordLength + kReplyExcessLimit),
          desktop_(desktop),
          lastLook_(desktop.Now()) {}

    void Take(std::int32_t byte) {
        const auto sinceLook = desktop_.Now() - lastLook_;
        lastLook_ += sinceLook;
        const auto listened = std::min<std::chrono::milliseconds>(sinceLook, kMostOfAYield);
        silence_ += listened;
        listened_ += listened;
        if (byte == kNoByte) return;
        text_.push_back(static_cast<char>(byte));
        silence_ = 0ms;
        done_ = byte == kLineFeed;
    }

    [[nodiscard]] bool Done() const { return done_; }
    [[nodiscard]] const std::string& Text() const { return text_; }
    [[nodiscard]] bool GivenUp() const {
        if (done_) return false;
        return text_.size() >= lengthLimit_ || silence_ >= kReplySilenceLimit ||
               listened_ >= kReplyTimeLimit;
    }

  private:
    const std::size_t lengthLimit_;
    Desktop& desktop_;
    std::string text_;
    std::chrono::milliseconds lastLook_;
    std::chrono::milliseconds listened_{0};
    std::chrono::milliseconds silence_{0};  // of that, since the last byte
    bool done_ = false;
};

}  // namespace

void DeviceExchange::ReopenLostLine() {
    PassOver([&] { Port1.ReopenLostLine(); });
}

bool DeviceExchange::PingDevice() {
    DiscardReceived();
    PassOver([&] { Port1.WriteByte(kPing); });
    desktop_.Sleep(kAnswerTime);
    desktop_.YieldOnce();
    return ReadByte() == kPing;
}

bool DeviceExchange::SendCalibration() {
    return ExchangeRecord(kCalibration);
}

bool DeviceExchange::SendEraseCommand(std::int16_t selector) {
    return ExchangeRecord(kErase.at(static_cast<std::size_t>(selector - 1)));
}

bool DeviceExchange::SendDataLine(std::string_view line) {
    return ExchangeRecord(line);
}

bool DeviceExchange::ExchangeRecord(std::string_view record) {
    DiscardReceived();
    PassOver([&] { Port1.WriteText(record); });
    ReplyLine reply(record.size(), desktop_);
    desktop_.Sleep(kAnswerTime);
    while (!reply.Done()) {
        desktop_.YieldOnce();
        const std::int32_t byte = ReadByte();
        reply.Take(byte);
        if (reply.GivenUp() || (byte == kNoByte && Port1.LineLost())) return false;
    }
    return IsAcknowledged(record, reply.Text());
}

void DeviceExchange::DiscardReceived() {
    PassOver([&] { Port1.Setting47(-1); });
    PassOver([&] { Port1.DiscardInput(); });
}

std::int32_t DeviceExchange::ReadByte() {
    std::int32_t byte = kNoByte;
    PassOver([&] { byte = Port1.ReadByte(); });
    return byte;
}

}  // namespace keplin
