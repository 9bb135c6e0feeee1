// Counts heap allocations made by this program, for the benchmarks' figures.
#pragma once

#include <cstdint>

namespace AllocationCounter {
std::uint64_t count();
} // namespace AllocationCounter
