// Turns the Linux kernel's memory counters (/proc/meminfo, /proc/vmstat) into the memory records.
//
// The sample's figures, each converted from bytes to pages of the page size (rounded down):
//   wired       = Unevictable + SUnreclaim + KernelStack + PageTables: pages the kernel cannot
//                 give back or page out
//   active      = Active(anon) + Active(file)      (Active on kernels without the split)
//   inactive    = Inactive(anon) + Inactive(file)  (Inactive likewise)
//   free        = MemFree
//   page-ins    = pswpin, page-outs = pswpout (vmstat, cumulative); -1 when vmstat is unreadable
//   speculative = -1: Linux has no such page state
//   compressor  = Zswap, the memory zswap's compressed pool occupies, when zswap is on (switched
//                 on, or still holding pages after being switched off); else -1
//   application = AnonPages + Shmem: memory of processes, not backed by files
//   cached      = Cached - Shmem + Buffers: file contents that could be dropped
//
// Adding up to the machine: wired, active, inactive and free are disjoint, and with the
// compressor (when not -1) they add up to no more than MemTotal. The rest, other =
// MemTotal - (wired + active + inactive + free + compressor), is memory the kernel uses for
// reclaimable caches (SReclaimable), per-CPU areas, huge pages and drivers; a picture that must
// fill the machine's total takes MemTotal from memoryTotalsFrom() (through
// LoadSystemInformation::memoryTotals()) and shows "other" beside the four, at least 0: the
// kernel's counters are summed without a lock and may drift apart by a few pages. Application
// and cached are a second view of the same pages, not further parts.
#pragma once

#include "collect/memory_sample.h"
#include "collect/memory_source.h"

#include <optional>
#include <vector>

// Empty when MemTotal, MemFree or the active and inactive counts are missing. zswapEnabled is
// the zswap switch, empty when unknown.
std::optional<MemorySample> memorySampleFrom(const MemoryCounters& counters, std::size_t pageSize,
                                             std::optional<bool> zswapEnabled);

// MemTotal, and MemAvailable where the kernel gives it (3.14 and later). Older kernels get the
// estimate MemFree + Buffers + Cached - Shmem + SReclaimable, capped at the total.
std::optional<MemoryTotals> memoryTotalsFrom(const MemoryCounters& counters, std::size_t pageSize);

// Sums over every swap area; no swap at all is all zeros.
SwapUsage swapUsageFrom(const std::vector<SwapArea>& areas);

// vmPath: the folder holding the first swap file, or the first area itself when it is a
// partition (a device has no folder of swap files); empty without swap.
MemoryOptionDelayData swapFileDataFrom(const std::vector<SwapArea>& areas, std::int64_t sleepImageSize);
