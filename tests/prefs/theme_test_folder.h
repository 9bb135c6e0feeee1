// Test fixture that points the theme support folder at a fresh temporary directory.
#pragma once

#include "prefs/plist_io.h"
#include "prefs/theme_files.h"

#include <QByteArray>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

class ThemeFolderTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(home_.isValid());
        hadDataHome_ = qEnvironmentVariableIsSet("XDG_DATA_HOME");
        previousDataHome_ = qgetenv("XDG_DATA_HOME");
        qputenv("XDG_DATA_HOME", home_.path().toLocal8Bit());
        // Where the platform ignores XDG_DATA_HOME the real theme folder must stay untouched.
        if (!TvlClasses::retApplicationSupportDir().startsWith(home_.path()))
            GTEST_SKIP() << "the support folder cannot be redirected on this platform";
    }

    void TearDown() override
    {
        if (hadDataHome_)
            qputenv("XDG_DATA_HOME", previousDataHome_);
        else
            qunsetenv("XDG_DATA_HOME");
    }

    static QString folderFile(const QString& name) { return TvlClasses::retThemeFilePath(name); }

    static void writeFolderTheme(const QString& name, const QVariantMap& theme)
    {
        TvlClasses::checkMyApplicationSupportDir();
        ASSERT_TRUE(PlistIo::writeDictionaryAtomically(folderFile(name), theme));
    }

    static QVariantMap readFolderTheme(const QString& name)
    {
        return PlistIo::readDictionary(folderFile(name)).value_or(QVariantMap());
    }

    static QVariantMap nowTheme() { return readFolderTheme(QStringLiteral("_now_theme.plist")); }

    static void writeNowTheme(const QVariantMap& theme) { writeFolderTheme(QStringLiteral("_now_theme.plist"), theme); }

    static void writeFolderBytes(const QString& name, const QByteArray& bytes)
    {
        TvlClasses::checkMyApplicationSupportDir();
        QFile file(folderFile(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

private:
    QTemporaryDir home_;
    bool hadDataHome_ = false;
    QByteArray previousDataHome_;
};
