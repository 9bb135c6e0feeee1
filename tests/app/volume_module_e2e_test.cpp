// End to end: a file system mounted on a loop device shows in the Volume item within two
// cycles, and leaves it after the unmount.
#include "app/front_ends/desktop_parts.h"
#include "app/volume_tracker.h"
#include "modules/module_registry.h"
#include "modules/volume/volume_menu_module.h"
#include "mount_test_support.h"
#include "prefs/pref_keys.h"
#include "recording_status_bar.h"
#include "test_app.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QProcess>
#include <QScopeGuard>
#include <QSignalSpy>

#include <functional>
#include <gtest/gtest.h>
#include <unistd.h>

using namespace PrefKey;

TEST(VolumeModuleEndToEnd, LoopMountShowsWithinTwoCyclesAndGoesAfterTheUnmount)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "mounting a file system needs root";
    TestApp t; // its folder holds the image, the mount point and the settings
    const QString name = QStringLiteral("tarvel-e2e");
    const QString image = t.dir.filePath(QStringLiteral("volume.img"));
    const QString mountPoint = t.dir.filePath(name);
    ASSERT_TRUE(QDir().mkpath(mountPoint));
    if (!runTool(QStringLiteral("truncate"), {QStringLiteral("-s"), QStringLiteral("8M"), image}) ||
        !runTool(QStringLiteral("mkfs.ext4"),
                 {QStringLiteral("-q"), QStringLiteral("-F"), QStringLiteral("-L"), name, image}))
        GTEST_SKIP() << "cannot make an ext4 image";

    t.writeSettings([](SettingsStore& store) {
        store.setArray(TopItemSortArray, {7});
        store.setBool(Vlms_Display_Percent, true);
    });
    RecordingStatusBar bar;
    auto executor = std::make_unique<ManualExecutor>();
    ManualExecutor& cycles = *executor;
    AppDelegate app(std::make_unique<PlistSettingsStore>(t.settingsPath()), makeSourceSet("/"));
    attachDesktop(app, &bar);
    app.setCycleExecutor(std::move(executor));
    app.applicationDidFinishLaunching(false);
    cycles.finishCycle();
    auto* volume = dynamic_cast<Volume_MenuModule*>(menuModule(app, ModuleId::Volume));
    ASSERT_NE(volume, nullptr);
    const auto shows = [&] { return bar.texts.value(QStringLiteral("Volume")).contains(name + QLatin1Char(' ')); };
    const auto measured = [&] {
        return bar.texts.value(QStringLiteral("Volume")).contains(name + QStringLiteral(" --"));
    };
    const auto runCycles = [&](const std::function<bool()>& until) {
        for (int cycle = 0; cycle < 2 && !until(); ++cycle) {
            app.loadSysInfoTimer();
            cycles.finishCycle();
        }
        return until();
    };
    ASSERT_FALSE(shows());
    const int widthBefore = bar.images.value(QStringLiteral("Volume")).width();
    QSignalSpy rebuilt(&app.volumeTracker(), &VolumeTracker::descriptionsChanged);
    volume->menuWillOpen();

    if (!runTool(QStringLiteral("mount"), {QStringLiteral("-o"), QStringLiteral("loop"), image, mountPoint}))
        GTEST_SKIP() << "no loop device to mount the image on";
    auto unmount = qScopeGuard([&] { runTool(QStringLiteral("umount"), {mountPoint}); });
    ASSERT_TRUE(waitForRebuilds(rebuilt, [&] { return volume->volumeBaseDict().contains(mountPoint); }));
    EXPECT_FALSE(volume->menuOpened()) << "the open menu no longer matched the volumes";
    EXPECT_TRUE(shows()) << "the item takes the new volume at once";
    EXPECT_TRUE(runCycles([&] { return shows() && !measured(); }))
        << bar.texts.value(QStringLiteral("Volume")).toStdString();
    EXPECT_GT(bar.images.value(QStringLiteral("Volume")).width(), widthBefore);

    unmount.dismiss();
    ASSERT_TRUE(runTool(QStringLiteral("umount"), {mountPoint}));
    ASSERT_TRUE(waitForRebuilds(rebuilt, [&] { return !volume->volumeBaseDict().contains(mountPoint); }));
    EXPECT_TRUE(runCycles([&] { return !shows(); })) << bar.texts.value(QStringLiteral("Volume")).toStdString();
    EXPECT_EQ(bar.images.value(QStringLiteral("Volume")).width(), widthBefore);
}
