// Alerts in the running controller: swap usage collected by the real cycle from a fixture tree
// only while a rule wants it, the mark a firing rule puts on its module's picture, and the
// export's memory figures taken from the same cycle.
#include "recording_status_bar.h"
#include "support/fixture_paths.h"
#include "test_app.h"

#include "alerts/alert_rule_store.h"
#include "collect/memory_sample.h"
#include "collect/memory_source.h"
#include "prefs/pref_keys.h"

#include <QFile>
#include <gtest/gtest.h>

#include <filesystem>

namespace {

namespace fs = std::filesystem;

// The device pixel just inside the picture's top-right corner.
QRgb cornerPixel(const QImage& image)
{
    return image.pixel(image.width() - 2, 1);
}

void writeSwaps(const fs::path& root, int usedKb)
{
    QFile swaps(QString::fromStdString((root / "proc/swaps").string()));
    ASSERT_TRUE(swaps.open(QIODevice::WriteOnly | QIODevice::Truncate));
    swaps.write(QStringLiteral("Filename\tType\tSize\tUsed\tPriority\n/dev/zram1 partition\t4194300\t%1\t100\n")
                    .arg(usedKb)
                    .toLatin1());
}

// Only the Memory item, sampled every second, with the given alert rules.
struct MemoryOnly : TestApp {
    explicit MemoryOnly(const QList<AlertRule>& rules)
    {
        root = fs::path(dir.path().toStdString()) / "tree";
        fs::create_directories(root / "proc");
        // The captured tree's memory counters, and a swap list the test rewrites between cycles.
        fs::copy_file(sharedProcfsTree() / "proc/meminfo", root / "proc/meminfo");
        fs::copy_file(projectFixtures() / "linux/storage-machine/proc/swaps", root / "proc/swaps");
        writeSettings([&rules](SettingsStore& store) {
            using namespace PrefKey;
            for (const char* key : {LaunchCpus, LaunchNetw, LaunchDisk, LaunchVolume, LaunchTemp, LaunchFans})
                store.setBool(QLatin1String(key), false);
            store.setBool(QLatin1String(LaunchMemo), true);
            store.setInteger(QLatin1String(Memory_UpdateInterval), 1);
            AlertRuleStore::save(store, rules);
        });
    }
    void cycle()
    {
        app->loadSysInfoTimer();
        executor->finishCycle();
    }
    History<SwapUsage> swapHistory() const { return app->infoDict().history<SwapUsage>(kSwapHistorySlot); }
};

// The tree's memory source, counting how often the swap list and the counters are read.
class CountingMemorySource final : public MemorySource {
public:
    explicit CountingMemorySource(std::unique_ptr<MemorySource> inner)
        : inner_(std::move(inner))
    {}
    std::optional<NamedCounters> memoryInfo() override { return inner_->memoryInfo(); }
    std::optional<NamedCounters> vmStatistics() override { return inner_->vmStatistics(); }
    std::optional<MemoryCounters> memoryCounters(bool withPaging) override
    {
        ++counterReads;
        return inner_->memoryCounters(withPaging);
    }
    std::optional<std::vector<SwapArea>> swapAreas() override
    {
        ++swapReads;
        return inner_->swapAreas();
    }
    std::size_t pageSize() override { return inner_->pageSize(); }
    std::optional<bool> zswapEnabled() override { return inner_->zswapEnabled(); }
    std::optional<std::uint64_t> hibernationImageSize() override { return inner_->hibernationImageSize(); }

    int counterReads = 0;
    int swapReads = 0;

private:
    std::unique_ptr<MemorySource> inner_;
};

// Exports every cycle's figures and counts the memory reads in reads.
void countExportedReads(TestApp& t, CountingMemorySource*& reads)
{
    t.adjustSources = [&reads](SourceSet& sources) {
        auto counting = std::make_unique<CountingMemorySource>(std::move(sources.memory));
        reads = counting.get();
        sources.memory = std::move(counting);
    };
    t.beforeLaunch = [](AppDelegate& app) { app.setExportWanted(true); };
}

void setMemTotal(const fs::path& root, int kb)
{
    QFile meminfo(QString::fromStdString((root / "proc/meminfo").string()));
    ASSERT_TRUE(meminfo.open(QIODevice::ReadWrite));
    QByteArray text = meminfo.readAll();
    const qsizetype end = text.indexOf('\n');
    text.replace(0, end, QStringLiteral("MemTotal:       %1 kB").arg(kb).toLatin1());
    meminfo.resize(0);
    meminfo.seek(0);
    meminfo.write(text);
}

TEST(AlertCycle, SwapIsReadOnlyForARuleThatWatchesIt)
{
    if (sharedProcfsTree().empty())
        GTEST_SKIP() << "the shared procfs tree is absent";
    RecordingStatusBar bar;
    // The first run's rules, none switched on, and no long-term history: no swap read at all.
    MemoryOnly quiet(AlertRuleStore::offeredRules());
    quiet.launchWithBar(bar);
    quiet.executor->finishCycle();
    quiet.cycle();
    EXPECT_EQ(moduleHistory<MemorySample>(quiet.app->infoDict(), ModuleId::Memory).size(), 2u);
    EXPECT_FALSE(quiet.app->infoDict().exists(kSwapHistorySlot));
}

TEST(AlertCycle, TheExportTakesTheMemoryFiguresOfItsOwnCycleReadOnce)
{
    if (sharedProcfsTree().empty())
        GTEST_SKIP() << "the shared procfs tree is absent";
    RecordingStatusBar bar;
    // The Memory step reads the counters and, for the rule, the swap list: the export reuses both.
    MemoryOnly sampled({{AlertFigure::SwapUsed, true, 1, 0.5, 0, true}});
    CountingMemorySource* reads = nullptr;
    countExportedReads(sampled, reads);
    sampled.launchWithBar(bar);
    writeSwaps(sampled.root, 63200);
    sampled.executor->finishCycle();
    ASSERT_TRUE(sampled.app->exportExtras() && sampled.app->exportExtras()->swap);
    EXPECT_EQ(sampled.app->exportExtras()->swap->used, 63200LL * 1024);
    EXPECT_EQ(*sampled.app->exportExtras()->swap, sampled.swapHistory().back());
    EXPECT_EQ(reads->swapReads, 1);
    EXPECT_EQ(reads->counterReads, 1);

    // With the Memory item off nothing else reads them: the export does, every cycle afresh.
    MemoryOnly unsampled({});
    unsampled.writeSettings([](SettingsStore& store) {
        for (const char* key : {PrefKey::LaunchCpus, PrefKey::LaunchMemo, PrefKey::LaunchNetw, PrefKey::LaunchDisk,
                                PrefKey::LaunchVolume, PrefKey::LaunchTemp, PrefKey::LaunchFans})
            store.setBool(QLatin1String(key), false);
    });
    countExportedReads(unsampled, reads);
    unsampled.launchWithBar(bar);
    unsampled.executor->finishCycle();
    setMemTotal(unsampled.root, 2048000);
    writeSwaps(unsampled.root, 1000);
    unsampled.cycle();
    const std::optional<ExportExtras>& extras = unsampled.app->exportExtras();
    ASSERT_TRUE(extras && extras->memory && extras->swap);
    EXPECT_EQ(extras->memory->totalPages * static_cast<qint64>(reads->pageSize()), 2048000LL * 1024);
    EXPECT_EQ(extras->swap->used, 1000LL * 1024);
    EXPECT_EQ(reads->swapReads, 2);
    EXPECT_EQ(reads->counterReads, 2);
}

TEST(AlertCycle, AFiringSwapRuleMarksTheMemoryPictureUntilItClears)
{
    if (sharedProcfsTree().empty())
        GTEST_SKIP() << "the shared procfs tree is absent";
    RecordingStatusBar bar;
    // The tree's swap is 63200 of 4194300 KB in use: 1.5 %.
    MemoryOnly t({{AlertFigure::SwapUsed, true, 1, 0.5, 0, true}});
    t.launchWithBar(bar);
    writeSwaps(t.root, 0);
    t.executor->finishCycle();
    ASSERT_EQ(t.swapHistory().size(), 1u);
    EXPECT_EQ(t.swapHistory().back(), (SwapUsage{4194300LL * 1024, 4194300LL * 1024, 0}));
    EXPECT_EQ(t.app->alertMonitor().engine().phase(0), AlertEngine::Phase::Quiet);
    const QImage unmarked = bar.images.value(QStringLiteral("Memory"));
    ASSERT_FALSE(unmarked.isNull());
    EXPECT_NE(cornerPixel(unmarked), qRgb(255, 0, 0));

    writeSwaps(t.root, 63200);
    t.cycle();
    ASSERT_EQ(t.app->alertMonitor().engine().phase(0), AlertEngine::Phase::Fired);
    const QImage marked = bar.images.value(QStringLiteral("Memory"));
    ASSERT_EQ(marked.size(), unmarked.size());
    EXPECT_EQ(cornerPixel(marked), qRgb(255, 0, 0));
    // Only the corner: the figures' part of the picture is as it was.
    const QRect figures(0, 0, unmarked.width() / 2, unmarked.height());
    EXPECT_EQ(marked.copy(figures).convertToFormat(QImage::Format_ARGB32),
              unmarked.copy(figures).convertToFormat(QImage::Format_ARGB32));

    // Between the clearing point and the threshold (0.75 %) the mark stays; at 0.48 % it goes,
    // and the picture is the plain one again.
    writeSwaps(t.root, 31457);
    t.cycle();
    EXPECT_EQ(cornerPixel(bar.images.value(QStringLiteral("Memory"))), qRgb(255, 0, 0));
    writeSwaps(t.root, 20000);
    t.cycle();
    EXPECT_EQ(t.app->alertMonitor().engine().phase(0), AlertEngine::Phase::Quiet);
    EXPECT_EQ(bar.images.value(QStringLiteral("Memory")).convertToFormat(QImage::Format_ARGB32),
              unmarked.convertToFormat(QImage::Format_ARGB32));
}

} // namespace
