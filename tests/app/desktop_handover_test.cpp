// Tests how tarvel finds the desktop program that shows the tray, the bar window and drop-downs.
#include "app/desktop_handover.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

std::filesystem::path placeProgram(const QString& path, bool executable = true)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("#!/bin/sh\n");
    file.close();
    if (executable)
        file.setPermissions(file.permissions() | QFileDevice::ExeOwner);
    return path.toStdString();
}

} // namespace

TEST(DesktopHandover, FindsTheProgramBesideItselfFirstThenWhereAnInstallationPutsIt)
{
    QTemporaryDir dir;
    const std::filesystem::path self = dir.filePath("usr/bin/tarvel").toStdString();
    EXPECT_TRUE(desktopProgramPath(self).empty());

    // Not executable: as good as missing.
    placeProgram(dir.filePath("usr/libexec/tarvel/tarvel-desktop"), false);
    EXPECT_TRUE(desktopProgramPath(self).empty());

    const auto installed = placeProgram(dir.filePath("usr/libexec/tarvel/tarvel-desktop"));
    EXPECT_EQ(desktopProgramPath(self), installed);

    // A build folder holds both programs side by side; that pair wins over an installed one.
    const auto beside = placeProgram(dir.filePath("usr/bin/tarvel-desktop"));
    EXPECT_EQ(desktopProgramPath(self), beside);
    EXPECT_TRUE(desktopProgramPath({}).empty());
}

TEST(DesktopHandover, WithoutTheDesktopProgramPicturesRenderButDropDownsFailSayingWhatIsMissing)
{
    QTemporaryDir dir;
    const QString alone = dir.filePath("bin/tarvel");
    QDir().mkpath(dir.filePath("bin"));
    ASSERT_TRUE(QFile::copy(QStringLiteral(TARVEL_EXECUTABLE), alone));
    const QStringList settings{"--settings", dir.filePath("settings.plist")};
    QProcess process;
    process.start(alone, settings + QStringList{"render", "--cycles", "1", "--out", dir.filePath("pictures")});
    ASSERT_TRUE(process.waitForFinished(60000));
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    EXPECT_TRUE(QFileInfo::exists(dir.filePath("pictures/CPU.png")));

    process.start(alone, settings + QStringList{"render", "--panels", "--out", dir.filePath("panels")});
    ASSERT_TRUE(process.waitForFinished(60000));
    EXPECT_EQ(process.exitCode(), 1);
    const QString said = QString::fromUtf8(process.readAllStandardError());
    EXPECT_TRUE(said.contains("the desktop program tarvel-desktop was found neither beside " + alone + " nor in " +
                              dir.filePath("libexec/tarvel")))
        << said.toStdString();
    EXPECT_FALSE(QFileInfo::exists(dir.filePath("panels")));
}
