// The tool items and their switches name the applications the desktop's entries describe, and a
// tool the desktop lacks is neither offered in the menu nor switchable in a tab.
#include "desktop_tool_dirs.h"
#include "modules/cpu/cpu_tab_view_controller.h"
#include "modules/standard_menu_items.h"
#include "modules/vnc/vnc_tab_view_controller.h"
#include "prefs/pref_keys.h"
#include "prefs/pref_notification.h"
#include "support/memory_settings_store.h"

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QMenu>
#include <gtest/gtest.h>

#include <tuple>

using namespace PrefKey;

namespace {

struct SwitchView {
    QString text;
    bool enabled;
    QString note; // the label beside the switch; empty when there is none
};

SwitchView switchOf(const QWidget& tab, const char* key)
{
    const auto* box = tab.findChild<QCheckBox*>(QLatin1String(key));
    const auto* note = tab.findChild<QLabel*>(QLatin1String(key) + QStringLiteral("Note"));
    if (box == nullptr)
        return {QStringLiteral("(no switch)"), false, {}};
    return {box->text(), box->isEnabled(), note != nullptr ? note->text() : QString()};
}

QStringList toolItems(const ModuleDefaults& defaults)
{
    QMenu menu;
    GeneralFunctions::addStandardMenuItems(&menu, defaults, true, true, true, [] {});
    QStringList titles;
    for (const QAction* action : menu.actions()) {
        if (action->data().toInt() != OpenPrefTag)
            titles << action->text();
    }
    return titles;
}

} // namespace

TEST(DesktopTools, ItemsAndSwitchesNameTheFoundApplicationsAndDisableTheMissingOne)
{
    // A system monitor and a terminal; the log viewer's entry is hidden, which counts as absent.
    DesktopToolDirs dirs({}, {QStringLiteral("monitor-terminal")});
    MemorySettingsStore store;
    PrefNotificationCenter center;

    CpuTabViewController cpu(store, center);
    VNCTabViewController vnc(nullptr, store, center);
    for (const auto& [tab, amon, cnsl, tmnl] : {std::tuple<QWidget*, const char*, const char*, const char*>{
                                                    &cpu, CPU_EnaMenu_Amon, CPU_EnaMenu_Cnsl, CPU_EnaMenu_Tmnl},
                                                std::tuple<QWidget*, const char*, const char*, const char*>{
                                                    &vnc, Vnc_EnaMenu_Amon, Vnc_EnaMenu_Cnsl, Vnc_EnaMenu_Tmnl}}) {
        SCOPED_TRACE(tab->metaObject()->className());
        const SwitchView monitor = switchOf(*tab, amon);
        EXPECT_EQ(monitor.text, QStringLiteral("Open GNOME System Monitor"));
        EXPECT_TRUE(monitor.enabled);
        EXPECT_TRUE(monitor.note.isEmpty());
        const SwitchView logs = switchOf(*tab, cnsl);
        EXPECT_EQ(logs.text, QStringLiteral("Open Log Viewer"));
        EXPECT_FALSE(logs.enabled);
        EXPECT_EQ(logs.note, QStringLiteral("Not installed"));
        const SwitchView terminal = switchOf(*tab, tmnl);
        EXPECT_EQ(terminal.text, QStringLiteral("Open Konsole"));
        EXPECT_TRUE(terminal.enabled);
    }

    // Every switch on: the menu offers only what it can open, under the same names.
    ModuleDefaults defaults;
    defaults.set(PrefName, QStringLiteral("CPU"));
    EXPECT_EQ(toolItems(defaults), (QStringList{"Open GNOME System Monitor", "Open Konsole"}));

    // The user's own entry shows what the system's hid; the next menu has it.
    DesktopToolDirs::set(QStringLiteral("log-viewer"), {QStringLiteral("monitor-terminal")});
    EXPECT_EQ(toolItems(defaults), (QStringList{"Open GNOME System Monitor", "Open Logs", "Open Konsole"}));
}
