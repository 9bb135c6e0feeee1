// Cadence rules of the per-module counters, and the collection steps of the cycle body.
#include "app/sampling_cycle.h"
#include "collect/load_system_information.h"
#include "prefs/pref_keys.h"

#include "support/fake_network_source.h"
#include "support/fixture_paths.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using namespace PrefKey;

// Runs the CPU cadence for a number of cycles and returns the cycles (1-based) that sampled.
std::vector<int> sampledCycles(ModuleDefaults& general, qint64 interval, int cycles,
                               const std::vector<bool>& menuOpen = {})
{
    std::vector<int> sampled;
    for (int c = 1; c <= cycles; ++c) {
        general.set(Cpu_UpdateInterval, interval);
        general.set(CpuInnerLoadData, false);
        const bool open = c - 1 < static_cast<int>(menuOpen.size()) && menuOpen[static_cast<std::size_t>(c - 1)];
        SamplingCycle::loadCounterUp(general, LaunchCpus, CpuInnerLoadCounterInt, Cpu_UpdateInterval, CpuInnerLoadData,
                                     open);
        if (general.boolValue(CpuInnerLoadData))
            sampled.push_back(c);
    }
    return sampled;
}

ModuleDefaults switchedOn()
{
    ModuleDefaults general;
    general.set(LaunchCpus, true);
    return general;
}

} // namespace

TEST(LoadCounterUp, SamplesFirstCycleThenEveryIntervalAndEveryCycleWhileMenuOpen)
{
    ModuleDefaults general = switchedOn();
    EXPECT_EQ(sampledCycles(general, 3, 8), (std::vector<int>{1, 4, 7}));

    ModuleDefaults every = switchedOn();
    EXPECT_EQ(sampledCycles(every, 1, 3), (std::vector<int>{1, 2, 3}));
    ModuleDefaults zero = switchedOn();
    EXPECT_EQ(sampledCycles(zero, 0, 3), (std::vector<int>{1, 2, 3}));

    // With the menu open in cycles 2 and 3 those are sampled too, and the counter keeps running:
    // the regular samples still fall on 4 and 7.
    ModuleDefaults open = switchedOn();
    EXPECT_EQ(sampledCycles(open, 3, 7, {false, true, true}), (std::vector<int>{1, 2, 3, 4, 7}));
}

TEST(LoadCounterUp, SwitchedOffLeavesFlagAndCounterAlone)
{
    ModuleDefaults general = switchedOn();
    sampledCycles(general, 5, 2); // counter now 2
    general.set(LaunchCpus, false);
    EXPECT_TRUE(sampledCycles(general, 5, 3).empty());
    EXPECT_EQ(general.intValue(CpuInnerLoadCounterInt), 2);

    // Back on, it resumes mid-interval: 3, 4, 5 are not sampled, the next regular one is.
    general.set(LaunchCpus, true);
    EXPECT_EQ(sampledCycles(general, 5, 4), (std::vector<int>{4}));

    // A counter at or past the interval (the interval was shortened) samples at once.
    ModuleDefaults shortened = switchedOn();
    shortened.set(CpuInnerLoadCounterInt, qint64{9});
    EXPECT_EQ(sampledCycles(shortened, 3, 1), (std::vector<int>{1}));
    ModuleDefaults negative = switchedOn();
    negative.set(CpuInnerLoadCounterInt, qint64{-4});
    EXPECT_EQ(sampledCycles(negative, 3, 1), (std::vector<int>{1}));
}

TEST(DecideDueModules, FirstCpuSampleIsTakenAtOnceAndIntervalsAreCopied)
{
    ModuleDefaults general = switchedOn();
    general.set(LaunchMemo, true);
    general.set(CpuInnerLoadCounterInt, qint64{1}); // mid-interval
    general.set(MemoryInnerLoadCounterInt, qint64{1});
    const std::array<qint64, 7> intervals{5, 5, 2, 2, 5, 5, 5};
    SamplingCycle::decideDueModules(general, intervals, {}, /*cpuHistoryExists=*/false);
    EXPECT_TRUE(general.boolValue(CpuInnerLoadData));
    EXPECT_FALSE(general.boolValue(MemoryInnerLoadData));
    EXPECT_EQ(general.intValue(Memory_UpdateInterval), 5);
    EXPECT_EQ(general.intValue(Network_UpdateInterval), 2);

    // Once a history exists the CPU waits for its interval like the others.
    SamplingCycle::decideDueModules(general, intervals, {}, /*cpuHistoryExists=*/true);
    EXPECT_FALSE(general.boolValue(CpuInnerLoadData));
    EXPECT_FALSE(SamplingCycle::wasSampled(general, ModuleId::Cpu));
}

TEST(LoadCycleSysInfo, AnEmptyVolumeSampleIsKeptAndAFailedDiskSampleIsNot)
{
    // No sources at all: no volume to measure, no disk statistics to read.
    LoadSystemInformation loadInfo{SourceSet{}};
    ModuleDefaults general;
    general.set(VlmsInnerLoadData, true);
    general.set(DiskInnerLoadData, true);
    const InfoDict info = loadCycleSysInfo(loadInfo, {}, general, {});
    ASSERT_EQ(info.volume.size(), 1u);
    EXPECT_TRUE(info.volume.back().empty());
    EXPECT_FALSE(info.disk.exists());
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
    input.general.set(LaunchMemo, true);
    input.general.set(LaunchNetw, true);
    input.intervals = {1, 1, 3, 1, 1, 1, 1};
    const auto cycle = [&] {
        CycleOutput out = SamplingCycle::runBody(loadInfo, input);
        input.general = out.general;
        input.info = out.info;
        return out.quitRequested;
    };

    EXPECT_FALSE(cycle());
    ASSERT_EQ(input.info.memory.size(), 1u);
    ASSERT_EQ(input.info.network.size(), 1u);
    EXPECT_EQ(input.info.network.back(), (NetworkSample{200, 100, 3.0, {{"eth0", 2, 1}}}));

    // Not a Network second, yet the base follows the interfaces at once.
    network->listed.push_back(FakeNetworkSource::wired("usb0", "up"));
    EXPECT_FALSE(cycle());
    EXPECT_EQ(input.info.network.size(), 1u);
    EXPECT_EQ(input.info.memory.size(), 2u);
    EXPECT_TRUE(loadInfo.networkBaseDict()->contains("usb0"));

    // usb0 is still up at its next sample but its counters cannot be read: time to quit.
    network->secondLook["usb0"] = {true, std::nullopt};
    EXPECT_FALSE(cycle());
    EXPECT_TRUE(cycle());
    EXPECT_EQ(input.info.network.size(), 2u);
}
