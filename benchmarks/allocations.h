// Counts what the whole program takes from the heap.
#pragma once

#include <cstdint>

namespace keplin::benchmarks {

// Calls of operator new since the program began, in any thread.
std::uint64_t AllocationCount();

}  // namespace keplin::benchmarks
