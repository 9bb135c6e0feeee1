// The controller end to end with a hand-run cycle: launch rules, cycle cadence, histories, timers.
#include "test_app.h"

#include "prefs/pref_keys.h"

#include <QSignalSpy>
#include <QThread>

#include <algorithm>
#include <chrono>
#include <future>
#include <gtest/gtest.h>
#include <thread>

namespace {

using namespace PrefKey;

std::vector<ProcessorTicks> ticks(std::uint64_t base)
{
    return {{base, base, 0, base * 2}, {base * 2, base, 0, base}};
}

} // namespace

TEST(AppLaunch, FirstRunWritesDefaultsOnlyWhenNoVersionIsStored)
{
    TestApp fresh;
    fresh.launch();
    EXPECT_EQ(fresh.store().integerForKey(Cpu_GraphWidth), 3);
    EXPECT_EQ(fresh.store().stringForKey(AppVersion), QStringLiteral(TARVEL_VERSION));
    EXPECT_FALSE(fresh.store().objectForKey(kRebootRegularlyDays).isValid());
    EXPECT_TRUE(fresh.app->chkGeneBool(LaunchCpus));
    EXPECT_FALSE(fresh.app->chkGeneBool(LaunchVNC));

    // Any stored version means not a first run: missing module keys stay missing.
    TestApp upgraded;
    {
        PlistSettingsStore store(upgraded.settingsPath());
        store.setString(AppVersion, QStringLiteral("5.9"));
        store.setBool(DisplayTopWindowAtStartupTmp, true);
        store.synchronize();
    }
    upgraded.launch();
    EXPECT_FALSE(upgraded.store().objectForKey(Cpu_GraphWidth).isValid());
    EXPECT_FALSE(upgraded.app->chkGeneBool(LaunchCpus));
    // The one-shot request turns into the lasting setting.
    EXPECT_FALSE(upgraded.store().objectForKey(DisplayTopWindowAtStartupTmp).isValid());
    EXPECT_TRUE(upgraded.store().boolForKey(DisplayTopWindowAtStartup));
    EXPECT_FALSE(upgraded.store().boolForKey(UpdateAlerting));
}

TEST(AppCycle, TicksWhileACycleRunsAreDroppedNotQueued)
{
    TestApp t;
    t.queueTicks(ticks(100));
    t.launch(); // the launch starts the first cycle
    ASSERT_EQ(t.executor->background.size(), 1u);
    EXPECT_TRUE(t.app->cycleRunning());

    t.app->loadSysInfoTimer();
    t.app->loadSysInfoTimer();
    EXPECT_EQ(t.executor->background.size(), 1u);

    QSignalSpy finished(t.app.get(), &AppDelegate::cycleFinished);
    t.executor->finishCycle();
    EXPECT_EQ(finished.count(), 1);
    EXPECT_FALSE(t.app->cycleRunning());
    t.app->loadSysInfoTimer();
    EXPECT_EQ(t.executor->background.size(), 1u);
}

TEST(AppCycle, CpuHistoryStartsOnSecondReadingAndIsReplacedNotEdited)
{
    TestApp t;
    t.queueTicks(ticks(100));
    t.queueTicks(ticks(110));
    t.launch();
    QSignalSpy redraws(t.app.get(), &AppDelegate::moduleRedrawRequested);

    // The first reading only primes the differences: nothing is kept, yet the module is redrawn.
    t.executor->finishCycle();
    EXPECT_FALSE(t.cpuHistory().exists());
    const auto cpuRedraws = std::count_if(redraws.begin(), redraws.end(), [](const QList<QVariant>& args) {
        return args.at(0).value<ModuleId>() == ModuleId::Cpu && !args.at(1).toBool();
    });
    EXPECT_EQ(cpuRedraws, 1);

    // No history yet, so the CPU is due again at once despite its 2-second interval.
    t.app->loadSysInfoTimer();
    t.executor->finishCycle();
    const History<CpuSample> first = t.cpuHistory();
    ASSERT_EQ(first.size(), 1u);
    ASSERT_EQ(first.back().size(), 3u); // two processors and the machine
    EXPECT_EQ(first.back()[0], (CpuRecord{10, 10, 0, 20}));
    EXPECT_EQ(first.back()[2], (CpuRecord{15, 10, 0, 15}));

    // Cycle 3 is due but its reading fails; cycle 4 is not due: the history object stays.
    t.app->loadSysInfoTimer();
    t.executor->finishCycle();
    t.app->loadSysInfoTimer();
    t.executor->finishCycle();
    EXPECT_EQ(t.cpuHistory().identity(), first.identity());

    // Cycle 5 samples into a new history; the one handed out earlier is unchanged.
    t.queueTicks(ticks(130));
    t.app->loadSysInfoTimer();
    t.executor->finishCycle();
    EXPECT_EQ(t.cpuHistory().size(), 2u);
    EXPECT_NE(t.cpuHistory().identity(), first.identity());
    EXPECT_EQ(first.size(), 1u);
}

TEST(AppCycle, BodyRunsOffTheMainThreadAndResultsArriveOnIt)
{
    TestApp t;
    t.queueTicks(ticks(100));
    t.queueTicks(ticks(120));
    t.launch(/*threaded=*/true);
    QSignalSpy cycles(t.app.get(), &AppDelegate::cycleFinished);
    ASSERT_TRUE(cycles.wait(10000));
    EXPECT_NE(t.cpu->readThread.load(), QThread::currentThreadId());
    t.app->loadSysInfoTimer();
    ASSERT_TRUE(cycles.wait(10000));
    ASSERT_EQ(t.cpuHistory().size(), 1u);
    EXPECT_EQ(t.cpuHistory().back()[0], (CpuRecord{20, 20, 0, 40}));
}

TEST(AppCycle, QuittingWhileTheBodyRunsWaitsForItAndForgetsItsResult)
{
    TestApp t;
    t.queueTicks(ticks(100));
    std::promise<void> entered;
    std::promise<void> release;
    std::shared_future<void> released = release.get_future().share();
    std::atomic<bool> first{true};
    t.beforeCpuRead = [&] {
        if (!first.exchange(false))
            return;
        entered.set_value();
        released.wait();
    };
    t.launch(/*threaded=*/true);
    entered.get_future().wait();
    // The body is inside the collector while the controller goes; it must be let finish, and
    // what it hands back must find nothing torn down under it.
    std::thread releaser([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        release.set_value();
    });
    t.app.reset();
    releaser.join();
    QCoreApplication::processEvents();
}

TEST(AppDdns, FirstUnforcedCheckComesAtTheEndOfThe599thCycle)
{
    TestApp t;
    {
        PlistSettingsStore store(t.settingsPath());
        store.setString(DdnsPropertyString, QStringLiteral("example"));
        store.synchronize();
    }
    t.launch();
    QSignalSpy lookups(t.app.get(), &AppDelegate::ddnsLookupRequested);
    for (int cycle = 1; cycle < 599; ++cycle)
        t.app->checkDdns(false);
    EXPECT_EQ(lookups.count(), 0);
    t.app->checkDdns(false);
    ASSERT_EQ(lookups.count(), 1);
    EXPECT_EQ(t.app->globalIpCheckCount(), 0u);
    for (int cycle = 1; cycle <= 600; ++cycle)
        t.app->checkDdns(false);
    EXPECT_EQ(lookups.count(), 2);

    // Forced: at once, and the stored address is forgotten so the update is pushed.
    t.store().setString(NowGlobalIpAddr, QStringLiteral("192.0.2.1"));
    t.app->forcedExecutionDdns();
    EXPECT_EQ(lookups.count(), 3);
    EXPECT_TRUE(lookups.last().at(0).toBool());
    EXPECT_FALSE(t.store().objectForKey(NowGlobalIpAddr).isValid());
}

TEST(AppDdns, NoListNoLookup)
{
    TestApp t;
    t.launch();
    QSignalSpy lookups(t.app.get(), &AppDelegate::ddnsLookupRequested);
    t.app->checkDdns(true);
    EXPECT_EQ(lookups.count(), 0);
}

TEST(AppReboot, RestartsAfterTheConfiguredNumberOfTenMinuteTicks)
{
    TestApp off;
    off.launch();
    EXPECT_FALSE(off.app->rebootTimerActive());

    TestApp t;
    {
        PlistSettingsStore store(t.settingsPath());
        store.setString(AppVersion, QStringLiteral("6.0.0"));
        store.setInteger(kRebootRegularlyDays, 1);
        store.synchronize();
    }
    t.launch();
    int restarts = 0;
    t.app->setRebootAction([&] { ++restarts; });
    EXPECT_TRUE(t.app->rebootTimerActive());
    for (int tick = 1; tick < 144; ++tick)
        t.app->rebootMe();
    EXPECT_EQ(restarts, 0);
    t.app->rebootMe();
    EXPECT_EQ(restarts, 1);
    EXPECT_EQ(t.app->rebootDaysTimerCount(), 0);
}
