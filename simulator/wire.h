// The pace of the serial line, as pure logic on a time that is handed in: 38400 bit/s, ten bits a
// byte, both directions at once.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "simulator/device_end.h"

namespace keplin::simulator {

// Since whatever moment the caller's clock counts from. Must not go back between calls.
using Time = std::chrono::nanoseconds;

// Ten bits at 38400 bit/s, rounded up to whole nanoseconds.
inline constexpr Time kByteTime{(10 * 1'000'000'000LL + 38'399) / 38'400};

// One direction: bytes that follow each other at the line's pace.
class Lane {
  public:
    // Queues a byte behind the others; on an empty lane it sets out at `now`.
    void Put(SentByte byte, Time now);
    // Takes the first byte away, at the time it was due. The lane must not be empty.
    std::uint8_t Take();
    // When the first byte has arrived; Time::max() when the lane is empty.
    [[nodiscard]] Time Due() const { return due_; }
    [[nodiscard]] std::size_t Size() const { return bytes_.size() - first_; }
    void Clear();

  private:
    std::vector<SentByte> bytes_;
    std::size_t first_ = 0;
    Time due_ = Time::max();
};

class Wire {
  public:
    // `device` must outlive the wire.
    explicit Wire(DeviceEnd& device) : device_(device) {}

    // The host hands bytes to its serial port. Lost when the line has hung up.
    void HostSends(std::span<const std::uint8_t> bytes, Time now);

    // Lets everything happen that is due by `now`, in the order of its time.
    void Advance(Time now);

    // The next byte that has arrived at the host by `now`, or nothing.
    std::optional<std::uint8_t> ReadAtHost(Time now);
    // Drops what has arrived at the host by `now`; bytes still on the wire arrive later.
    void DropArrived(Time now);
    // All bytes that had arrived at the last Advance; `bytes` is replaced.
    void TakeArrived(std::vector<std::uint8_t>& bytes);

    // When the next byte reaches either end; nothing while the line is at rest.
    [[nodiscard]] std::optional<Time> NextEvent() const;
    // Bytes on their way in the busier direction.
    [[nodiscard]] std::size_t InFlight() const;

    // The device hung up while this line stood. Stays so until PlugIn.
    [[nodiscard]] bool HungUp() const { return hungUp_; }
    // Opens the line anew, if it had hung up: nothing of the old one arrives any more. True when
    // the line stands, false while the device is still gone.
    bool PlugIn();

  private:
    void Step();
    void SendAnswer(Time now);
    void NoticeHangUp();
    void ClearArrived();

    DeviceEnd& device_;
    Lane toDevice_;
    Lane toHost_;
    std::vector<SentByte> answer_;
    std::vector<std::uint8_t> arrived_;
    std::size_t read_ = 0;  // of arrived_
    bool hungUp_ = false;
};

}  // namespace keplin::simulator
