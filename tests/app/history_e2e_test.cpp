// The long-term history in the running controller: what each cycle hands it, and the menus' past ranges.
#include "recording_status_bar.h"
#include "support/fixture_paths.h"
#include "test_app.h"

#include "app/front_ends/desktop_parts.h"
#include "app/history_feed.h"
#include "history/history_reader.h"
#include "modules/history_range_choice.h"
#include "modules/menu_module.h"
#include "prefs/pref_keys.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QLabel>
#include <QMenu>
#include <QWidgetAction>
#include <gtest/gtest.h>

#include <map>

namespace {

using namespace PrefKey;

// Every module on and sampled every cycle.
void everyModuleEverySecond(SettingsStore& store)
{
    for (const char* key : {LaunchCpus, LaunchMemo, LaunchNetw, LaunchDisk, LaunchVolume, LaunchTemp, LaunchFans})
        store.setBool(QLatin1String(key), true);
    for (const char* key : {Cpu_UpdateInterval, Memory_UpdateInterval, Network_UpdateInterval, Disk_UpdateInterval,
                            Vlms_UpdateInterval, Temp_UpdateInterval, Fan_UpdateInterval})
        store.setInteger(QLatin1String(key), 1);
}

// Answers every read with one series of two minutes, a turn of the event loop later.
class CountingReader final : public HistoryReader {
public:
    void read(const QString& module, Resolution resolution, std::int64_t seconds,
              std::function<void(const QList<SeriesHistory>&)> done) override
    {
        asked.push_back({module, resolution, seconds});
        const std::int64_t minute = QDateTime::currentSecsSinceEpoch() / 60;
        const QList<SeriesHistory> answer{
            {module, "busy", FigureUnit::Percent, {{minute - 2, 60, 50, 10, 90}, {minute - 1, 60, 60, 20, 95}}}};
        QMetaObject::invokeMethod(
            qApp, [done, answer] { done(answer); }, Qt::QueuedConnection);
    }
    struct Asked {
        QString module;
        Resolution resolution;
        std::int64_t seconds;
    };
    std::vector<Asked> asked;
};

// The menu's widget rows: the range choice, and the graph label right after it.
std::pair<QWidget*, QLabel*> choiceAndGraph(QMenu& menu)
{
    const QList<QAction*> actions = menu.actions();
    for (qsizetype i = 0; i + 1 < actions.size(); ++i) {
        auto* row = qobject_cast<QWidgetAction*>(actions[i]);
        if (row != nullptr && qobject_cast<HistoryRangeChoice*>(row->defaultWidget()) != nullptr)
            return {row->defaultWidget(),
                    qobject_cast<QLabel*>(qobject_cast<QWidgetAction*>(actions[i + 1])->defaultWidget())};
    }
    return {nullptr, nullptr};
}

void click(QWidget& choice, const QString& text)
{
    for (QAbstractButton* button : choice.findChildren<QAbstractButton*>()) {
        if (button->text() == text)
            button->click();
    }
}

bool holdsColor(const QImage& image, QRgb rgb)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if ((image.pixel(x, y) & 0xffffff) == (rgb & 0xffffff))
                return true;
        }
    }
    return false;
}

} // namespace

TEST(HistoryFeed, EachCycleHandsOnTheHeadlineFiguresOfTheModulesItSampled)
{
    if (sharedProcfsTree().empty())
        GTEST_SKIP() << "the shared procfs tree is absent";
    TestApp t;
    t.root = sharedProcfsTree();
    t.writeSettings(everyModuleEverySecond);
    std::vector<QList<Figure>> cycles;
    t.beforeLaunch = [&cycles](AppDelegate& app) {
        app.setCycleObserver([&cycles](LoadSystemInformation& loadInfo, const CycleOutput& output) {
            cycles.push_back(sampledFigures(loadInfo, output));
        });
    };
    // One processor, then 30 user, 10 system and 60 idle ticks later.
    t.queueTicks({{100, 100, 0, 100}});
    t.queueTicks({{130, 110, 0, 160}});
    t.launch();
    t.executor->finishCycle();
    t.app->loadSysInfoTimer();
    t.executor->finishCycle();
    ASSERT_EQ(cycles.size(), 2u);
    std::map<QString, std::map<QString, double>> second;
    for (const Figure& figure : cycles[1])
        second[figure.module][figure.series] = figure.value;
    EXPECT_DOUBLE_EQ(second["cpu"]["busy"], 40);
    EXPECT_GT(second["memory"]["used"], 0);
    EXPECT_TRUE(second["memory"].count("swap used"));
    // Rates take two samples: the first cycle has none.
    EXPECT_TRUE(second["network"].count("up") && second["network"].count("down"));
    EXPECT_FALSE(second["disk"].empty());
    for (const Figure& figure : cycles[0])
        EXPECT_NE(figure.module, "network") << figure.series.toStdString();
    for (const auto& [series, used] : second["volume"])
        EXPECT_TRUE(used >= 0 && used <= 100) << series.toStdString();
}

TEST(HistoryMenu, APastRangeIsReadOnlyWhileTheMenuIsOpenAndDrawnInTheGraphsPlace)
{
    RecordingStatusBar bar; // outlives the items the controller makes in it
    TestApp t;
    t.writeSettings(everyModuleEverySecond);
    CountingReader reader;
    t.beforeLaunch = [&reader](AppDelegate& app) { app.setHistoryReader(&reader); };
    for (int i = 0; i < 3; ++i)
        t.queueTicks({{100u + 10u * i, 0, 0, 100u + 10u * i}});
    t.launchWithBar(bar);
    t.executor->finishCycle();
    MenuModule& cpu = *menuModule(*t.app, ModuleId::Cpu);
    const auto [choice, graph] = choiceAndGraph(*cpu.menu());
    ASSERT_NE(choice, nullptr);
    ASSERT_NE(graph, nullptr);

    // Chosen while closed: nothing is read until the menu opens.
    click(*choice, QStringLiteral("24 h"));
    QCoreApplication::processEvents();
    EXPECT_TRUE(reader.asked.empty());
    cpu.menuWillOpen();
    ASSERT_EQ(reader.asked.size(), 1u);
    EXPECT_EQ(reader.asked[0].module, "cpu");
    EXPECT_EQ(reader.asked[0].resolution, Resolution::Minute);
    EXPECT_EQ(reader.asked[0].seconds, 24 * 3600);
    QCoreApplication::processEvents();
    EXPECT_TRUE(holdsColor(graph->pixmap().toImage(), qRgb(0x1f, 0x77, 0xb4))) << "the series' line";

    // The cycles of an open menu redraw from what was read; a closed menu reads nothing.
    t.app->loadSysInfoTimer();
    t.executor->finishCycle();
    cpu.menuDidClose();
    t.app->loadSysInfoTimer();
    t.executor->finishCycle();
    EXPECT_EQ(reader.asked.size(), 1u);

    // The week is read per hour; back to live, the live graph returns and nothing is read.
    cpu.menuWillOpen();
    click(*choice, QStringLiteral("7 days"));
    ASSERT_EQ(reader.asked.size(), 3u);
    EXPECT_EQ(reader.asked[2].resolution, Resolution::Hour);
    click(*choice, QStringLiteral("Live"));
    QCoreApplication::processEvents();
    EXPECT_FALSE(holdsColor(graph->pixmap().toImage(), qRgb(0x1f, 0x77, 0xb4)));
    EXPECT_EQ(reader.asked.size(), 3u);
}
