// The platform sources the collector reads from, one per area of facts.
#pragma once

#include "collect/cpu_source.h"

#include <filesystem>
#include <memory>

// Helper-owned: add the other area interfaces (memory, network, block devices, mounts,
// sensors, processes, machine) as members here.
struct SourceSet {
    std::unique_ptr<CpuSource> cpu;
};

// The running platform's sources reading below root ("/" on a live system).
SourceSet makeSourceSet(const std::filesystem::path& root = "/");
