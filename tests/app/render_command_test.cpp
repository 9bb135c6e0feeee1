// The render drawn by tarvel alone against the one the desktop program draws with its widgets.
#include "program_run.h"
#include "support/fixture_paths.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

// Both programs draw the same pictures from the same code: a file that differs means the
// pictures of the light program have drifted from what the desktop shows.
TEST(Render, PicturesWithoutTheWidgetsAreTheDesktopsToTheByteAndDropDownsComeOnlyWithPanels)
{
    QTemporaryDir dir;
    const QString root = QString::fromStdString((projectFixtures() / "linux/small-machine").string());
    const QStringList common{"--root", root, "--settings", dir.filePath("settings.plist")};
    const ProgramRun light = runTarvel(common + QStringList{"render", "--out", dir.filePath("light")});
    ASSERT_EQ(light.exitCode, 0) << light.err.constData();
    const ProgramRun desktop = runTarvel(common + QStringList{"render", "--panels", "--out", dir.filePath("desktop")});
    ASSERT_EQ(desktop.exitCode, 0) << desktop.err.constData();

    const QStringList pictures = QDir(dir.filePath("light")).entryList(QDir::Files);
    for (const char* expected : {"CPU.png", "CPU-menu.png", "Memory.png", "Network.png", "General.png"})
        EXPECT_TRUE(pictures.contains(QLatin1String(expected))) << expected;
    for (const QString& name : pictures) {
        const QByteArray drawn = contents(dir.filePath("light/" + name));
        EXPECT_FALSE(drawn.isEmpty()) << name.toStdString();
        // Volume measures the space of the file system the tree lies on, which moves between the
        // two runs while anything else writes to it; every other figure comes from the tree.
        if (name.startsWith(QLatin1String("Volume")))
            EXPECT_TRUE(QFileInfo::exists(dir.filePath("desktop/" + name))) << name.toStdString();
        else
            EXPECT_EQ(drawn, contents(dir.filePath("desktop/" + name))) << name.toStdString();
    }
    EXPECT_FALSE(pictures.contains(QStringLiteral("CPU-dropdown.png")));
    const QStringList panels = QDir(dir.filePath("desktop")).entryList(QDir::Files);
    EXPECT_TRUE(panels.contains(QStringLiteral("CPU-dropdown.png")));
    EXPECT_TRUE(panels.contains(QStringLiteral("preferences-General.png")));
}
