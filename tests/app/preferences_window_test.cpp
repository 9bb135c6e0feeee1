// The preferences window driven offscreen: switches, order, colour bursts, fonts, persistence.
#include "recording_status_bar.h"
#include "test_app.h"

#include "app/appearance_watcher.h"
#include "app/front_ends/desktop_parts.h"
#include "modules/general/top_tab_color_section.h"
#include "modules/general/top_tab_theme_section.h"
#include "modules/general/top_tab_view_controller.h"
#include "preferences/color_well.h"
#include "preferences/element_order_list.h"
#include "preferences/preferences_window.h"
#include "prefs/plist_io.h"
#include "prefs/pref_keys.h"
#include "prefs/theme_color.h"
#include "prefs/theme_files.h"
#include "prefs/theme_keys.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QScreen>
#include <QSpinBox>
#include <QTest>
#include <gtest/gtest.h>

namespace {

using namespace PrefKey;

// Longer than the 0.25 s hand-over of a notification.
constexpr int kSettleMs = 400;

struct PreferencesTest : ::testing::Test {
    void SetUp() override { launch(); }
    // Launches and lets the launch's own cycle finish: notifications wait for running cycles.
    void launch()
    {
        t.launchWithBar(bar);
        t.executor->finishCycle();
        t.app->openPreferenceTab(0);
    }

    TopTabViewController& top()
    {
        auto* tab = qobject_cast<TopTabViewController*>(preferencesWindow(*t.app)->tab(0));
        EXPECT_NE(tab, nullptr);
        return *tab;
    }
    QSpinBox* rebootDays() { return top().findChild<QSpinBox*>(QLatin1String(kRebootRegularlyDays)); }
    void switchModule(qint64 code, bool on)
    {
        ElementOrderList* list = top().moduleList();
        for (int row = 0; row < list->count(); ++row) {
            if (list->order().at(row) == code)
                list->item(row)->setCheckState(on ? Qt::Checked : Qt::Unchecked);
        }
    }
    QVariantMap themeFile() const
    {
        return PlistIo::readDictionary(TvlClasses::retThemeFilePath(QLatin1String(TvlClasses::kNowThemeFileName)))
            .value_or(QVariantMap());
    }

    RecordingStatusBar bar;
    TestApp t;
};

TEST_F(PreferencesTest, WindowHasOneTabPerModuleTitledWithTheApplication)
{
    PreferencesWindow* window = preferencesWindow(*t.app);
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->tabCount(), 9);
    EXPECT_TRUE(window->windowTitle().endsWith(QStringLiteral(" Preferences")));
    // Closing the window frees it; opening builds it again, on the tab asked for.
    window->close();
    EXPECT_TRUE(QTest::qWaitFor([&] { return preferencesWindow(*t.app) == nullptr; }, 5000));
    t.app->openPreferenceTab(1);
    ASSERT_NE(preferencesWindow(*t.app), nullptr);
    EXPECT_EQ(preferencesWindow(*t.app)->currentTab(), 1);
    EXPECT_TRUE(preferencesWindow(*t.app)->isVisible());

    // Escape and the desktop's close keys close it too.
    for (const QKeySequence& keys : {QKeySequence(Qt::Key_Escape), QKeySequence(QKeySequence::Close)}) {
        t.app->openPreferenceTab(1);
        window = preferencesWindow(*t.app);
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window));
        QTest::keySequence(window, keys);
        EXPECT_TRUE(QTest::qWaitFor([&] { return preferencesWindow(*t.app) == nullptr; }, 5000))
            << keys.toString().toStdString();
    }
}

TEST_F(PreferencesTest, SwitchingCpuOffAndOnRemovesAndRestoresItsItemAndElements)
{
    // CPU comes first in the first-run order, General last; the others stand between them.
    ASSERT_EQ(bar.shown.first(), QStringLiteral("CPU"));
    ASSERT_EQ(bar.shown.last(), QStringLiteral("General"));
    const QStringList others = bar.shown.mid(1);
    t.store().setBool(Cpu_Display_LevelBar, true);
    switchModule(1, false);
    QTest::qWait(kSettleMs);
    EXPECT_EQ(bar.shown, others);
    EXPECT_FALSE(t.store().boolForKey(Cpu_Display_Graph));

    switchModule(1, true);
    QTest::qWait(kSettleMs);
    EXPECT_EQ(bar.shown, QStringList{QStringLiteral("CPU")} + others);
    // The elements the user had come back, not the first-run ones.
    EXPECT_TRUE(t.store().boolForKey(Cpu_Display_LevelBar));
    EXPECT_TRUE(t.store().boolForKey(Cpu_Display_Graph));
}

TEST_F(PreferencesTest, ANotificationDuringACycleWaitsForItsRedrawStep)
{
    t.app->loadSysInfoTimer();
    ASSERT_TRUE(t.app->cycleRunning());
    switchModule(1, false);
    QTest::qWait(kSettleMs * 2);
    EXPECT_TRUE(bar.shown.contains(QStringLiteral("CPU")));
    t.executor->finishCycle();
    QTest::qWait(kSettleMs);
    EXPECT_FALSE(bar.shown.contains(QStringLiteral("CPU")));
}

TEST_F(PreferencesTest, MovingAModuleReordersTheBar)
{
    // First-run order: CPU, Memory, Network, ... with General at the right end.
    ASSERT_GE(bar.shown.size(), 4);
    ASSERT_EQ(bar.shown.mid(0, 3),
              (QStringList{QStringLiteral("CPU"), QStringLiteral("Memory"), QStringLiteral("Network")}));
    top().moduleList()->moveEntry(0, 2);
    QTest::qWait(kSettleMs);
    const QVariantList order = t.store().arrayForKey(TopItemSortArray);
    ASSERT_EQ(order.size(), 8);
    EXPECT_EQ(order.at(2).toLongLong(), 1);
    EXPECT_EQ(bar.shown.mid(0, 3),
              (QStringList{QStringLiteral("Memory"), QStringLiteral("Network"), QStringLiteral("CPU")}));
    EXPECT_EQ(bar.shown.last(), QStringLiteral("General"));
}

TEST_F(PreferencesTest, AltUpMovesTheSameModuleAgainAfterTheSettingsCameBack)
{
    ElementOrderList* list = top().moduleList();
    list->setCurrentRow(2); // Network
    for (int press = 0; press < 2; ++press) {
        QTest::keyClick(list, Qt::Key_Up, Qt::AltModifier);
        QTest::qWait(kSettleMs); // the change goes round and the list is filled again
    }
    EXPECT_EQ(bar.shown.first(), QStringLiteral("Network"));
    ASSERT_NE(list->currentItem(), nullptr);
    EXPECT_EQ(list->currentRow(), 0);
}

TEST_F(PreferencesTest, ABurstOfColourChangesIsWrittenOnceAndReloadedOnce)
{
    int writes = 0;
    int reloads = 0;
    QObject::connect(t.app.get(), &AppDelegate::themeFileWritten, [&] { ++writes; });
    QObject::connect(t.app.get(), &AppDelegate::allModulesReloaded, [&] { ++reloads; });
    ColorWell* well = top().colorSection()->well(QStringLiteral("A01"));
    ASSERT_NE(well, nullptr);
    QElapsedTimer burst;
    burst.start();
    for (int i = 0; i < 10; ++i) {
        Q_EMIT well->colorChanged(QColor(10 * i, 0, 0, 200));
        QTest::qWait(50);
    }
    const qint64 burstMs = burst.elapsed();
    QTest::qWait(1000 + 2 * kSettleMs);
    // A machine so loaded that the burst outlasted the one-second delay makes two bursts of it.
    if (burstMs < 1000) {
        EXPECT_EQ(writes, 1);
        EXPECT_EQ(reloads, 1);
    }
    EXPECT_GE(writes, 1);
    EXPECT_EQ(reloads, writes);
    const QColor stored = TvlClasses::retColorFromArray(themeFile().value(QStringLiteral("A01")));
    EXPECT_EQ(stored.red(), 90);
    EXPECT_EQ(stored.alpha(), 200);
    EXPECT_EQ(t.app->defaults(ModuleId::Cpu).color(QStringLiteral("A01")).red(), 90);
}

TEST_F(PreferencesTest, AFontChangeIsWrittenAtOnceAndTheThemeDetailNamesTheNewFont)
{
    TopTabThemeSection* section = top().themeSection();
    QComboBox* styles = section->fontStyleMenu();
    ASSERT_GT(styles->count(), 1) << "the theme's font family has several styles";
    const int other = styles->currentIndex() == 0 ? 1 : 0;
    const QString style = styles->itemText(other);
    const QString family = section->fontFamilyMenu()->currentText();
    styles->setCurrentIndex(other);
    // The detail follows the choice at once, and still after the theme came back written.
    const QString fontLine = QStringLiteral("\nFont: %1 %2").arg(family, style);
    EXPECT_TRUE(section->detailLabel()->text().endsWith(fontLine)) << section->detailLabel()->text().toStdString();
    QTest::qWait(kSettleMs);
    EXPECT_EQ(themeFile().value(QLatin1String(_FontStyle)).toString(), style);
    EXPECT_EQ(t.app->generalDefaults().stringValue(_FontStyle), style);
    EXPECT_TRUE(section->detailLabel()->text().endsWith(fontLine)) << section->detailLabel()->text().toStdString();

    // Another family: the detail names it, and no other line of it names the old one.
    QComboBox* families = section->fontFamilyMenu();
    families->setCurrentIndex(families->currentIndex() == 0 ? 1 : 0);
    QTest::qWait(kSettleMs);
    QStringList lines = section->detailLabel()->text().split(u'\n');
    EXPECT_EQ(lines.takeLast(), QStringLiteral("Font: %1 %2").arg(families->currentText(), styles->currentText()));
    EXPECT_FALSE(lines.join(u'\n').contains(family)) << lines.join(u'\n').toStdString();
}

TEST_F(PreferencesTest, WindowFitsASmallScreenWithTheFailureLineShowing)
{
    PreferencesWindow* window = preferencesWindow(*t.app);
    window->showStoreFailure();
    QApplication::processEvents();
    // A 1280 x 720 screen, less a panel and the title bar: the pages scroll instead.
    EXPECT_LE(window->minimumSizeHint().width(), 1280);
    EXPECT_LE(window->minimumSizeHint().height(), 720 - 80);
    // As placed on this (smaller) screen: whole, failure line included.
    const QRect area = window->screen()->availableGeometry();
    EXPECT_TRUE(area.contains(window->geometry())) << area.height() << " " << window->height();
    const auto* failure = window->findChild<QLabel*>(QStringLiteral("StoreFailure"));
    ASSERT_NE(failure, nullptr);
    EXPECT_TRUE(failure->isVisible());
    EXPECT_LE(failure->mapTo(window, QPoint(0, failure->height())).y(), window->height());
}

TEST_F(PreferencesTest, SettingsSurviveARestartAndAFailedSaveIsShown)
{
    rebootDays()->setValue(3);
    // The restart timer follows a second later.
    QTest::qWait(1000 + kSettleMs);
    EXPECT_TRUE(t.app->rebootTimerActive());
    t.app.reset();
    launch();
    EXPECT_EQ(t.app->chkGeneInteger(kRebootRegularlyDays), 3);
    EXPECT_EQ(rebootDays()->value(), 3);

    // A folder where the file should be: no save can succeed, whoever runs the test.
    ASSERT_TRUE(QFile::remove(t.settingsPath()));
    ASSERT_TRUE(QDir().mkpath(t.settingsPath() + QStringLiteral("/blocked")));
    PreferencesWindow* window = preferencesWindow(*t.app);
    EXPECT_FALSE(window->storeFailureShown());
    rebootDays()->setValue(5);
    EXPECT_TRUE(window->storeFailureShown());
}

} // namespace

namespace {

TEST_F(PreferencesTest, ADarkDesktopSwitchesToTheThemesAlternativeOnce)
{
    ASSERT_FALSE(t.app->currentTheme().value(QLatin1String(_ForDarkAppearance)).toBool());
    int reloads = 0;
    QObject::connect(t.app.get(), &AppDelegate::allModulesReloaded, [&] { ++reloads; });
    t.app->changeAppearanceMode(true);
    QTest::qWait(kSettleMs);
    EXPECT_TRUE(t.app->currentTheme().value(QLatin1String(_ForDarkAppearance)).toBool());
    EXPECT_TRUE(themeFile().value(QLatin1String(_ForDarkAppearance)).toBool());
    EXPECT_EQ(reloads, 1);
    // Already dark: nothing more happens.
    t.app->changeAppearanceMode(true);
    QTest::qWait(kSettleMs);
    EXPECT_EQ(reloads, 1);
}

TEST(AppearanceWatcher, PortalValuesAndPalettes)
{
    EXPECT_EQ(AppearanceWatcher::darkFromColorScheme(1), std::optional<bool>(true));
    EXPECT_EQ(AppearanceWatcher::darkFromColorScheme(2), std::optional<bool>(false));
    EXPECT_EQ(AppearanceWatcher::darkFromColorScheme(0), std::nullopt);
    QPalette dark;
    dark.setColor(QPalette::Window, QColor(0x20, 0x20, 0x20));
    dark.setColor(QPalette::WindowText, Qt::white);
    EXPECT_TRUE(AppearanceWatcher::darkFromPalette(dark));
    QPalette light;
    light.setColor(QPalette::Window, QColor(0xef, 0xef, 0xef));
    light.setColor(QPalette::WindowText, Qt::black);
    EXPECT_FALSE(AppearanceWatcher::darkFromPalette(light));
}

} // namespace
