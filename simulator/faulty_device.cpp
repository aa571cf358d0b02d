#include "simulator/faulty_device.h"

#include <algorithm>
#include <limits>

namespace keplin::simulator {
namespace {

constexpr std::size_t kEndless = std::numeric_limits<std::size_t>::max();
constexpr std::uint8_t kRefusal = 'Z';  // none of the loader's own letters

std::string TextOf(const Reply& reply) {
    std::string text;
    for (const SentByte byte : reply) {
        text.push_back(static_cast<char>(byte.value));
    }
    return text;
}

bool Ends(Heard heard) {
    return heard != Heard::Begun && heard != Heard::Inside;
}

}  // namespace

void FaultyDevice::ClearFaults() {
    faults_.clear();
    babbleLeft_ = 0;
    hungUp_ = false;
}

void FaultyDevice::Receive(std::uint8_t byte, std::vector<SentByte>& answer) {
    if (hungUp_) return;
    const Heard heard = frame_.Take(byte);
    if (Begins(heard)) BeginExchange();
    if (hungUp_) return;
    previous_ = heard;
    if (!underWay_) return loader_.Receive(byte, answer);
    Hold(heard, byte);
    if (Ends(heard)) EndExchange(heard, answer);
}

bool FaultyDevice::Begins(Heard heard) const {
    if (heard == Heard::Other) return previous_ != Heard::Other;
    return heard == Heard::Ping || heard == Heard::Begun;
}

void FaultyDevice::BeginExchange() {
    ++exchanges_;
    babbleLeft_ = 0;
    const auto hit =
        std::ranges::find_if(faults_, [this](FaultAt fault) { return fault.Hits(exchanges_); });
    if (hit != faults_.end()) Strike(*hit);
}

void FaultyDevice::Strike(FaultAt fault) {
    injections_.push_back({exchanges_, fault.kind, {}, {}});
    if (fault.kind == FaultKind::Babble) babbleLeft_ = fault.onwards ? kEndless : kBabbleBytes;
    if (fault.kind == FaultKind::HangUp) {
        hungUp_ = true;
        comesBack_ = !fault.onwards;
    } else {
        underWay_ = fault.kind;
    }
}

void FaultyDevice::Hold(Heard heard, std::uint8_t byte) {
    if (underWay_ == FaultKind::PowerLost || underWay_ == FaultKind::PowerLostHalf) return;
    if (underWay_ == FaultKind::Refused && heard != Heard::Ping) return Refuse(heard, byte);
    loader_.Receive(byte, held_);
}

void FaultyDevice::Refuse(Heard heard, std::uint8_t byte) {
    if (heard == Heard::Other) return;
    if (heard != Heard::Broken) held_.push_back({byte});
    if (Ends(heard)) held_.insert(held_.end(), {{kRefusal}, {'\r'}, {'\n'}});
}

void FaultyDevice::EndExchange(Heard heard, std::vector<SentByte>& answer) {
    Injection& done = injections_.back();
    if (done.kind != FaultKind::Refused || heard == Heard::Ping) done.honest = TextOf(held_);
    LosePower(heard);
    FaultOf(done.kind).alter(held_, random_);
    done.sent = TextOf(held_);
    answer.insert(answer.end(), held_.begin(), held_.end());
    held_.clear();
    underWay_.reset();
}

void FaultyDevice::LosePower(Heard heard) {
    if (underWay_ != FaultKind::PowerLost && underWay_ != FaultKind::PowerLostHalf) return;
    if (underWay_ == FaultKind::PowerLostHalf && heard == Heard::Complete) {
        const Record record(frame_.Text());
        const auto block = BlockToErase(record);
        // A loader that would have refused the erase has not begun it either.
        if (block && record.ChecksumRight() && loader_.Calibrated()) {
            loader_.Memory().EraseFirstHalf(*block);
        }
    }
    loader_.Restart();
}

void FaultyDevice::LineIdle(std::vector<SentByte>& answer) {
    if (babbleLeft_ == 0) return;
    --babbleLeft_;
    const auto value = static_cast<std::uint8_t>(Below(random_, 255));
    answer.push_back({value == '\n' ? std::uint8_t{255} : value});
}

void FaultyDevice::LineClosed() {
    frame_.Reset();
    previous_.reset();
    held_.clear();
    underWay_.reset();
    babbleLeft_ = 0;
    if (comesBack_) hungUp_ = false;
}

}  // namespace keplin::simulator
