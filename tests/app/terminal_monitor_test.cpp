// Tests the text view: its lines come from the sampled figures in the bar's order, without any
// status-item module or widget; and the program run without a display loads no platform plugin.
#include "app/front_ends/desktop_parts.h"
#include "app/front_ends/terminal_monitor.h"
#include "app/front_ends/terminal_status_bar.h"
#include "prefs/pref_keys.h"
#include "support/fixture_paths.h"
#include "test_app.h"

#include <QApplication>
#include <QBuffer>
#include <QDeadlineTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

using namespace PrefKey;

// Each line written since offset, without its time stamp.
QStringList linesSince(const QBuffer& buffer, qsizetype offset)
{
    QStringList lines = QString::fromUtf8(buffer.data().mid(offset)).split(u'\n', Qt::SkipEmptyParts);
    for (QString& line : lines)
        line = line.mid(9);
    return lines;
}

// Two readings of two processors: the machine spent half its time in user code, a quarter in
// the system.
void queueHalfBusyProcessors(TestApp& t)
{
    t.queueTicks({{0, 0, 0, 0}, {0, 0, 0, 0}});
    t.queueTicks({{50, 25, 0, 25}, {50, 25, 0, 25}});
}

} // namespace

TEST(TerminalMonitor, ShowsEachSwitchedOnModulesFigureInBarOrderWithoutAnyWidget)
{
    struct Case {
        const char* name;
        std::function<void(SettingsStore&)> settings;
        QStringList lines;
    };
    // Only the processor is read here: Volume says it has no volume, Temp and Fan show their
    // placeholder, and the modules that have no figure yet have no line.
    const QList<Case> cases{
        {"first run: the figures, the application's own line last",
         {},
         {QStringLiteral("CPU      user 50% system 25%"), QStringLiteral("Volume   --"), QStringLiteral("Temp     ---"),
          QStringLiteral("Fan      ---"), QStringLiteral("General  Tarvel")}},
        {"VNC first in the bar, the application's item off",
         [](SettingsStore& store) {
             store.setBool(Vnc_ShowMenu, true);
             store.setBool(DisplayMyMenuIcon, false);
             store.setArray(TopItemSortArray, QVariantList{8, 1, 2, 3, 4, 7, 5, 6});
         },
         {QStringLiteral("VNC      VNC"), QStringLiteral("CPU      user 50% system 25%"), QStringLiteral("Volume   --"),
          QStringLiteral("Temp     ---"), QStringLiteral("Fan      ---")}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        TestApp t;
        t.writeSettings(c.settings);
        queueHalfBusyProcessors(t);
        t.launch();
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        TerminalStatusBar bar(&buffer, false);
        TerminalMonitor monitor(*t.app, bar);
        t.executor->finishCycle();
        bar.flush();
        // Into a buffer every change appends the whole block again: the second cycle's is this.
        const qsizetype firstBlock = buffer.data().size();
        t.app->loadSysInfoTimer();
        t.executor->finishCycle();
        bar.flush();

        const QStringList lines = linesSince(buffer, firstBlock);
        ASSERT_EQ(lines.size(), c.lines.size()) << lines.join(u'|').toStdString();
        for (qsizetype i = 0; i < lines.size(); ++i)
            EXPECT_TRUE(lines[i].startsWith(c.lines[i])) << lines[i].toStdString();
        // Nothing of the desktop front ends was made: no menu, no picture window.
        EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
        EXPECT_EQ(menuModule(*t.app, ModuleId::Cpu), nullptr);
    }
}

TEST(TerminalMonitor, TheProgramWithoutADisplayPrintsFiguresAndLoadsNoPlatformPlugin)
{
    QTemporaryDir home;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    for (const QString& name : {QStringLiteral("DISPLAY"), QStringLiteral("WAYLAND_DISPLAY"),
                                QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("DBUS_SESSION_BUS_ADDRESS")})
        env.remove(name);
    env.insert(QStringLiteral("HOME"), home.path());
    env.insert(QStringLiteral("XDG_CONFIG_HOME"), home.filePath(QStringLiteral("config")));
    env.insert(QStringLiteral("XDG_DATA_HOME"), home.filePath(QStringLiteral("data")));
    QProcess tarvel;
    tarvel.setProcessEnvironment(env);
    tarvel.start(QStringLiteral(TARVEL_EXECUTABLE),
                 {QStringLiteral("--root"),
                  QString::fromStdString((projectFixtures() / "linux/small-machine").string()),
                  QStringLiteral("--settings"), home.filePath(QStringLiteral("settings.plist"))});
    ASSERT_TRUE(tarvel.waitForStarted());

    // Into a pipe every change appends a block; the fixture's sensors give Temp its figure.
    QString out;
    const QDeadlineTimer deadline(30000);
    while (!out.contains(QStringLiteral(" Temp ")) && !deadline.hasExpired() && tarvel.state() == QProcess::Running) {
        tarvel.waitForReadyRead(250);
        out += QString::fromUtf8(tarvel.readAllStandardOutput());
    }
    QFile maps(QStringLiteral("/proc/%1/maps").arg(tarvel.processId()));
    ASSERT_TRUE(maps.open(QIODevice::ReadOnly));
    const QByteArray mapped = maps.readAll();
    tarvel.terminate();
    ASSERT_TRUE(tarvel.waitForFinished(10000));

    EXPECT_TRUE(out.startsWith(QStringLiteral("No display found"))) << out.toStdString();
    EXPECT_TRUE(out.contains(QStringLiteral(" Temp     38°C"))) << out.toStdString();
    EXPECT_TRUE(out.contains(QStringLiteral(" General  Tarvel " TARVEL_VERSION))) << out.toStdString();
    // No window system was spoken to and no font was looked up.
    EXPECT_FALSE(mapped.contains("/platforms/")) << "a platform plugin was loaded";
    EXPECT_FALSE(mapped.contains("/fontconfig/")) << "the font cache was read";
    EXPECT_EQ(tarvel.exitCode(), 0);
}
