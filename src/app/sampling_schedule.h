// The sampling cadence of every module, kept on the main thread: counters, intervals, due modules.
#pragma once

#include "prefs/module_id.h"

#include <QtGlobal>

#include <array>
#include <bitset>

// Which modules one cycle samples, by module index.
using DueModules = std::bitset<kModuleCount>;

// What the cadence decision needs to know of a module at the start of a cycle.
struct ModuleCadence {
    bool sampled = false; // the module has a step in the cycle at all
    bool switchedOn = false;
    bool menuOpened = false; // an open menu wants a sample every cycle
    bool sampleNow = false;  // sampled whatever its counter (a module's first sample)
};

// The regular sample comes on the first cycle after switching on, then every interval-th cycle;
// in between only an open menu asks for one. Returns whether the module is due.
bool loadCounterUp(qint64& counter, qint64 interval, bool menuOpened);

class SamplingSchedule {
public:
    void setInterval(ModuleId id, qint64 interval) { entries_[moduleIndex(id)].interval = interval; }
    qint64 interval(ModuleId id) const { return entries_[moduleIndex(id)].interval; }
    qint64 counter(ModuleId id) const { return entries_[moduleIndex(id)].counter; }
    // The module is sampled at the next cycle to start, whatever its interval; a cycle running
    // now does not undo it.
    void reset(ModuleId id) { entries_[moduleIndex(id)].counter = 0; }

    // A tick that found the previous cycle still running: no cycle starts, but its second
    // passes for every module all the same.
    void tickDropped() { ++droppedTicks_; }

    // Counts one cycle for every switched-on module and tells which are due.
    DueModules decide(const std::array<ModuleCadence, kModuleCount>& modules);

    // For a module the last decide() found due: the seconds since its previous sample, which
    // the sample covers. An open menu samples every second whatever the interval, and a slow
    // cycle stretches the gap, so this is what a rate divides by. The interval setting for a
    // module's first sample, which has nothing before it.
    qint64 secondsCovered(ModuleId id) const { return entries_[moduleIndex(id)].covered; }

private:
    struct Entry {
        qint64 counter = 0;
        qint64 interval = 0;
        qint64 sinceSample = -1; // ticks since the previous sample; -1 before the first
        qint64 covered = 0;
    };
    std::array<Entry, kModuleCount> entries_{};
    qint64 droppedTicks_ = 0;
};
