// Alerts in the running controller: swap usage collected by the real cycle from a fixture tree
// only while a rule wants it, and the mark a firing rule puts on its module's picture.
#include "recording_status_bar.h"
#include "support/fixture_paths.h"
#include "test_app.h"

#include "alerts/alert_rule_store.h"
#include "collect/memory_sample.h"
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
