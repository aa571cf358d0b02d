#include "simulator/record.h"

#include <algorithm>
#include <numeric>

namespace keplin::simulator {
namespace {

constexpr std::size_t kShortest = 11;     // characters of a record without data
constexpr std::size_t kCountKnownAt = 3;  // characters after which the byte count is known

// 0 to 15, or -1 for a character that is no digit.
constexpr int DigitValue(std::uint8_t byte) {
    if (byte >= '0' && byte <= '9') return byte - '0';
    if (byte >= 'A' && byte <= 'F') return byte - 'A' + 10;
    if (byte >= 'a' && byte <= 'f') return byte - 'a' + 10;
    return -1;
}

std::uint8_t PairValue(std::string_view text, std::size_t position) {
    const int high = DigitValue(static_cast<std::uint8_t>(text[position]));
    const int low = DigitValue(static_cast<std::uint8_t>(text[position + 1]));
    return static_cast<std::uint8_t>(high * 16 + low);
}

}  // namespace

Heard RecordFrame::Take(std::uint8_t byte) {
    if (!underWay_) return TakeOutside(byte);
    if (DigitValue(byte) < 0) {
        underWay_ = false;
        return Heard::Broken;
    }
    text_.push_back(static_cast<char>(byte));
    if (text_.size() == kCountKnownAt) length_ = kShortest + 2 * std::size_t{PairValue(text_, 1)};
    if (text_.size() < length_) return Heard::Inside;
    underWay_ = false;
    return Heard::Complete;
}

Heard RecordFrame::TakeOutside(std::uint8_t byte) {
    text_.clear();
    if (byte == kPing) return Heard::Ping;
    if (byte != ':') return Heard::Other;
    text_.push_back(':');
    length_ = kShortest;
    underWay_ = true;
    return Heard::Begun;
}

void RecordFrame::Reset() {
    text_.clear();
    underWay_ = false;
}

Record::Record(std::string_view text) {
    for (std::size_t i = 0; 2 * i + 2 < text.size(); ++i) {
        bytes_[i] = PairValue(text, 1 + 2 * i);
    }
}

std::size_t Record::Address() const {
    return std::size_t{bytes_[1]} * 256 + bytes_[2];
}

std::span<const std::uint8_t> Record::Data() const {
    return std::span(bytes_).subspan(kHeaderBytes, bytes_[0]);
}

bool Record::ChecksumRight() const {
    const auto all = std::span(bytes_).first(kHeaderBytes + bytes_[0] + 1);
    return std::accumulate(all.begin(), all.end(), 0u) % 256 == 0;
}

std::optional<Block> BlockToErase(const Record& record) {
    const auto data = record.Data();
    if (record.Type() != Record::kErase || record.Address() != 0) return std::nullopt;
    if (data.size() != 2 || data[0] != 0x01) return std::nullopt;
    const std::size_t first = std::size_t{data[1]} * 256;
    const auto block = std::ranges::find(kBlocks, first, &Block::first);
    return block == kBlocks.end() ? std::nullopt : std::optional(*block);
}

}  // namespace keplin::simulator
