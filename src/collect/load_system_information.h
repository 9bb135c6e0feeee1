// The collector object: owns the platform sources and the state kept between samples.
#pragma once

#include "collect/cpu_option_figures.h"
#include "collect/cpu_sample.h"
#include "collect/desktop_index.h"
#include "collect/disk_sample.h"
#include "collect/gpu_record.h"
#include "collect/memory_sample.h"
#include "collect/network_base.h"
#include "collect/network_base_builder.h"
#include "collect/network_sample.h"
#include "collect/process_cpu_sampler.h"
#include "collect/process_list.h"
#include "collect/running_applications.h"
#include "collect/sensor_dat.h"
#include "collect/source_set.h"
#include "collect/storage_descriptions.h"

#include <QString>
#include <QStringList>

#include <atomic>
#include <chrono>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

class LoadSystemInformation {
public:
    explicit LoadSystemInformation(SourceSet sources);

    // Tick differences since the previous call, per processor then averaged; empty on the
    // first call and when the ticks cannot be read (the previous ticks are then kept).
    CpuSample loadCpuData();

    // How many processors the newest tick reading counted, read afresh before the first: the
    // machine's own count, or the tree's under another root. Empty when the ticks are unreadable.
    std::optional<std::size_t> processorCount();

    // What the CPU menu's detail lines show, as of now; each figure empty when unreadable.
    CpuOptionFigures cpuOptionFigures() const;

    // The processor's model string without trademark marks; empty when it is not known.
    static QString cpuGetBrandNameNew(MachineSource& machine);
    // Architecture and maximum clock, such as "x86_64 04GHz"; empty when either is unknown.
    static std::optional<QString> cpuGetRareNameNew(MachineSource& machine);
    // Every display controller on the PCI bus below root; empty when the bus cannot be read.
    static std::optional<std::vector<GpuRecord>> getGpuNames(const std::filesystem::path& root = "/");

    // The busiest processes as [names, values] for the column "%cpu" or "rss" (see
    // buildProcessList); "%cpu" shares cover the time since the previous "%cpu" call, so the
    // first call lists nothing. Empty when the processes cannot be listed.
    std::optional<QStringList> psGetProccessAsKv(const QString& column, const ProcessDict& procDict, int displayLimit,
                                                 std::int32_t addValueMode);

    // Display names of the running desktop applications under "_<pid>".
    ProcessDict retProcessDict();

    // The memory page counts (see memory_mapping.h for what each figure is); empty when the
    // counters cannot be read. Each call reads the counter files once.
    // Without paging the page-in and page-out figures are -1: only the Memory menu shows them,
    // and their counters are the dearest part of the read.
    std::optional<MemorySample> loadMemoryData(bool withPaging = true);
    // What the memory figures add up to, as of the newest sample (read afresh before the first).
    std::optional<MemoryTotals> memoryTotals();
    // The size in bytes of the pages the memory figures count.
    std::size_t memoryPageSize() const;
    // Swap space over every swap area; empty when the swap list cannot be read.
    std::optional<SwapUsage> loadSwapUsage();
    // Forgets what this cycle has read so far; the cycle calls it as it starts, on its thread.
    void beginCycle();
    // This cycle's figures for the steps after the modules' (the export): what a module's step
    // read in this cycle, else read now, so no file is read twice and none is from an old cycle.
    std::optional<SwapUsage> cycleSwapUsage();
    std::optional<MemoryTotals> cycleMemoryTotals();
    // The swap areas and the hibernation image; empty when the swap list cannot be read.
    std::optional<MemoryOptionDelayData> loadMemoryOptionDelayData();

    // Addresses per interface; empty when they cannot be listed.
    NetworkAddresses retIpAdress();
    // Every interface with its kind, addresses, link and hardware; empty when none can be listed.
    NetworkBase retNetworkBase();
    // Traffic since boot, and the packet counts of the interfaces that base marks "Active";
    // empty when the traffic table cannot be read. An active interface missing from the table
    // is looked at again: gone or down by then, it is left out of this sample; still up with its
    // counters unreadable, the collector asks for the application to end (terminationRequested).
    std::optional<NetworkSample> loadNetworkData(double interval, const NetworkBase& base);
    // True when links and addresses are as at the previous call; false when they changed, and
    // the new state is kept for the next call.
    bool checkInterfaceStatusChange();
    // Forgets the kept state, so that the next check reports a change (on any thread).
    void clearInterfaceStatusChange();
    // Set once the statistics of an active interface could not be read: the figures can no
    // longer be trusted, and the application is to quit.
    bool terminationRequested() const { return terminationRequested_.load(); }

    // The interface base. The sampling cycle's thread is its only writer and replaces it whole
    // when the change check reports a change; readers on other threads (the Network menu) get a
    // snapshot that stays valid and unchanged however long they hold it.
    std::shared_ptr<const NetworkBase> networkBaseDict() const;
    void setNetworkBaseDict(NetworkBase base);

    // The host name of an IPv4 address; empty when it has none. Blocks while the resolver asks.
    static std::optional<QString> getHostNameFromIpAddress(const QString& address);
    // The name of NetworkManager's primary connection, or "---" when it is not running or has
    // none. Waits at most a moment for the system bus.
    static QString getCurrentNetworkLocation();

    // Storage descriptions, rebuilt on the main thread when volumes come and go.
    // Whole disks with their sizes, and the disk that holds each partition.
    VolumeUtilDetail retVolumeUtilDetail();
    // The mounted volumes worth showing (see selectVolumeMounts) that report a size.
    VolumeBaseDict retVolumeBase(const VolumeUtilDetail& util);
    // The block devices that count I/O, with their hardware facts.
    DiskBaseDict retDisAccessBase(const VolumeUtilDetail& util, const VolumeBaseDict& volumeBase);
    // The whole disk of a name of the form disk0s2 (disk0): only a one-digit partition number
    // is cut off, so disk1s10 stays as it is; "-" for names shorter than three characters.
    static QString retDiskName(const QString& bsdName);

    // Samples, on the cycle thread.
    // Cumulative bytes read and written per whole disk; empty when the kernel's statistics
    // cannot be read.
    std::optional<DiskSample> retDiskRW(double interval);
    // Space of each volume of the base, [0, 0, 0] for one that cannot be measured.
    VolumeSample retDiskUsage(const VolumeBaseDict& volumeBase);

    // Sensors. The table is built and filtered once at start-up, on the main thread; the samples
    // are taken on the cycle thread, the drive temperatures while the Temp menu is open.
    // Every temperature sensor the machine names, from the SMC's tables (where it has an SMC)
    // and the platform's own chips; tempData absent when there is none.
    SensorDatDict getSensorDatXml(const QString& macRawName);
    // The table's sensors that answer now; keys that do not join removedTempKeys, and keys
    // already there are not read again.
    TempDetail getDetailTemp(const SensorDatDict& dict, const QStringList& removedTempKeys);
    // Whole degrees of every sensor of the table at 1 °C or more, and their average.
    SensorSample getBaseTempNew(const SensorDatDict& dict);
    // Every fan, named, with its keys and limits; empty when the machine reports none.
    QList<FanEntry> getFanBase();
    // Every fan's speed and their average over the whole list; empty without a fan list.
    SensorSample getFanDetail(const SensorDatDict& dict);
    // The drives' own temperatures; titleOnly lists the drives without asking them (each 0).
    QList<SmartReading> getSmartTemp(bool titleOnly);
    // The same with the row ["---", 0] in front, or empty when no drive reports.
    QList<SmartReading> getSmartDetailTemp(bool titleOnly);
    // One drive's own report: its model and whole degrees, from its sensor chip or else its SMART
    // attributes (0 when neither gives one); none when the drive names no model. titleOnly asks
    // nothing of the drive. No self-test is ever started.
    static std::optional<SmartReading> PerformSMARTUnitTest(DriveSource& drives, const DriveListing& drive,
                                                            bool titleOnly);

    const SourceSet& sources() const { return sources_; }

private:
    SourceSet sources_;
    std::optional<std::vector<ProcessorTicks>> prevCpuInfo;
    std::mutex cpuUsageLock;
    // The newest scan of the processes and when it was taken: the names reuse one taken for
    // the list a moment before rather than read every process again.
    std::vector<ProcessRecord> processScan;
    std::optional<std::chrono::steady_clock::time_point> processScanTime;
    ProcessCpuSampler processSampler;
    DesktopIndex desktopIndex;
    RunningApplications runningApplications;
    std::mutex processLock; // guards the five above
    // Every name met in the disk statistics: its sample key when it is a whole disk, none for
    // a partition. Looked up rather than re-read, so a tick costs one read of the statistics.
    std::map<std::string, std::optional<QString>, std::less<>> diskKeys;
    std::mutex diskLock;
    // The totals read afresh, without the page-in counts.
    std::optional<MemoryTotals> readMemoryTotals();
    std::optional<MemoryTotals> lastMemoryTotals;
    std::mutex memoryLock;
    // This cycle's readings; only the cycle's thread touches them.
    std::optional<SwapUsage> cycleSwap_;
    std::optional<MemoryTotals> cycleTotals_;
    InterfaceStatusTable netIncDict;
    bool netIncKnown = false; // netIncDict holds a look at the interfaces

    std::mutex netIncLock;
    std::shared_ptr<const NetworkBase> networkBase_ = std::make_shared<const NetworkBase>();
    mutable std::mutex networkBaseLock;
    std::atomic<bool> terminationRequested_ = false;
    // One SMC connection at a time: the cycle's samples and the start-up table share the source.
    // Opens the SMC (or what stands in for it), lets use read, closes it; false when it cannot be opened.
    bool withSmcConnection(const std::function<void(SmcSource&)>& use);
    std::mutex sensorLock;
    // The drives are asked from the Temp menu, on whichever thread shows it.
    std::mutex driveLock;
};
