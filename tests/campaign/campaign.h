// Random updates: random files, faults and clicks, all from a seed, and what must hold in each.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace keplin::test {

// Over all updates of a campaign.
struct Tally {
    int completed = 0;
    int stopped = 0;  // at a failed step
    int closed = 0;   // the technician closed the program
    int noFile = 0;   // the programming page was never reached
};

// Runs one update. What did not hold, in words, or nothing.
std::optional<std::string> RandomUpdate(std::uint64_t seed, Tally& tally);

}  // namespace keplin::test
