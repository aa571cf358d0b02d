// keplin-campaign N SEED: N random updates from a seed on; 10000 from 1 when left out.
#include "tests/campaign/campaign.h"

#include <cstdlib>
#include <iostream>

int main(int argc, char** argv) {
    const std::uint64_t count = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 10000;
    const std::uint64_t first = argc > 2 ? std::strtoull(argv[2], nullptr, 10) : 1;
    if (argc > 3 || count == 0) {
        std::cerr << "usage: keplin-campaign [N [SEED]]\n";
        return 2;
    }
    keplin::test::Tally tally;
    for (std::uint64_t seed = first; seed < first + count; ++seed) {
        if (const auto wrong = keplin::test::RandomUpdate(seed, tally)) {
            std::cerr << "seed " << seed << ": " << *wrong << "\n"
                      << "again: keplin-campaign 1 " << seed << "\n";
            return 1;
        }
    }
    std::cout << count << " updates from seed " << first << ": " << tally.completed
              << " completed, " << tally.stopped << " stopped, " << tally.closed << " closed, "
              << tally.noFile << " without a file\n";
    return 0;
}
