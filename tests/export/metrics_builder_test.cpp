// The exported counters across cycles: summed, never going back, and only for live modules.
#include "export/metrics_builder.h"
#include "export_test_figures.h"

#include <gtest/gtest.h>

namespace {

// The value of the series whose labels include all of want; NaN when there is none.
double valueOf(const MetricFamilies& families, const char* name,
               std::vector<std::pair<QByteArray, QByteArray>> want = {})
{
    for (const MetricFamily& family : families) {
        if (family.name != name)
            continue;
        for (const MetricPoint& point : family.points) {
            bool all = true;
            for (const auto& label : want)
                all = all && std::find(point.labels.begin(), point.labels.end(), label) != point.labels.end();
            if (all)
                return point.value;
        }
    }
    return std::nan("");
}

void appendCpu(ExportFigures& figures, CpuSample sample)
{
    const std::size_t slot = moduleIndex(ModuleId::Cpu);
    figures.info.setHistory(slot, figures.info.history<CpuSample>(slot).appended(std::move(sample)));
}

} // namespace

TEST(MetricsBuilder, CpuSecondsSumEachNewSampleOnce)
{
    MetricsBuilder builder;
    ExportFigures figures = fullTestFigures();
    const auto user0 = [](const SharedMetricFamilies& f) {
        return valueOf(*f, "tarvel_cpu_seconds", {{"cpu", "0"}, {"mode", "user"}});
    };
    EXPECT_DOUBLE_EQ(user0(builder.update(figures)), 0.5);
    // A cycle that did not sample the CPU hands the same history again: nothing is added.
    EXPECT_DOUBLE_EQ(user0(builder.update(figures)), 0.5);
    appendCpu(figures, {{100, 0, 0, 0}, {0, 0, 0, 100}, {50, 0, 0, 50}});
    const SharedMetricFamilies after = builder.update(figures);
    EXPECT_DOUBLE_EQ(user0(after), 1.5);
    EXPECT_DOUBLE_EQ(valueOf(*after, "tarvel_cpu_seconds", {{"cpu", "1"}, {"mode", "idle"}}), 1.75);
    // The menu's figure is the newest sample's share; the machine's record is labelled "all".
    EXPECT_DOUBLE_EQ(valueOf(*after, "tarvel_cpu_usage_ratio", {{"cpu", "all"}, {"mode", "user"}}), 0.5);
}

TEST(MetricsBuilder, KernelCounterRestartsNeverGoBack)
{
    MetricsBuilder builder;
    ExportFigures figures = fullTestFigures();
    const auto eth0 = [&] {
        return valueOf(*builder.update(figures), "tarvel_network_receive_bytes", {{"interface", "eth0"}});
    };
    EXPECT_DOUBLE_EQ(eth0(), 10000);
    (*figures.extras.interfaces)[1].receivedBytes = 12000;
    EXPECT_DOUBLE_EQ(eth0(), 12000);
    // The interface came back: its counter starts again from zero, the export from its sum.
    (*figures.extras.interfaces)[1].receivedBytes = 100;
    EXPECT_DOUBLE_EQ(eth0(), 12100);
    (*figures.extras.interfaces)[1].receivedBytes = 300;
    EXPECT_DOUBLE_EQ(eth0(), 12300);
}

TEST(MetricsBuilder, FiguresAsTheModulesShowThem)
{
    MetricsBuilder builder;
    const SharedMetricFamilies f = builder.update(fullTestFigures());
    EXPECT_DOUBLE_EQ(valueOf(*f, "tarvel_memory_bytes", {{"kind", "free"}}), 400.0 * 4096);
    // A figure the system does not have (-1) is left out, not exported as a negative size.
    EXPECT_TRUE(std::isnan(valueOf(*f, "tarvel_memory_bytes", {{"kind", "speculative"}})));
    EXPECT_DOUBLE_EQ(valueOf(*f, "tarvel_memory_paged_in_bytes"), 10.0 * 4096);
    EXPECT_DOUBLE_EQ(valueOf(*f, "tarvel_swap_used_bytes"), 4096);
    EXPECT_DOUBLE_EQ(valueOf(*f, "tarvel_network_upload_bytes_per_second"), 1000);
    EXPECT_DOUBLE_EQ(valueOf(*f, "tarvel_disk_read_bytes_per_second", {{"device", "sda"}}), 4096);
    // A device without an earlier sample has counters but no rate yet.
    EXPECT_DOUBLE_EQ(valueOf(*f, "tarvel_disk_written_bytes", {{"device", "nvme0n1"}}), 2);
    EXPECT_TRUE(std::isnan(valueOf(*f, "tarvel_disk_write_bytes_per_second", {{"device", "nvme0n1"}})));
    EXPECT_DOUBLE_EQ(valueOf(*f, "tarvel_temperature_celsius", {{"sensor", "Odd\nname"}}), -3);
    EXPECT_DOUBLE_EQ(valueOf(*f, "tarvel_load15"), 0.125);
}

TEST(MetricsBuilder, ModulesSwitchedOffAreLeftOut)
{
    MetricsBuilder builder;
    ExportFigures figures = fullTestFigures();
    figures.switchedOn.fill(false);
    EXPECT_TRUE(builder.update(figures)->empty());
}
