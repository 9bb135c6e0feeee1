// The CPU sample: tick differences per processor, then the whole machine.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

// One record in the order user, system, nice, idle (not the kernel's order).
using CpuRecord = std::array<std::int64_t, 4>;

enum CpuState : std::size_t { CpuUser = 0, CpuSystem = 1, CpuNice = 2, CpuIdle = 3 };

// N per-processor records followed by the machine's averaged record; empty when no sample.
using CpuSample = std::vector<CpuRecord>;
