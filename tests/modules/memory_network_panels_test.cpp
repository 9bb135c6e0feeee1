// The drop-down rows of the Memory and Network menus, from fixed samples.
#include "memory_network_defaults.h"
#include "modules/memory/memory_panel_rows.h"
#include "modules/network/network_panel_rows.h"
#include "modules/sample_arrivals.h"

#include <gtest/gtest.h>

namespace {

constexpr std::size_t kMiB = 1024 * 1024;

QStringList rowTexts(const std::vector<MemoryPanelRow>& rows)
{
    QStringList texts;
    for (const MemoryPanelRow& row : rows)
        texts << (row.swatch ? QStringLiteral("■ ") : QString()) + QLatin1String(memoryPartName(row.part)) +
                     QLatin1Char(' ') + row.size;
    return texts;
}

NetworkBase exampleBase()
{
    NetworkBase base;
    base["eth0"] = {InterfaceIdentity{"Intel I219-V", "Ethernet"}, InterfaceAddresses{"192.168.1.5", "fe80::1"},
                    NicFacts{"Active", 1000000000, std::nullopt, std::nullopt, "A0:B1:C2:D3:E4:F5"}};
    base["wlan0"] = {InterfaceIdentity{"wlan0", "Wi-Fi"}, std::nullopt, NicFacts{"Inactive", {}, {}, {}, {}}};
    base["lo"] = {InterfaceIdentity{"lo", "Loopback"}, InterfaceAddresses{"127.0.0.1", std::nullopt},
                  NicFacts{"Unknown", {}, {}, {}, {}}};
    return base;
}

} // namespace

TEST(MemoryPanel, PartsOfBothViewsWithSwatchesForThePictures)
{
    const MemorySample sample{100, 300, 200, 250, 7, 3, -1, 50, 350, 150};
    EXPECT_EQ(rowTexts(memoryPanelRows(sample, 1000, kMiB, true, 2)),
              QStringList({"■ Wired 100.0MB", "■ Active 300.0MB", "■ Inactive 200.0MB", "■ Free 250.0MB",
                           "Application 350.0MB", "Cached Files 150.0MB", "■ Compressed 50.0MB", "■ Other 100.0MB"}));
    MemorySample noZswap = sample;
    noZswap[MemoryCompressor] = -1;
    EXPECT_EQ(rowTexts(memoryPanelRows(noZswap, 1000, kMiB, false, 2)),
              QStringList({"■ Wired 100.0MB", "Active 300.0MB", "Inactive 200.0MB", "■ Free 250.0MB",
                           "■ Application 350.0MB", "■ Cached Files 150.0MB", "■ Compressed ---", "■ Other 150.0MB"}));
}

TEST(MemoryPanel, PagingRatesAndSwap)
{
    const MemorySample before{0, 0, 0, 0, 10, 4, -1, -1, 0, 0};
    MemorySample after = before;
    after[MemoryPageIns] = 30;
    after[MemoryPageOuts] = 2; // a counter that went back counts as none
    const auto history = historyOf<MemorySample>({before, after});
    EXPECT_EQ(memoryPageRateText(history, MemoryPageIns, 2), QStringLiteral("10 pages/s"));
    EXPECT_EQ(memoryPageRateText(history, MemoryPageOuts, 2), QStringLiteral("0 pages/s"));
    EXPECT_EQ(memoryPageRateText(historyOf<MemorySample>({after}), MemoryPageIns, 2), QStringLiteral("---"));
    after[MemoryPageIns] = -1;
    EXPECT_EQ(memoryPageRateText(historyOf<MemorySample>({before, after}), MemoryPageIns, 2), QStringLiteral("---"));

    const std::vector<SwapArea> areas{{"/swapfile", "file", 2 * 1024 * 1024, 512 * 1024},
                                      {"/dev/sda3", "partition", 1024, 0}};
    EXPECT_EQ(swapAreaTexts(areas, 1),
              QStringList({"/swapfile (file): 512.0MB of 2.00GB", "/dev/sda3 (partition): 0.0MB of 1.0MB"}));
    EXPECT_EQ(swapUsedText({}, 1), QStringLiteral("---"));
}

TEST(NetworkPanel, TrafficFiguresFromTheHistory)
{
    // Two-second samples, 4 MiB sent over the second; then the menu opened and the newest
    // sample covers one second: 2 MiB sent, 1 MiB received.
    std::vector<NetworkSample> samples{{1000, 1000, 2.0, {}}, {1000 + (4 << 20), 1000, 2.0, {}}};
    samples.push_back({samples.back().toUp + (2 << 20), samples.back().toDw + (1 << 20), 1.0, {}});
    const History<NetworkSample> history = historyOf(std::move(samples));
    const NetworkPanelFigures figures = networkPanelFigures(history, false);
    EXPECT_EQ(figures.nowUp, QStringLiteral("2.0MB/s"));
    EXPECT_EQ(figures.nowDw, QStringLiteral("1024.0KB/s"));
    EXPECT_EQ(figures.avgUp, QStringLiteral("1.2MB/s")); // 6 MiB over the 5 seconds of three samples
    // Each sample over its own span: the two-second one is no faster than the one-second one.
    EXPECT_EQ(figures.peakUp, QStringLiteral("2.0MB/s"));
    EXPECT_EQ(figures.totalUp, QStringLiteral("6.0MB"));
    EXPECT_EQ(networkPanelFigures(history, true).nowUp, QStringLiteral("16.0Mbps"));
    EXPECT_EQ(networkPanelFigures(History<NetworkSample>(), false), NetworkPanelFigures{});
}

TEST(NetworkPanel, InterfaceRowsOfActiveLinksOrAll)
{
    const NetworkBase base = exampleBase();
    const QHash<QString, QString> hosts{{QStringLiteral("192.168.1.5"), QStringLiteral("desk.example")}};
    const auto active = networkInterfaceRows(base, false, hosts);
    ASSERT_EQ(active.size(), 1U);
    EXPECT_EQ(active[0].title, QStringLiteral("Intel I219-V (eth0)"));
    const QList<QPair<QString, QString>> lines{{"Type", "Ethernet"},
                                               {"IPv4", "192.168.1.5 (desk.example)"},
                                               {"IPv6", "fe80::1"},
                                               {"Link", "Active, 1 Gbps"},
                                               {"MAC Address", "A0:B1:C2:D3:E4:F5"}};
    EXPECT_EQ(active[0].lines, lines);

    const auto all = networkInterfaceRows(base, true);
    ASSERT_EQ(all.size(), 3U);
    EXPECT_EQ(all[1].title, QStringLiteral("lo"));
    EXPECT_EQ(all[2].lines.back(), (QPair<QString, QString>{"Link", "Inactive"}));
    EXPECT_EQ(linkSpeedText(2500000000), QStringLiteral("2.5 Gbps"));
    EXPECT_EQ(linkSpeedText(100000000), QStringLiteral("100 Mbps"));
}

TEST(SampleArrivals, WholeSecondsBetweenTheTwoNewestSamples)
{
    using namespace std::chrono;
    SampleArrivals arrivals;
    const SampleArrivals::Clock::time_point start{};
    const int lists[3] = {};
    arrivals.note(&lists[0], start);
    EXPECT_DOUBLE_EQ(arrivals.secondsBetweenNewest(5), 5); // one arrival: the interval setting
    arrivals.note(&lists[0], start + seconds(9));          // the same list: no new sample
    arrivals.note(&lists[1], start + milliseconds(2900));
    EXPECT_DOUBLE_EQ(arrivals.secondsBetweenNewest(5), 3);
    arrivals.note(&lists[2], start + milliseconds(3200));
    EXPECT_DOUBLE_EQ(arrivals.secondsBetweenNewest(5), 1);
}
