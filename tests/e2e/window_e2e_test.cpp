// Runs tarvel on a virtual X screen, as a bar window (a dock) and inside a tray host, and checks
// the screen.
#include "app/front_ends/bar_window_status_bar.h"
#include "prefs/plist_settings_store.h"
#include "prefs/pref_keys.h"
#include "virtual_screen_test.h"

TEST_F(VirtualScreenTest, BarWindowShowsTheCpuPictureAtItsWidthInTheThemeColours)
{
    const QImage general = renderedPicture(QStringLiteral("General"));
    const QImage cpu = renderedPicture(QStringLiteral("CPU"));
    ASSERT_FALSE(general.isNull());
    ASSERT_FALSE(cpu.isNull());
    {
        // The preferences window that a first run shows would stand over the bar on this short
        // screen, racing the CPU picture's second cycle; this test is about the bar alone.
        PlistSettingsStore store(settingsPath());
        store.setBool(PrefKey::DisplayTopWindowAtStartup, false);
        ASSERT_TRUE(store.synchronize());
    }

    QProcess& tarvel = start(QStringLiteral(TARVEL_EXECUTABLE), tarvelArguments({QStringLiteral("--bar")}));
    ASSERT_TRUE(tarvel.waitForStarted());

    // The bar ends with General at the right edge; CPU comes first in the first-run order, so
    // every other item stands to its right, one gap apart. Rendered at scale 1, the CPU
    // picture's pixels are the bar's points.
    const int gap = BarWindowStatusBar::kItemSpacing;
    ASSERT_EQ(pointSize(cpu), cpu.size());
    int barHeight = std::max(BarWindowStatusBar::kMinimumHeight, cpu.height());
    int rightOfCpu = 0;
    for (const QString& key : renderedModuleKeys()) {
        if (key == QLatin1String("CPU"))
            continue;
        const QSize size = pointSize(renderedPicture(key));
        rightOfCpu += size.width() + gap;
        barHeight = std::max(barHeight, size.height());
    }
    const QRect cpuSlot(screenSize().width() - rightOfCpu - cpu.width(), 0, cpu.width(), barHeight);
    const QRect cpuDrawn = boundsDifferingFrom(cpu, cpu.rect(), qRgba(0, 0, 0, 0));
    const QList<QRgb> themeColours = solidColours(cpu);
    ASSERT_FALSE(themeColours.isEmpty());
    QImage screen;
    QRect found;
    // Two cycles at least: the picture is redrawn once the first tick differences exist. The gaps
    // on either side belong to the search, so that a neighbour in the wrong place shows.
    const bool shown = waitUntil([&] {
        screen = grab();
        if (screen.isNull() || tarvel.state() != QProcess::Running)
            return false;
        const QRgb background = screen.pixel(0, 0);
        found = boundsDifferingFrom(screen, cpuSlot.adjusted(-gap, 0, gap, 0), background);
        return std::abs(found.left() - (cpuSlot.left() + cpuDrawn.left())) <= 2 &&
               std::abs(found.right() - (cpuSlot.left() + cpuDrawn.right())) <= 2 &&
               std::ranges::all_of(themeColours, [&](QRgb colour) { return containsColour(screen, cpuSlot, colour); });
    });
    if (!screen.isNull())
        screen.copy(0, 0, screenSize().width(), barHeight).save(QStringLiteral(E2E_OUTPUT_DIR "/bar_window.png"));
    EXPECT_TRUE(shown) << "CPU picture expected in columns " << cpuSlot.left() + cpuDrawn.left() << " to "
                       << cpuSlot.left() + cpuDrawn.right() << ", drawn in " << found.left() << " to " << found.right()
                       << "; see " << E2E_OUTPUT_DIR << "/bar_window.png";

    // SIGTERM, like Ctrl-C, ends the event loop and the program cleanly.
    tarvel.terminate();
    ASSERT_TRUE(tarvel.waitForFinished(10000));
    EXPECT_EQ(tarvel.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(tarvel.exitCode(), 0);
}

TEST_F(VirtualScreenTest, TrayHostReceivesTheIcons)
{
    if (QStandardPaths::findExecutable(QStringLiteral("trayer")).isEmpty() ||
        QStandardPaths::findExecutable(QStringLiteral("xwininfo")).isEmpty())
        GTEST_SKIP() << "trayer or xwininfo is not installed";
    start(QStringLiteral("trayer"),
          {QStringLiteral("--edge"), QStringLiteral("top"), QStringLiteral("--align"), QStringLiteral("right"),
           QStringLiteral("--widthtype"), QStringLiteral("request"), QStringLiteral("--height"), QStringLiteral("24")});
    ASSERT_TRUE(waitUntil([&] { return trayHostRunning(); })) << "trayer did not take the tray";
    const QRect emptyPanel = windowGeometry(QStringLiteral("panel"));

    QProcess& tarvel = start(QStringLiteral(TARVEL_EXECUTABLE), tarvelArguments({}));
    ASSERT_TRUE(tarvel.waitForStarted());

    // The panel widens by a slot for each icon, and the icons draw into it.
    QRect panel;
    const bool grown = waitUntil([&] {
        panel = windowGeometry(QStringLiteral("panel"));
        return panel.width() > emptyPanel.width() + panel.height() / 2;
    });
    EXPECT_TRUE(grown) << "panel " << emptyPanel.width() << " wide before, " << panel.width() << " after";
    EXPECT_LT(windowGeometry(QStringLiteral("Tarvel")).width(), screenSize().width())
        << "a bar window was shown instead";
    // The slots come first; the icons draw into them when the monitor's pictures arrive.
    QImage screen;
    QRect icons;
    waitUntil([&] {
        screen = grab();
        icons = screen.isNull() ? QRect() : boundsDifferingFrom(screen, panel, screen.pixel(panel.topLeft()));
        return icons.width() >= panel.height() / 2;
    });
    ASSERT_FALSE(screen.isNull());
    screen.copy(panel).save(QStringLiteral(E2E_OUTPUT_DIR "/tray.png"));
    EXPECT_GE(icons.width(), panel.height() / 2) << "nothing drawn in the panel";
}

TEST_F(VirtualScreenTest, BarWindowIsADockThatHoldsTheTopOfTheScreen)
{
    if (QStandardPaths::findExecutable(QStringLiteral("xprop")).isEmpty() ||
        QStandardPaths::findExecutable(QStringLiteral("xwininfo")).isEmpty())
        GTEST_SKIP() << "xprop or xwininfo is not installed";
    {
        PlistSettingsStore store(settingsPath());
        store.setBool(PrefKey::DisplayTopWindowAtStartup, false);
        ASSERT_TRUE(store.synchronize());
    }
    QProcess& tarvel = start(QStringLiteral(TARVEL_EXECUTABLE), tarvelArguments({QStringLiteral("--bar")}));
    ASSERT_TRUE(tarvel.waitForStarted());
    // The bar is the window named Tarvel that spans the screen (Qt keeps small helper windows
    // of the same name).
    const QRegularExpression barLine(
        QStringLiteral("^\\s*(0x[0-9a-f]+) \"Tarvel\":.*\\s%1x(\\d+)\\+0\\+0").arg(screenSize().width()));
    const int right = screenSize().width() - 1;
    const auto strutPartial = [right](int height) {
        return QStringLiteral("_NET_WM_STRUT_PARTIAL(CARDINAL) = 0, 0, %1, 0, 0, 0, 0, 0, 0, %2, 0, 0")
            .arg(height)
            .arg(right);
    };
    const auto strut = [](int height) { return QStringLiteral("_NET_WM_STRUT(CARDINAL) = 0, 0, %1, 0").arg(height); };
    // Window managers keep maximised windows out of the band the strut reserves. The window may
    // be seen before it has its final height, so the look is repeated until the strut matches.
    QString window;
    int height = 0;
    QString properties;
    const bool settled = waitUntil([&] {
        QProcess info;
        info.setProcessEnvironment(environment());
        info.start(QStringLiteral("xwininfo"), {QStringLiteral("-root"), QStringLiteral("-children")});
        info.waitForFinished(20000);
        for (const QString& line : QString::fromLocal8Bit(info.readAllStandardOutput()).split(u'\n')) {
            const auto match = barLine.match(line);
            if (match.hasMatch()) {
                window = match.captured(1);
                height = match.captured(2).toInt();
            }
        }
        if (window.isEmpty())
            return false;
        QProcess xprop;
        xprop.setProcessEnvironment(environment());
        xprop.start(QStringLiteral("xprop"), {QStringLiteral("-id"), window, QStringLiteral("_NET_WM_WINDOW_TYPE"),
                                              QStringLiteral("_NET_WM_STRUT_PARTIAL"), QStringLiteral("_NET_WM_STRUT")});
        xprop.waitForFinished(20000);
        properties = QString::fromLocal8Bit(xprop.readAllStandardOutput());
        return properties.contains(strutPartial(height)) && properties.contains(strut(height));
    });
    ASSERT_FALSE(window.isEmpty()) << "no bar window across the screen";
    EXPECT_TRUE(settled) << "height " << height << ":\n" << qPrintable(properties);
    EXPECT_TRUE(properties.contains(QStringLiteral("_NET_WM_WINDOW_TYPE(ATOM) = _NET_WM_WINDOW_TYPE_DOCK")))
        << qPrintable(properties);
}
