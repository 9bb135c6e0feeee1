// The platform sources the collector reads from, one per area of facts.
#pragma once

#include "collect/block_device_source.h"
#include "collect/cpu_source.h"
#include "collect/device_database_source.h"
#include "collect/drive_source.h"
#include "collect/machine_source.h"
#include "collect/memory_source.h"
#include "collect/mount_source.h"
#include "collect/network_source.h"
#include "collect/process_source.h"
#include "collect/sensor_source.h"
#include "collect/smc_source.h"

#include <filesystem>
#include <memory>

// A platform fills the areas it can read; an empty member means the area is unknown there.
struct SourceSet {
    // The folder the sources read below; readers that are not sources (the PCI bus) use it too.
    std::filesystem::path root = "/";
    std::unique_ptr<CpuSource> cpu;
    std::unique_ptr<ProcessSource> processes;
    std::unique_ptr<MemorySource> memory;
    std::unique_ptr<NetworkSource> network;
    std::unique_ptr<BlockDeviceSource> blockDevices;
    std::unique_ptr<MountSource> mounts;
    // The live device manager; absent below any other root, whose devices it does not know.
    std::unique_ptr<DeviceDatabaseSource> deviceDatabase;
    // Shared: the SMC stand-in and the drives read the same chips through it.
    std::shared_ptr<SensorSource> sensors;
    // The System Management Controller, or what stands in for it where there is none.
    std::unique_ptr<SmcSource> smc;
    std::unique_ptr<DriveSource> drives;
    std::unique_ptr<MachineSource> machine;
};

// The running platform's sources reading below root ("/" on a live system).
SourceSet makeSourceSet(const std::filesystem::path& root = "/");
