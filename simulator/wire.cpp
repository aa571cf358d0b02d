#include "simulator/wire.h"

#include <algorithm>

namespace keplin::simulator {

void Lane::Put(SentByte byte, Time now) {
    if (Size() == 0) due_ = now + byte.rest + kByteTime;
    bytes_.push_back(byte);
}

std::uint8_t Lane::Take() {
    const std::uint8_t value = bytes_[first_++].value;
    if (Size() == 0) {
        Clear();
    } else {
        due_ += bytes_[first_].rest + kByteTime;
    }
    return value;
}

void Lane::Clear() {
    bytes_.clear();
    first_ = 0;
    due_ = Time::max();
}

void Wire::HostSends(std::span<const std::uint8_t> bytes, Time now) {
    Advance(now);
    if (hungUp_) return;
    for (const std::uint8_t byte : bytes) {
        toDevice_.Put({byte}, now);
    }
}

void Wire::Advance(Time now) {
    NoticeHangUp();
    while (std::min(toDevice_.Due(), toHost_.Due()) <= now) {
        Step();
    }
}

void Wire::Step() {
    const Time now = std::min(toDevice_.Due(), toHost_.Due());
    if (toDevice_.Due() == now) {
        device_.Receive(toDevice_.Take(), answer_);
    } else {
        arrived_.push_back(toHost_.Take());
    }
    SendAnswer(now);
    if (toHost_.Size() == 0) {
        device_.LineIdle(answer_);
        SendAnswer(now);
    }
    NoticeHangUp();
}

void Wire::SendAnswer(Time now) {
    for (const SentByte byte : answer_) {
        toHost_.Put(byte, now);
    }
    answer_.clear();
}

std::optional<std::uint8_t> Wire::ReadAtHost(Time now) {
    Advance(now);
    if (read_ == arrived_.size()) return std::nullopt;
    const std::uint8_t byte = arrived_[read_++];
    if (read_ == arrived_.size()) ClearArrived();
    return byte;
}

void Wire::DropArrived(Time now) {
    Advance(now);
    ClearArrived();
}

void Wire::TakeArrived(std::vector<std::uint8_t>& bytes) {
    const auto unread = std::span(arrived_).subspan(read_);
    bytes.assign(unread.begin(), unread.end());
    ClearArrived();
}

void Wire::ClearArrived() {
    arrived_.clear();
    read_ = 0;
}

std::optional<Time> Wire::NextEvent() const {
    const Time next = std::min(toDevice_.Due(), toHost_.Due());
    return next == Time::max() ? std::nullopt : std::optional(next);
}

std::size_t Wire::InFlight() const {
    return std::max(toDevice_.Size(), toHost_.Size());
}

void Wire::NoticeHangUp() {
    if (hungUp_ || !device_.HungUp()) return;
    hungUp_ = true;
    toDevice_.Clear();
    toHost_.Clear();
    device_.LineClosed();
}

bool Wire::PlugIn() {
    NoticeHangUp();
    if (!hungUp_) return true;
    if (device_.HungUp()) return false;
    hungUp_ = false;
    ClearArrived();
    return true;
}

}  // namespace keplin::simulator
