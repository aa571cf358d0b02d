// The pace of the wire.
#include <gtest/gtest.h>

#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "simulator/loader.h"
#include "simulator/wire.h"

namespace keplin::simulator {
namespace {

using namespace std::chrono_literals;

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

}  // namespace
}  // namespace keplin::simulator
