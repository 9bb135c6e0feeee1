// How the Memory picture and menu split the machine's memory into parts that fill its total.
#pragma once

#include "collect/memory_sample.h"
#include "prefs/module_defaults.h"

#include <QColor>
#include <QString>

#include <array>
#include <cstdint>

// The parts a sample is shown as. Wired, active, inactive and free are disjoint pages, and so
// are application, wired, compressed, cached and free; "other" is what the kernel holds beyond
// them (reclaimable caches, per-processor areas, huge pages), so that the parts of either view
// add up to the machine's total.
enum class MemoryPart { Wired, Active, Inactive, Compressed, Other, Free, Application, Cached };

struct MemoryShare {
    MemoryPart part = MemoryPart::Free;
    std::int64_t pages = 0;
};

// Memory_TradMemoryInfo picks the view:
//   on:  wired, active, inactive, compressed, other, free: the page lists, as the kernel keeps
//        them; in use is all but free.
//   off: application, wired, compressed, other, cached, free: who holds the memory; cached
//        files can be dropped at once, so in use is all but cached and free, and the graph
//        shows that share as pressure in the low, warning and critical colours.
struct MemoryBreakdown {
    std::array<MemoryShare, 6> shares{}; // bottom to top, free last
    std::int64_t total = 0;              // the sum of the shares
    bool traditional = false;

    std::int64_t inUse() const;
    // What can be had without taking memory from anyone: free, and in the application view
    // the cached files as well. inUse() + available() == total.
    std::int64_t available() const { return total - inUse(); }
    double fraction(std::size_t share) const;
    double inUseFraction() const;
};

// The shares of sample against totalPages, the machine's memory. Figures that are -1 count as
// 0. The kernel's counters are summed without a lock and can add up to a few pages over the
// total; the total is then their sum, so the fractions never add up to more than 1.
MemoryBreakdown memoryBreakdown(const MemorySample& sample, std::int64_t totalPages, bool traditional);

// The share of memory that cannot be had back by dropping cached files: the application view's
// in-use share, whichever view is shown.
double memoryPressure(const MemorySample& sample, std::int64_t totalPages);

// The theme colour of a part. "Other" has no theme colour of its own: it is the frame colour
// at half its opacity, a neutral that reads as the system's share on light and dark panels.
QColor memoryPartColor(const ModuleDefaults& defaults, MemoryPart part);

// The part's name as the menu shows it, a localisation key.
const char* memoryPartName(MemoryPart part);

// "used 5.21GB  free 2.10GB" in the Memory_Unit setting, for front ends without pictures.
QString memoryBarText(const MemoryBreakdown& breakdown, std::size_t pageSize, int unit);
