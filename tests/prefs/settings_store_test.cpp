// The settings file: typed reads, persistence, and damaged files set aside.
#include "prefs/plist_settings_store.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

TEST(SettingsStore, ReadsForgiveTypesAndMissingKeysReadAsNothing)
{
    QTemporaryDir dir;
    PlistSettingsStore store(dir.filePath(QStringLiteral("s.plist")));
    EXPECT_FALSE(store.boolForKey(QStringLiteral("missing")));
    EXPECT_EQ(store.integerForKey(QStringLiteral("missing")), 0);
    EXPECT_TRUE(store.stringForKey(QStringLiteral("missing")).isEmpty());
    EXPECT_TRUE(store.arrayForKey(QStringLiteral("missing")).isEmpty());

    store.setString(QStringLiteral("yes"), QStringLiteral("YES"));
    store.setString(QStringLiteral("num"), QStringLiteral("2.9"));
    store.setDouble(QStringLiteral("dbl"), 30.7);
    store.setInteger(QStringLiteral("int"), 5);
    store.setString(QStringLiteral("junk"), QStringLiteral("abc"));
    EXPECT_TRUE(store.boolForKey(QStringLiteral("yes")));
    EXPECT_EQ(store.integerForKey(QStringLiteral("num")), 2);
    EXPECT_EQ(store.integerForKey(QStringLiteral("dbl")), 30);
    EXPECT_DOUBLE_EQ(store.doubleForKey(QStringLiteral("int")), 5.0);
    EXPECT_EQ(store.integerForKey(QStringLiteral("junk")), 0);
    EXPECT_FALSE(store.boolForKey(QStringLiteral("junk")));
    // An array asked for where a string is stored is empty, not a crash.
    EXPECT_TRUE(store.arrayForKey(QStringLiteral("yes")).isEmpty());
}

TEST(SettingsStore, SynchronizedValuesSurviveReopening)
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("nested/s.plist"));
    {
        PlistSettingsStore store(path);
        store.setBool(QStringLiteral("b"), true);
        store.setArray(QStringLiteral("a"), {1, 2, 7});
        store.setString(QStringLiteral("gone"), QStringLiteral("x"));
        store.removeObjectForKey(QStringLiteral("gone"));
        ASSERT_TRUE(store.synchronize());
    }
    PlistSettingsStore reopened(path);
    EXPECT_TRUE(reopened.openProblem().isEmpty());
    EXPECT_TRUE(reopened.boolForKey(QStringLiteral("b")));
    EXPECT_EQ(reopened.arrayForKey(QStringLiteral("a")), (QVariantList{1, 2, 7}));
    EXPECT_FALSE(reopened.objectForKey(QStringLiteral("gone")).isValid());
    // Nothing but the settings file is left behind by the atomic write.
    EXPECT_EQ(QDir(dir.filePath(QStringLiteral("nested"))).entryList(QDir::Files), QStringList{"s.plist"});
}

TEST(SettingsStore, DamagedFileIsSetAsideNotDeleted)
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("s.plist"));
    for (const QByteArray& bad : {QByteArray("<plist><dict><key>x</key>"), QByteArray("\x00\x01garbage", 9),
                                  QByteArray("<?xml version=\"1.0\"?><plist><array/></plist>")}) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(bad);
        file.close();

        PlistSettingsStore store(path);
        EXPECT_FALSE(store.openProblem().isEmpty());
        EXPECT_TRUE(store.dictionaryRepresentation().isEmpty());
        EXPECT_FALSE(QFile::exists(path));
        const QStringList aside = QDir(dir.path()).entryList({QStringLiteral("s.plist.unreadable-*")});
        ASSERT_EQ(aside.size(), 1);
        QFile kept(dir.filePath(aside.front()));
        ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
        EXPECT_EQ(kept.readAll(), bad);
        kept.remove();
    }
}
