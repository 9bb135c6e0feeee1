// The CPU collector's differences, averages and state, and the menu's figures, over fake sources.
#include "collect/load_system_information.h"

#include <gtest/gtest.h>

#include <deque>

namespace {
class ScriptedCpuSource : public CpuSource {
public:
    std::deque<std::optional<std::vector<ProcessorTicks>>> ticks;
    std::optional<std::int64_t> boot;
    std::optional<double> awake;
    std::optional<LoadAverages> loads;

    std::optional<std::vector<ProcessorTicks>> readProcessorTicks() override
    {
        if (ticks.empty())
            return std::nullopt;
        auto next = ticks.front();
        ticks.pop_front();
        return next;
    }
    std::optional<std::int64_t> bootTime() override { return boot; }
    std::optional<double> awakeSeconds() override { return awake; }
    std::optional<LoadAverages> loadAverages() override { return loads; }
};

class FixedProcessSource : public ProcessSource {
public:
    std::optional<ProcessCounts> answer;
    std::optional<ProcessCounts> counts() override { return answer; }
    std::optional<std::vector<ProcessRecord>> scanProcesses() override { return std::nullopt; }
};

class NamedMachine : public MachineSource {
public:
    std::optional<std::string> hostName() override { return "build-host.local"; }
    std::optional<std::string> systemVendor() override { return std::nullopt; }
    std::optional<std::string> productName() override { return std::nullopt; }
    std::optional<std::string> productVersion() override { return std::nullopt; }
    std::optional<std::string> productSerial() override { return std::nullopt; }
    std::optional<std::string> deviceTreeModel() override { return std::nullopt; }
    std::optional<std::string> processorModelName() override { return std::nullopt; }
    std::optional<std::uint64_t> maxFrequencyKHz() override { return std::nullopt; }
};

using Ticks = std::vector<ProcessorTicks>;

// A collector over a scripted CPU source; the script is a list of successive readings.
struct Collector {
    ScriptedCpuSource* cpu = nullptr;
    std::unique_ptr<LoadSystemInformation> info;

    explicit Collector(std::vector<std::optional<Ticks>> script)
    {
        auto source = std::make_unique<ScriptedCpuSource>();
        cpu = source.get();
        cpu->ticks.assign(script.begin(), script.end());
        SourceSet sources;
        sources.cpu = std::move(source);
        info = std::make_unique<LoadSystemInformation>(std::move(sources));
    }
};
} // namespace

TEST(LoadCpuData, FirstCallIsEmptyAndTheSecondHasOneRecordPerProcessorPlusTheMachine)
{
    Collector c(
        {Ticks{{10, 20, 30, 40}, {1, 2, 3, 4}, {0, 0, 0, 0}}, Ticks{{15, 21, 30, 50}, {2, 4, 3, 9}, {1, 1, 1, 1}}});
    EXPECT_TRUE(c.info->loadCpuData().empty());
    const CpuSample sample = c.info->loadCpuData();
    ASSERT_EQ(sample.size(), 4u);
    EXPECT_EQ(sample[0], (CpuRecord{5, 1, 0, 10}));
    EXPECT_EQ(sample[1], (CpuRecord{1, 2, 0, 5}));
    EXPECT_EQ(sample[2], (CpuRecord{1, 1, 1, 1}));
    // 7/3 = 2.33, 4/3 = 1.33, 1/3 = 0.33, 16/3 = 5.33
    EXPECT_EQ(sample[3], (CpuRecord{2, 1, 0, 5}));
}

TEST(LoadCpuData, MachineRecordRoundsHalvesAwayFromZero)
{
    // Sums 3 and 4 over two processors give 2 and 2.
    Collector pair({Ticks{{0, 0, 0, 0}, {0, 0, 0, 0}}, Ticks{{1, 2, 0, 0}, {2, 2, 0, 0}}});
    pair.info->loadCpuData();
    const CpuSample two = pair.info->loadCpuData();
    ASSERT_EQ(two.size(), 3u);
    EXPECT_EQ(two[2][CpuUser], 2);
    EXPECT_EQ(two[2][CpuSystem], 2);

    // A sum of 5 over four processors gives 1; 6 over four (1.5) gives 2.
    Collector quad({Ticks(4, ProcessorTicks{}), Ticks{{2, 3, 0, 0}, {1, 1, 0, 0}, {1, 1, 0, 0}, {1, 1, 0, 0}}});
    quad.info->loadCpuData();
    const CpuSample four = quad.info->loadCpuData();
    ASSERT_EQ(four.size(), 5u);
    EXPECT_EQ(four[4][CpuUser], 1);
    EXPECT_EQ(four[4][CpuSystem], 2);
}

TEST(LoadCpuData, CountersGoingBackwardsGiveZeroNotAHugeValue)
{
    Collector c({Ticks{{100, 100, 100, 100}}, Ticks{{90, 101, 100, 0}}, Ticks{{95, 101, 100, 5}}});
    c.info->loadCpuData();
    const CpuSample backwards = c.info->loadCpuData();
    ASSERT_EQ(backwards.size(), 2u);
    EXPECT_EQ(backwards[0], (CpuRecord{0, 1, 0, 0}));
    // The lowered reading becomes the new base.
    const CpuSample after = c.info->loadCpuData();
    ASSERT_EQ(after.size(), 2u);
    EXPECT_EQ(after[0], (CpuRecord{5, 0, 0, 5}));
}

TEST(LoadCpuData, FullWidthCountersDoNotOverflow)
{
    constexpr std::uint64_t top = UINT64_MAX;
    Collector c({Ticks{{top - 10, 0, 0, 0}}, Ticks{{top, 0, 0, 0}}});
    c.info->loadCpuData();
    EXPECT_EQ(c.info->loadCpuData()[0][CpuUser], 10);
}

TEST(LoadCpuData, FailedReadIsEmptyAndKeepsThePreviousTicks)
{
    Collector c({Ticks{{1, 1, 1, 1}}, std::nullopt, Ticks{}, Ticks{{4, 1, 1, 1}}});
    EXPECT_TRUE(c.info->loadCpuData().empty());
    EXPECT_TRUE(c.info->loadCpuData().empty()); // unreadable
    EXPECT_TRUE(c.info->loadCpuData().empty()); // no processors
    const CpuSample sample = c.info->loadCpuData();
    ASSERT_EQ(sample.size(), 2u);
    EXPECT_EQ(sample[0][CpuUser], 3);
}

TEST(LoadCpuData, ProcessorCountChangeStartsOver)
{
    Collector c({Ticks{{1, 1, 1, 1}, {1, 1, 1, 1}}, Ticks{{5, 1, 1, 1}}, Ticks{{7, 1, 1, 1}}});
    c.info->loadCpuData();
    EXPECT_TRUE(c.info->loadCpuData().empty());
    const CpuSample sample = c.info->loadCpuData();
    ASSERT_EQ(sample.size(), 2u);
    EXPECT_EQ(sample[0][CpuUser], 2);
}

TEST(LoadCpuData, WithoutACpuSourceThereIsNoSample)
{
    LoadSystemInformation info{SourceSet{}};
    EXPECT_TRUE(info.loadCpuData().empty());
    EXPECT_TRUE(info.loadCpuData().empty());
}

TEST(CpuOptionFigures, EachFigureFromItsSource)
{
    auto cpu = std::make_unique<ScriptedCpuSource>();
    cpu->boot = 1; // long ago
    cpu->awake = 3661.0;
    cpu->loads = LoadAverages{0.5, 1.25, 12.345};
    auto processes = std::make_unique<FixedProcessSource>();
    processes->answer = ProcessCounts{812, 301};
    SourceSet sources;
    sources.cpu = std::move(cpu);
    sources.processes = std::move(processes);
    sources.machine = std::make_unique<NamedMachine>();

    const LoadSystemInformation info(std::move(sources));
    const CpuOptionFigures figures = info.cpuOptionFigures();
    ASSERT_TRUE(figures.secondsSinceBoot);
    EXPECT_GT(*figures.secondsSinceBoot, 50.0 * 365 * 86400); // now minus one second after 1970
    EXPECT_EQ(figures.awakeSeconds, 3661.0);
    ASSERT_TRUE(figures.counts);
    EXPECT_EQ(figures.counts->threads, 812);
    EXPECT_EQ(figures.counts->processes, 301);
    ASSERT_TRUE(figures.loads);
    EXPECT_EQ(figures.loads->fifteen, 12.345);
    EXPECT_EQ(figures.hostName, "build-host.local");
}

TEST(CpuOptionFigures, AZeroBootTimeAndMissingSourcesGiveNoFigures)
{
    auto cpu = std::make_unique<ScriptedCpuSource>();
    cpu->boot = 0; // as good as none
    SourceSet sources;
    sources.cpu = std::move(cpu);
    sources.processes = std::make_unique<FixedProcessSource>();

    const LoadSystemInformation info(std::move(sources));
    const CpuOptionFigures figures = info.cpuOptionFigures();
    EXPECT_FALSE(figures.secondsSinceBoot);
    EXPECT_FALSE(figures.awakeSeconds);
    EXPECT_FALSE(figures.counts);
    EXPECT_FALSE(figures.loads);
    EXPECT_FALSE(figures.hostName);
}
