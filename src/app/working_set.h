// Gives back the pages of the program's and libraries' files that start-up mapped and the
// running monitor no longer uses.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

class QObject;

namespace WorkingSet {

// One loadable segment of a program or library, as its program header describes it.
struct Segment {
    std::uintptr_t address = 0; // where it lies in this process
    std::size_t size = 0;       // its size in memory
    bool writable = false;
};

struct Range {
    std::uintptr_t start = 0;
    std::uintptr_t end = 0;
    bool operator==(const Range&) const = default;
};

// The whole pages of the segments that are never written (code, constants, symbol tables): their
// pages always hold the file's own bytes, so dropping them loses nothing. A page shared with a
// writable segment is kept; an object with text relocations has none of them (its code was written).
std::vector<Range> unchangingPages(const std::vector<Segment>& segments, bool textRelocations, std::size_t pageSize);

// Drops the unchanging pages of every loaded object from this process; the kernel maps back,
// from its file cache, those used again. Returns the bytes so advised (0 where the platform has
// no such means).
std::size_t trim();

// Trims a while after start-up, then now and then (menus, the preferences and the hourly work
// run code once in a while); the timer is a child of owner.
void trimFromTimeToTime(QObject* owner);

} // namespace WorkingSet
