// Alert rules played through synthetic histories, one cycle a second on the test's own clock.
#include "alert_histories.h"
#include "recording_notifier.h"

#include "alerts/alert_monitor.h"

#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <string>

namespace {

AlertRule rule(AlertFigure figure, bool above, double threshold, double clearAt, qint64 hold)
{
    return {figure, above, threshold, clearAt, hold, true};
}

struct AlertMonitorTest : ::testing::Test {
    // Cycles at the whole seconds from, up to and including to, each after feed has appended
    // that second's samples; the count of notifications received at each second is kept.
    void play(int from, int to, const std::function<void(InfoDict&)>& feed)
    {
        for (int s = from; s <= to; ++s) {
            nowMs = s * 1000LL;
            feed(info);
            monitor.cycleFinished(info, {});
            countAt[s] = notifier.received().size();
        }
    }
    static std::function<void(InfoDict&)> cpu(int busy)
    {
        return [busy](InfoDict& i) { appendCpuBusy(i, busy); };
    }

    InfoDict info;
    qint64 nowMs = 0;
    RecordingNotifier notifier;
    AlertMonitor monitor{[this] { return &notifier; }, [this] { return nowMs; }};
    std::map<int, qsizetype> countAt;
};

// One row per kind of figure: a threshold, a value past it, one between the clearing point and
// the threshold, and the clearing point itself.
struct HoldCase {
    const char* name;
    AlertFigure figure;
    std::function<void(InfoDict&, int)> append;
    int threshold, clearAt, past, between;
    const char* title;
    const char* text;
};

void PrintTo(const HoldCase& c, std::ostream* out)
{
    *out << c.name;
}

struct AlertHoldTest : AlertMonitorTest, ::testing::WithParamInterface<HoldCase> {
    std::function<void(InfoDict&)> at(int value) const
    {
        return [append = GetParam().append, value](InfoDict& i) { append(i, value); };
    }
};

TEST_P(AlertHoldTest, FiresOnceAfterExactlyItsHoldAndAgainOnlyAfterClearingAtTheLowerThreshold)
{
    const HoldCase& c = GetParam();
    monitor.setRules({rule(c.figure, true, c.threshold, c.clearAt, 60)});
    play(0, 120, at(c.past));
    EXPECT_EQ(countAt[59], 0);
    EXPECT_EQ(countAt[60], 1);
    EXPECT_EQ(countAt[120], 1) << "a breach that goes on is told once";
    ASSERT_EQ(notifier.received().size(), 1);
    EXPECT_EQ(notifier.received()[0].title, QString::fromUtf8(c.title));
    EXPECT_EQ(notifier.received()[0].text, QString::fromUtf8(c.text));
    EXPECT_TRUE(monitor.engine().moduleAlerting(alertFigureInfo(c.figure).module));

    // Between the clearing point and the threshold the rule neither clears nor fires again.
    play(121, 121, at(c.between));
    play(122, 190, at(c.past));
    EXPECT_EQ(countAt[190], 1);

    // Cleared at the clearing point; a new breach must hold its whole minute again, and a lapse
    // restarts it.
    play(191, 191, at(c.clearAt));
    EXPECT_FALSE(monitor.engine().moduleAlerting(alertFigureInfo(c.figure).module));
    play(192, 219, at(c.past));
    play(220, 220, at(c.threshold));
    play(221, 300, at(c.past));
    EXPECT_EQ(countAt[280], 1);
    EXPECT_EQ(countAt[281], 2);
    EXPECT_EQ(countAt[300], 2);
}

INSTANTIATE_TEST_SUITE_P(
    Figures, AlertHoldTest,
    ::testing::Values(HoldCase{"CpuBusy", AlertFigure::CpuBusy, &appendCpuBusy, 90, 80, 95, 85, "Alert: CPU busy",
                               "Now 95 %, over 90 % for 1 min."},
                      HoldCase{"SwapUsed", AlertFigure::SwapUsed, &appendSwapUsed, 50, 40, 75, 45,
                               "Alert: Swap in use", "Now 75 %, over 50 % for 1 min."}),
    [](const ::testing::TestParamInfo<HoldCase>& row) { return std::string(row.param.name); });

TEST_F(AlertMonitorTest, AnEditedRuleRestartsWhileUnchangedOnesKeepTheirStateAcrossASettingsChange)
{
    const AlertRule busy = rule(AlertFigure::CpuBusy, true, 90, 80, 0);
    const AlertRule hot = rule(AlertFigure::TempAverage, true, 80, 75, 60);
    AlertRule quiet = rule(AlertFigure::NetworkDown, false, 1, 2, 300);
    monitor.setRules({busy, hot, quiet});
    const auto everything = [](InfoDict& i) {
        appendCpuBusy(i, 95);
        appendTempAverage(i, 85);
        appendNetworkDown(i, 0.5);
    };
    play(0, 29, everything);
    EXPECT_EQ(countAt[0], 1) << "a rule without a hold fires at once";
    EXPECT_EQ(countAt[29], 1);

    // Mid-run the network rule's hold is edited, and the list comes back in another order.
    quiet.holdSeconds = 120;
    monitor.setRules({quiet, busy, hot});
    EXPECT_EQ(monitor.engine().phase(0), AlertEngine::Phase::Quiet);
    play(30, 200, everything);
    EXPECT_EQ(countAt[59], 1);
    EXPECT_EQ(countAt[60], 2) << "the unchanged temperature rule kept counting from second 0";
    // The edited rule counts from its first cycle after the edit (second 30), not from second 0,
    // and the fired CPU rule stayed silent throughout.
    EXPECT_EQ(countAt[149], 2);
    EXPECT_EQ(countAt[150], 3);
    EXPECT_EQ(countAt[200], 3);
    EXPECT_EQ(notifier.received()[2].text, QStringLiteral("Now 0.5 KB/s, under 1 KB/s for 2 min."));
    EXPECT_TRUE(monitor.engine().moduleAlerting(ModuleId::Network));

    // An under rule clears at or above its clearing point, not just past its threshold.
    play(201, 201, [](InfoDict& i) { appendNetworkDown(i, 1.5); });
    EXPECT_TRUE(monitor.engine().moduleAlerting(ModuleId::Network));
    play(202, 202, [](InfoDict& i) { appendNetworkDown(i, 2.5); });
    EXPECT_FALSE(monitor.engine().moduleAlerting(ModuleId::Network));
}

TEST_F(AlertMonitorTest, SwitchedOffRulesAndFiguresWithoutSamplesNeverFire)
{
    AlertRule off = rule(AlertFigure::CpuBusy, true, 10, 5, 0);
    off.enabled = false;
    // No fan was ever sampled: the rule has nothing to go on and stays quiet.
    monitor.setRules({off, rule(AlertFigure::FanFastest, false, 100000, 100000, 0)});
    EXPECT_FALSE(monitor.watches(ModuleId::Cpu));
    EXPECT_TRUE(monitor.watches(ModuleId::Fan));
    play(0, 10, cpu(95));
    EXPECT_TRUE(notifier.received().isEmpty());
}

} // namespace
