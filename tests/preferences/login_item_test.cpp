// Starting at login: which command the autostart entry runs, and that desktops can read it.
#include "preferences/login_item.h"
#include "toolkit/desktop_exec.h"
#include "toolkit/key_file.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

// A program file of its own: the rule compares files, so each one must really exist.
QString makeProgram(const QString& folder, const QString& name = QStringLiteral("tarvel"))
{
    EXPECT_TRUE(QDir().mkpath(folder));
    QFile file(folder + QLatin1Char('/') + name);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("#!/bin/sh\n");
    file.close();
    file.setPermissions(file.permissions() | QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther);
    return file.fileName();
}

// What a desktop starts for the entry's Exec value, read back through both layers of escaping,
// as one line with the arguments separated by "|".
std::string startedCommand(const QString& rawExecValue)
{
    return DesktopExec::arguments(KeyFile::unescaped(rawExecValue)).join(QLatin1Char('|')).toStdString();
}

// A build folder whose name holds every character the Exec and key-file rules reserve.
const QString awkwardFolder = QStringLiteral("/my \"build\" $HOME `x` \\ 100%");

} // namespace

TEST(LoginItem, TheInstalledProgramIsNamedPlainlyAndAnyOtherBuildByItsQuotedPath)
{
    QTemporaryDir scratch;
    const QString bin = scratch.path() + QStringLiteral("/usr/bin");
    const QString installed = makeProgram(bin);
    const QString build = makeProgram(scratch.path() + awkwardFolder);
    const QString linkFolder = scratch.path() + QStringLiteral("/link");
    QDir().mkpath(linkFolder);
    ASSERT_TRUE(QFile::link(build, linkFolder + QStringLiteral("/tarvel")));
    const QString otherFolder = QFileInfo(makeProgram(scratch.path() + QStringLiteral("/other"))).path();

    // In the package's folder it is the installed one, whatever the PATH says.
    EXPECT_EQ(LoginItem::execLine(installed, {}, bin), QStringLiteral("tarvel"));
    EXPECT_EQ(LoginItem::execLine(installed, {otherFolder}, bin), QStringLiteral("tarvel"));
    // Elsewhere only when the PATH finds this very file under its name, through a link or not.
    EXPECT_EQ(LoginItem::execLine(build, {linkFolder, otherFolder}, bin), QStringLiteral("tarvel"));
    // Another tarvel found first, or none at all: the entry keeps to this build.
    for (const QStringList& path : {QStringList{otherFolder, linkFolder}, QStringList{}}) {
        const QString exec = LoginItem::execLine(build, path, bin);
        EXPECT_TRUE(exec.startsWith(QLatin1Char('"'))) << exec.toStdString();
        EXPECT_EQ(startedCommand(exec), build.toStdString()) << exec.toStdString();
    }
}

TEST(LoginItem, TheEntryIsAValidDesktopEntryThatStartsTheProgramAndGoesWhenSwitchedOff)
{
    QTemporaryDir scratch;
    const bool configWasSet = qEnvironmentVariableIsSet("XDG_CONFIG_HOME");
    const QByteArray savedConfig = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", scratch.path().toUtf8() + "/config");
    const QString build = makeProgram(scratch.path() + awkwardFolder);

    ASSERT_TRUE(LoginItem::setEnabled(true, build));
    const QString entry = LoginItem::entryPath();
    EXPECT_TRUE(entry.startsWith(scratch.path() + QStringLiteral("/config/autostart/")));
    EXPECT_TRUE(LoginItem::isEnabled());
    const KeyFile file = KeyFile::read(entry);
    const QString exec = file.value(QStringLiteral("Desktop Entry"), QStringLiteral("Exec"));
    EXPECT_EQ(DesktopExec::arguments(exec).join(QLatin1Char('|')).toStdString(), build.toStdString());

    if (const QString validator = QStandardPaths::findExecutable(QStringLiteral("desktop-file-validate"));
        !validator.isEmpty()) {
        QProcess validate;
        validate.setProcessChannelMode(QProcess::MergedChannels);
        validate.start(validator, {entry});
        ASSERT_TRUE(validate.waitForFinished(30000));
        EXPECT_EQ(validate.exitCode(), 0) << validate.readAll().toStdString();
    } else {
        ADD_FAILURE() << "desktop-file-validate (desktop-file-utils) is missing: run tools/setup.sh";
    }

    ASSERT_TRUE(LoginItem::setEnabled(false, build));
    EXPECT_FALSE(QFile::exists(entry));
    EXPECT_FALSE(LoginItem::isEnabled());
    if (configWasSet)
        qputenv("XDG_CONFIG_HOME", savedConfig);
    else
        qunsetenv("XDG_CONFIG_HOME");
}
