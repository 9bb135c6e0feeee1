// The sampled data: one history per module, replaced (never edited) by each cycle.
#pragma once

#include "collect/cpu_sample.h"
#include "collect/disk_sample.h"
#include "collect/history.h"
#include "collect/memory_sample.h"
#include "collect/network_sample.h"

// Copies are cheap (shared histories), so the main thread can keep the last finished set while
// the next cycle builds a new one.
struct InfoDict {
    History<CpuSample> cpu;
    History<MemorySample> memory;
    History<NetworkSample> network;
    History<DiskSample> disk;
    History<VolumeSample> volume;
    // The screen-sharing module has no sample; its entry only says that a cycle ran.
    bool vnc = false;
};
