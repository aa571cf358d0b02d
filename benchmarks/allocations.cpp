#include "benchmarks/allocations.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::uint64_t> allocations{0};

}  // namespace

// The forms for arrays and with a size come down to these two.
void* operator new(std::size_t size) {
    allocations.fetch_add(1, std::memory_order_relaxed);
    if (void* memory = std::malloc(size)) return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace keplin::benchmarks {

std::uint64_t AllocationCount() {
    return allocations.load(std::memory_order_relaxed);
}

}  // namespace keplin::benchmarks
