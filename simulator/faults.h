// The faults that a simulated controller or its line can have, by name.
#pragma once

#include <cstdint>
#include <optional>
#include <random>
#include <span>
#include <string_view>
#include <vector>

#include "simulator/device_end.h"

namespace keplin::simulator {

using Reply = std::vector<SentByte>;
using Random = std::mt19937;

enum class FaultKind {
    Silence,
    ByteDropped,
    BitFlipped,
    LowerCase,
    ByteFirst,
    NoDot,
    LateDot,
    NoLineFeed,
    Babble,
    Slow,
    Noise,
    Refused,
    HangUp,
    PowerLost,
    PowerLostHalf,
};

struct Fault {
    FaultKind kind;
    std::string_view name;
    std::string_view description;  // one line, for a technician or developer
    // What the fault makes of the loader's whole reply to one exchange, which may be empty.
    void (*alter)(Reply& reply, Random& random);
};

// All faults, in the order of FaultKind.
std::span<const Fault> FaultTable();
const Fault& FaultOf(FaultKind kind);

// Where a fault strikes.
struct FaultAt {
    FaultKind kind = FaultKind::Silence;
    int exchange = 1;      // counted from 1
    bool onwards = false;  // there and in every exchange after it

    [[nodiscard]] bool Hits(int number) const {
        return onwards ? number >= exchange : number == exchange;
    }
    friend bool operator==(const FaultAt&, const FaultAt&) = default;
};

// Reads "NAME@K" or "NAME@K+" with K from 1; nothing when the text is anything else.
std::optional<FaultAt> ParseFault(std::string_view text);

// A number from 0 to `count` - 1.
inline std::uint32_t Below(Random& random, std::uint32_t count) {
    return static_cast<std::uint32_t>(random() % count);
}

}  // namespace keplin::simulator
