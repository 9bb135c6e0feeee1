// The Linux sources, all reading below one root.
#include "collect/linux/hwmon_watch.h"
#include "collect/linux/linux_block_device_source.h"
#include "collect/linux/linux_cpu_source.h"
#include "collect/linux/linux_drive_source.h"
#include "collect/linux/linux_machine_source.h"
#include "collect/linux/linux_memory_source.h"
#include "collect/linux/linux_mount_source.h"
#include "collect/linux/linux_network_source.h"
#include "collect/linux/linux_process_source.h"
#include "collect/linux/linux_sensor_source.h"
#include "collect/linux/linux_smc_source.h"
#include "collect/linux/udev_device_database.h"
#include "collect/source_set.h"

SourceSet makeSourceSet(const std::filesystem::path& root)
{
    const SysRoot sysRoot(root);
    SourceSet sources;
    sources.root = root;
    sources.cpu = std::make_unique<LinuxCpuSource>(sysRoot);
    sources.processes = std::make_unique<LinuxProcessSource>(sysRoot);
    sources.memory = std::make_unique<LinuxMemorySource>(sysRoot);
    sources.network = std::make_unique<LinuxNetworkSource>(sysRoot);
    sources.blockDevices = std::make_unique<LinuxBlockDeviceSource>(sysRoot);
    sources.mounts = std::make_unique<LinuxMountSource>(sysRoot);
    const bool live = root == std::filesystem::path("/");
    if (live)
        sources.deviceDatabase = std::make_unique<UdevDeviceDatabase>();
    // Only the live system's devices come and go; a tree stays as it is.
    std::function<bool()> hwmonChanged;
    if (live)
        hwmonChanged = [watch = std::make_shared<HwmonWatch>()] { return watch->changed(); };
    sources.sensors = std::make_shared<LinuxSensorSource>(sysRoot, std::move(hwmonChanged));
    sources.smc = std::make_unique<LinuxSmcSource>(sources.sensors);
    sources.drives = std::make_unique<LinuxDriveSource>(sysRoot, sources.sensors, live);
    sources.machine = std::make_unique<LinuxMachineSource>(sysRoot);
    return sources;
}
