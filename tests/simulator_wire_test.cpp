// The pace of the wire, and the faults that show only in time or on the line itself.
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "simulator/faulty_device.h"
#include "simulator/loader.h"
#include "simulator/wire.h"

namespace keplin::simulator {
namespace {

using namespace std::chrono_literals;

const std::string kCalibration = ":010000020CF1";

void HostSends(Wire& wire, std::string_view text, Time now) {
    const std::vector<std::uint8_t> bytes(text.begin(), text.end());
    wire.HostSends(bytes, now);
}

// Lets the wire run dry, or 100,000 bytes arrive; everything that arrives at the host, with the
// time when it does.
std::vector<std::pair<char, Time>> Arrivals(Wire& wire) {
    std::vector<std::pair<char, Time>> result;
    while (result.size() < 100'000) {
        const auto next = wire.NextEvent();
        if (!next) break;
        if (wire.ReadAtHost(*next - 1ns)) ADD_FAILURE() << "a byte came between two events";
        while (const auto byte = wire.ReadAtHost(*next)) {
            result.emplace_back(static_cast<char>(*byte), *next);
        }
    }
    return result;
}

TEST(SimulatedWire, EachByteTakesItsTimeInBothDirections) {
    Loader loader;
    Wire wire(loader);
    HostSends(wire, ":00000001FF", 5ms);
    const auto arrivals = Arrivals(wire);
    ASSERT_EQ(arrivals.size(), 14u);
    for (std::size_t i = 0; i < arrivals.size(); ++i) {
        EXPECT_EQ(arrivals[i].second, 5ms + (static_cast<int>(i) + 2) * kByteTime);
    }
    EXPECT_EQ(kByteTime, 260417ns);
}

TEST(SimulatedWire, APauseComesBeforeItsByteAndDiscardLeavesWhatIsUnderWay) {
    struct Pausing final : DeviceEnd {
        void Receive(std::uint8_t byte, Reply& answer) override {
            answer = {{byte, 0us}, {'a', 700us}, {'b', 0us}};
        }
    } device;
    Wire wire(device);
    HostSends(wire, "x", 0ns);
    wire.DropArrived(2 * kByteTime);
    const auto arrivals = Arrivals(wire);
    const std::vector<std::pair<char, Time>> expected{{'a', 3 * kByteTime + 700us},
                                                      {'b', 4 * kByteTime + 700us}};
    EXPECT_EQ(arrivals, expected);
}

TEST(SimulatedFaults, BabbleHasNoLineFeedAndGoesOnAsLongAsItShould) {
    Loader loader;
    FaultyDevice device(loader, 1);
    Wire wire(device);
    device.Inject({FaultKind::Babble, 1, false});
    device.Inject({FaultKind::Babble, 3, false});
    device.Inject({FaultKind::Babble, 4, true});

    HostSends(wire, "U", 0s);
    HostSends(wire, "U", 1s);
    wire.DropArrived(1s + kByteTime);
    EXPECT_EQ(Arrivals(wire).size(), 2u);  // one was under way; then the answer

    HostSends(wire, "U", 10s);
    const auto once = Arrivals(wire);
    EXPECT_EQ(once.size(), FaultyDevice::kBabbleBytes);
    EXPECT_TRUE(std::ranges::none_of(once, [](const auto& one) { return one.first == '\n'; }));

    HostSends(wire, "U", 20s);
    wire.DropArrived(30s);
    EXPECT_TRUE(wire.NextEvent());
    device.ClearFaults();
    EXPECT_EQ(Arrivals(wire).size(), 1u);
}

TEST(SimulatedFaults, SlowBytesComeWithPauses) {
    Loader loader;
    FaultyDevice device(loader, 1);
    Wire wire(device);
    device.Inject({FaultKind::Slow, 1, false});
    HostSends(wire, kCalibration, 0s);
    Time last = static_cast<int>(kCalibration.size()) * kByteTime;
    for (const auto& [character, time] : Arrivals(wire)) {
        EXPECT_GE(time - last, 100ms + kByteTime);
        EXPECT_LE(time - last, 400ms + kByteTime);
        last = time;
    }
}

TEST(SimulatedFaults, AHungUpLineLosesAllUntilItIsOpenedAnew) {
    for (const bool onwards : {false, true}) {
        Loader loader;
        FaultyDevice device(loader, 1);
        Wire wire(device);
        device.Inject({FaultKind::HangUp, 2, onwards});
        HostSends(wire, "U" + kCalibration, 0s);
        wire.Advance(1s);
        EXPECT_TRUE(wire.HungUp());
        EXPECT_EQ(wire.NextEvent(), std::nullopt);
        HostSends(wire, "U", 1s);
        EXPECT_EQ(wire.NextEvent(), std::nullopt);

        EXPECT_EQ(wire.PlugIn(), !onwards);
        if (onwards) device.ClearFaults();
        EXPECT_TRUE(wire.PlugIn());
        HostSends(wire, "U", 2s);
        EXPECT_EQ(Arrivals(wire).size(), 1u);
        EXPECT_EQ(device.ExchangesSeen(), 3);
        EXPECT_EQ(loader.ObeyedRecords().size(), 0u);
    }
}

}  // namespace
}  // namespace keplin::simulator
