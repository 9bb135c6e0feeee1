// The drop-down panels as a user opens them: each as large as what it shows, the busiest
// processes listed in full from the first opening, each share on its name's line.
#include "app/front_ends/desktop_parts.h"
#include "recording_status_bar.h"
#include "test_app.h"

#include "modules/cpu/cpu_menu_module.h"
#include "modules/memory/memory_menu_module.h"
#include "modules/module_registry.h"
#include "prefs/pref_keys.h"

#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QSignalSpy>
#include <QWidgetAction>
#include <gtest/gtest.h>

#include <fstream>

namespace {

// Twelve processes, each busier than the one before since it started, under a tree that has
// nothing else; their names are as long as given, and busy says how busy they have been.
void writeProcessTree(const std::filesystem::path& root, const std::string& name, int busy)
{
    std::filesystem::create_directories(root / "proc");
    std::ofstream(root / "proc/uptime") << "5000.00 9000.00\n";
    for (int pid = 100; pid < 112; ++pid) {
        std::filesystem::create_directories(root / "proc" / std::to_string(pid));
        // utime, stime, threads, start time and resident pages at their kernel positions.
        std::ofstream(root / "proc" / std::to_string(pid) / "stat")
            << pid << " (" << name << pid << ") S 1 1 1 0 -1 0 0 0 0 0 " << (pid - 99) * 1000 * busy
            << " 5 0 0 20 0 1 0 " << pid * 100 << " 1000 " << pid << " 0\n";
    }
}

template <class Panel> void waitForDetails(Panel* panel)
{
    ASSERT_NE(panel, nullptr);
    QSignalSpy details(panel, &Panel::detailsUpdated);
    ASSERT_TRUE(details.wait(10000));
    // The labels posted their new sizes to the panel, and the panel to the menu.
    for (int round = 0; round < 3; ++round)
        QCoreApplication::sendPostedEvents();
}

} // namespace

TEST(MenuPanels, EveryPanelIsShownWholeAndTheProcessesFromTheFirstOpening)
{
    if (!qobject_cast<QApplication*>(QCoreApplication::instance()))
        GTEST_SKIP() << "needs a widget application";
    RecordingStatusBar bar;
    TestApp t;
    t.root = t.dir.filePath(QStringLiteral("tree")).toStdString();
    writeProcessTree(t.root, "w-", 1);
    t.writeSettings([](SettingsStore& store) { store.setBool(PrefKey::DisplayTopWindowAtStartup, false); });
    t.queueTicks({{10, 5, 0, 85}});
    t.launchWithBar(bar);
    t.executor->finishCycle();

    const ModuleId withPanels[] = {ModuleId::Cpu,    ModuleId::Memory, ModuleId::Network, ModuleId::Disk,
                                   ModuleId::Volume, ModuleId::Temp,   ModuleId::Fan};
    for (const ModuleId id : withPanels) {
        MenuModule* module = menuModule(*t.app, id);
        ASSERT_NE(module, nullptr) << moduleSchema(id).moduleKey;
        SCOPED_TRACE(moduleSchema(id).moduleKey);
        QMenu* menu = module->menu();
        menu->popup(QPoint(0, 0));
        if (id == ModuleId::Cpu)
            waitForDetails(static_cast<CPU_MenuModule*>(module)->controller());
        if (id == ModuleId::Memory)
            waitForDetails(static_cast<Memory_MenuModule*>(module)->controller());
        for (QAction* action : menu->actions()) {
            auto* widgetAction = qobject_cast<QWidgetAction*>(action);
            QWidget* panel = widgetAction != nullptr ? widgetAction->defaultWidget() : nullptr;
            if (panel == nullptr)
                continue;
            EXPECT_GE(panel->height(), panel->sizeHint().height()) << panel->metaObject()->className();
            EXPECT_GE(panel->width(), panel->sizeHint().width()) << panel->metaObject()->className();
            EXPECT_TRUE(menu->rect().contains(panel->geometry())) << panel->metaObject()->className();
        }

        if (id == ModuleId::Cpu) {
            // Shares since each process started: ten lines at once, not an empty band.
            auto* names = menu->findChild<QLabel*>(QStringLiteral("processNames"));
            auto* shares = menu->findChild<QLabel*>(QStringLiteral("processShares"));
            ASSERT_NE(names, nullptr);
            ASSERT_NE(shares, nullptr);
            EXPECT_EQ(names->text().split(u'\n').size(), CPU_MenuController::kProcessRows);
            EXPECT_TRUE(names->text().startsWith(QStringLiteral("w-111\n")));
            EXPECT_EQ(shares->text().split(u'\n').size(), CPU_MenuController::kProcessRows);
            // Line n of each column on one baseline: the same top, the same line height.
            EXPECT_EQ(names->mapTo(menu, QPoint()).y(), shares->mapTo(menu, QPoint()).y());
            EXPECT_EQ(names->fontMetrics().lineSpacing(), shares->fontMetrics().lineSpacing());
            EXPECT_EQ(names->fontMetrics().ascent(), shares->fontMetrics().ascent());
            EXPECT_GE(names->height(), names->fontMetrics().lineSpacing() * CPU_MenuController::kProcessRows);
        }
        menu->hide();
    }

    // Busier since, under names wider than the 400-point graph above them: the open menu widens
    // with its panel, which is not cut.
    const std::string longName(80, 'x');
    writeProcessTree(t.root, longName, 2);
    auto* cpu = static_cast<CPU_MenuModule*>(menuModule(*t.app, ModuleId::Cpu));
    cpu->menu()->popup(QPoint(0, 0));
    waitForDetails(cpu->controller());
    EXPECT_TRUE(cpu->controller()->processNames().startsWith(QString::fromStdString(longName)));
    EXPECT_GE(cpu->controller()->width(), cpu->controller()->sizeHint().width());
    cpu->menu()->hide();
}
