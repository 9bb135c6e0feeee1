// Cadence rules of the schedule, the collection steps of the cycle body, and resets that must
// survive a running cycle.
#include "app/front_ends/desktop_parts.h"
#include "app/sampling_cycle.h"
#include "collect/load_system_information.h"
#include "modules/disk/disk_rates.h"
#include "modules/menu_module.h"
#include "modules/module_registry.h"
#include "modules/network/network_rates.h"
#include "prefs/pref_keys.h"
#include "recording_status_bar.h"
#include "test_app.h"

#include "support/fake_network_source.h"
#include "support/fixture_paths.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using namespace PrefKey;

struct CadenceRow {
    const char* what;
    qint64 startCounter;
    qint64 interval;
    int cycles;
    std::vector<bool> menuOpen; // per cycle, from the first
    std::vector<int> sampled;   // 1-based cycles that sample
};

std::vector<int> sampledCycles(const CadenceRow& row)
{
    qint64 counter = row.startCounter;
    std::vector<int> sampled;
    for (int c = 1; c <= row.cycles; ++c) {
        const auto at = static_cast<std::size_t>(c - 1);
        if (loadCounterUp(counter, row.interval, at < row.menuOpen.size() && row.menuOpen[at]))
            sampled.push_back(c);
    }
    return sampled;
}

// A schedule with one sampled module (CPU) on; the others have no step or are off.
std::array<ModuleCadence, kModuleCount> cpuOnly(bool menuOpen = false, bool sampleNow = false)
{
    std::array<ModuleCadence, kModuleCount> modules{};
    modules[moduleIndex(ModuleId::Cpu)] = {true, true, menuOpen, sampleNow};
    modules[moduleIndex(ModuleId::Memory)] = {true, false, true, true};
    return modules;
}

// One disk whose read counter the test moves on.
class OneDisk final : public BlockDeviceSource {
public:
    std::uint64_t sectorsRead = 0;
    std::optional<std::vector<BlockDevice>> devices() override
    {
        BlockDevice sda;
        sda.name = "sda";
        sda.sectors = 1 << 20;
        return std::vector{sda};
    }
    std::optional<std::vector<DiskStatistics>> diskStatistics() override
    {
        DiskStatistics row;
        row.name = "sda";
        row.sectorsRead = sectorsRead;
        return std::vector{row};
    }
};

} // namespace

TEST(LoadCounterUp, SamplesOnTheFirstCycleThenEveryIntervalAndWhileTheMenuIsOpen)
{
    const CadenceRow rows[] = {
        {"interval 3", 0, 3, 8, {}, {1, 4, 7}},
        {"interval 1", 0, 1, 3, {}, {1, 2, 3}},
        {"interval 0 samples every cycle", 0, 0, 3, {}, {1, 2, 3}},
        // The menu adds samples; the regular ones still fall on 4 and 7.
        {"menu open in cycles 2 and 3", 0, 3, 7, {false, true, true}, {1, 2, 3, 4, 7}},
        {"mid-interval counter waits", 2, 5, 4, {}, {4}},
        {"counter past a shortened interval samples at once", 9, 3, 1, {}, {1}},
        {"negative counter samples at once", -4, 3, 1, {}, {1}},
    };
    for (const CadenceRow& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(sampledCycles(row), row.sampled);
    }
}

TEST(SamplingSchedule, DecidesOnlySwitchedOnModulesWithAStepAndKeepsCountersWhileOff)
{
    SamplingSchedule schedule;
    schedule.setInterval(ModuleId::Cpu, 5);
    schedule.setInterval(ModuleId::Memory, 1);
    EXPECT_EQ(schedule.decide(cpuOnly()), DueModules().set(moduleIndex(ModuleId::Cpu)));
    EXPECT_TRUE(schedule.decide(cpuOnly()).none());
    EXPECT_EQ(schedule.counter(ModuleId::Cpu), 2);

    // Switched off, the counter stands still; back on, it resumes mid-interval.
    auto off = cpuOnly();
    off[moduleIndex(ModuleId::Cpu)].switchedOn = false;
    schedule.decide(off);
    EXPECT_EQ(schedule.counter(ModuleId::Cpu), 2);

    // A first sample is taken at once whatever the interval; so is one after a reset.
    EXPECT_TRUE(schedule.decide(cpuOnly(false, true)).test(moduleIndex(ModuleId::Cpu)));
    schedule.reset(ModuleId::Cpu);
    EXPECT_TRUE(schedule.decide(cpuOnly()).test(moduleIndex(ModuleId::Cpu)));
}

TEST(LoadCycleSysInfo, AnEmptyVolumeSampleIsKeptAndAFailedDiskSampleIsNot)
{
    // No sources at all: no volume to measure, no disk statistics to read.
    LoadSystemInformation loadInfo{SourceSet{}};
    CycleInput cycle;
    cycle.due.set(moduleIndex(ModuleId::Volume)).set(moduleIndex(ModuleId::Disk));
    const InfoDict info = loadCycleSysInfo(loadInfo, cycle);
    const auto volumes = moduleHistory<VolumeSample>(info, ModuleId::Volume);
    ASSERT_EQ(volumes.size(), 1u);
    EXPECT_TRUE(volumes.back().empty());
    EXPECT_FALSE(info.exists(moduleIndex(ModuleId::Disk)));
}

TEST(CycleBody, MemoryAndNetworkStepsAndTheInterfaceBaseBetweenSamples)
{
    if (sharedProcfsTree().empty())
        GTEST_SKIP() << "the shared captured procfs tree is not present";
    SourceSet sources = makeSourceSet(sharedProcfsTree());
    auto fake = std::make_unique<FakeNetworkSource>();
    FakeNetworkSource* network = fake.get();
    sources.network = std::move(fake);
    network->listed = {FakeNetworkSource::wired("eth0", "up")};
    network->rows = std::vector<InterfaceCounters>{{"eth0", 100, 1, 200, 2}};
    LoadSystemInformation loadInfo(std::move(sources));

    CycleInput input;
    input.seconds.fill(1);
    input.seconds[moduleIndex(ModuleId::Network)] = 3;
    const auto cycle = [&](bool networkDue) {
        input.due.reset();
        input.due.set(moduleIndex(ModuleId::Memory)).set(moduleIndex(ModuleId::Network), networkDue);
        CycleOutput out = SamplingCycle::runBody(loadInfo, input);
        input.info = out.info;
        return out.quitRequested;
    };
    const auto memory = [&] { return moduleHistory<MemorySample>(input.info, ModuleId::Memory); };
    const auto traffic = [&] { return moduleHistory<NetworkSample>(input.info, ModuleId::Network); };

    EXPECT_FALSE(cycle(true));
    ASSERT_EQ(memory().size(), 1u);
    ASSERT_EQ(traffic().size(), 1u);
    EXPECT_EQ(traffic().back(), (NetworkSample{200, 100, 3.0, {{"eth0", 2, 1}}}));

    // Not a Network second, yet the base follows the interfaces at once.
    network->listed.push_back(FakeNetworkSource::wired("usb0", "up"));
    EXPECT_FALSE(cycle(false));
    EXPECT_EQ(traffic().size(), 1u);
    EXPECT_EQ(memory().size(), 2u);
    EXPECT_TRUE(loadInfo.networkBaseDict()->contains("usb0"));

    // usb0 is still up at its next sample but its counters cannot be read: time to quit.
    network->secondLook["usb0"] = {true, std::nullopt};
    EXPECT_FALSE(cycle(false));
    EXPECT_TRUE(cycle(true));
    EXPECT_EQ(traffic().size(), 2u);
}

TEST(SamplingSchedule, AMountDuringARunningCycleIsMeasuredAtTheNextCycle)
{
    TestApp t;
    t.writeSettings([](SettingsStore& store) { store.setInteger(Vlms_UpdateInterval, 30); });
    t.launch();
    t.executor->finishCycle(); // the first cycle measures every volume
    const auto volumes = [&] { return moduleHistory<VolumeSample>(t.app->infoDict(), ModuleId::Volume).size(); };
    ASSERT_EQ(volumes(), 1u);

    // A slow cycle is under way when the mount is announced; it keeps its own decision...
    t.app->loadSysInfoTimer();
    t.app->moduleDskVolRefresh();
    t.executor->finishCycle();
    EXPECT_EQ(volumes(), 1u);
    // ...and the next one measures the new volume, long before the 30-second interval is up.
    t.app->loadSysInfoTimer();
    t.executor->finishCycle();
    EXPECT_EQ(volumes(), 2u);
}

TEST(SamplingSchedule, ASampleCoversTheSecondsSinceTheModulesPreviousOne)
{
    SamplingSchedule schedule;
    schedule.setInterval(ModuleId::Cpu, 3);
    const auto run = [&](bool menuOpen) { return schedule.decide(cpuOnly(menuOpen)).test(moduleIndex(ModuleId::Cpu)); };
    ASSERT_TRUE(run(false));
    EXPECT_EQ(schedule.secondsCovered(ModuleId::Cpu), 3); // nothing before it: the interval
    EXPECT_FALSE(run(false));
    ASSERT_TRUE(run(true)); // the menu opened: a sample two seconds after the first
    EXPECT_EQ(schedule.secondsCovered(ModuleId::Cpu), 2);
    ASSERT_TRUE(run(true));
    EXPECT_EQ(schedule.secondsCovered(ModuleId::Cpu), 1);
    // The menu closed; two ticks found the cycle still running, and their seconds went by all
    // the same. The regular sample, three cycles on, covers five seconds.
    schedule.tickDropped();
    schedule.tickDropped();
    EXPECT_FALSE(run(false));
    EXPECT_FALSE(run(false));
    ASSERT_TRUE(run(false));
    EXPECT_EQ(schedule.secondsCovered(ModuleId::Cpu), 5);
}

TEST(SamplingCycle, NetworkAndDiskRatesHoldWhetherTheirMenusAreOpenOrNot)
{
    RecordingStatusBar bar;
    TestApp t;
    t.writeSettings([](SettingsStore& store) {
        store.setArray(TopItemSortArray, {3, 4});
        store.setInteger(Network_UpdateInterval, 3);
        store.setInteger(Disk_UpdateInterval, 3);
    });
    // Steady traffic: 3000 bytes sent and 1 MiB read every second.
    FakeNetworkSource* network = nullptr;
    OneDisk* disk = nullptr;
    t.adjustSources = [&](SourceSet& sources) {
        auto fakeNetwork = std::make_unique<FakeNetworkSource>();
        network = fakeNetwork.get();
        network->listed = {FakeNetworkSource::wired("eth0", "up")};
        network->rows = std::vector<InterfaceCounters>{{"eth0", 0, 0, 0, 0}};
        sources.network = std::move(fakeNetwork);
        auto fakeDisk = std::make_unique<OneDisk>();
        disk = fakeDisk.get();
        sources.blockDevices = std::move(fakeDisk);
    };
    t.launchWithBar(bar);
    t.executor->finishCycle(); // the launch's cycle: the first samples
    // Each cycle reads the counters of its second; a slow one lets the next tick pass unused.
    int ticksPassed = 1;
    const auto second = [&](bool slow = false) {
        network->rows->front().sentBytes += 3000 * ticksPassed;
        disk->sectorsRead += 2048 * ticksPassed;
        t.app->loadSysInfoTimer();
        if (slow)
            t.app->loadSysInfoTimer();
        t.executor->finishCycle();
        ticksPassed = slow ? 2 : 1;
    };
    MenuModule* networkItem = menuModule(*t.app, ModuleId::Network);
    MenuModule* diskItem = menuModule(*t.app, ModuleId::Disk);
    ASSERT_TRUE(networkItem && diskItem);
    networkItem->menuWillOpen();
    diskItem->menuWillOpen();
    second();
    second();
    networkItem->menuDidClose();
    diskItem->menuDidClose();
    for (int i = 0; i < 5; ++i)
        second(i == 2);

    // Two samples with the menus open, then the regular ones, one of them after a slow cycle.
    const auto traffic = moduleHistory<NetworkSample>(t.app->infoDict(), ModuleId::Network);
    const auto transfers = moduleHistory<DiskSample>(t.app->infoDict(), ModuleId::Disk);
    ASSERT_EQ(traffic.size(), 5u);
    ASSERT_EQ(transfers.size(), 5u);
    for (std::size_t i = 1; i < traffic.size(); ++i) {
        SCOPED_TRACE(testing::Message() << "sample " << i);
        EXPECT_DOUBLE_EQ(sampleRates(traffic, i).up, 3000);
        EXPECT_DOUBLE_EQ(diskRatesAt(transfers, i, QStringLiteral("/dev/sda"))->read, 1 << 20);
    }
}
