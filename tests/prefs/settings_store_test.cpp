// The settings file: typed reads, persistence, and damaged files set aside.
#include "prefs/plist_io.h"
#include "prefs/plist_settings_store.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/stat.h>

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

namespace {

void writeBytes(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(bytes);
}

QByteArray bigEndian(quint64 value, int bytes)
{
    QByteArray out;
    for (int i = bytes - 1; i >= 0; --i)
        out.append(static_cast<char>((value >> (8 * i)) & 0xff));
    return out;
}

// A binary property list of arrays, each holding the next: depth + 1 objects.
QByteArray deepBinaryPlist(int depth)
{
    QByteArray out("bplist00");
    QByteArray offsets;
    for (int i = 0; i <= depth; ++i) {
        offsets += bigEndian(static_cast<quint64>(out.size()), 4);
        out += i < depth ? QByteArray("\xa1") + bigEndian(static_cast<quint64>(i + 1), 4) : QByteArray("\xa0");
    }
    const auto tableAt = static_cast<quint64>(out.size());
    out += offsets;
    out += QByteArray(6, '\0') + QByteArray("\x04\x04") + bigEndian(static_cast<quint64>(depth + 1), 8) +
           bigEndian(0, 8) + bigEndian(tableAt, 8);
    return out;
}

} // namespace

TEST(SettingsStore, OnlyARegularFileIsEverSetAsideOrReplaced)
{
    QTemporaryDir dir;
    const QString fifo = dir.filePath(QStringLiteral("fifo"));
    ASSERT_EQ(::mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
    const QString folder = dir.filePath(QStringLiteral("folder"));
    ASSERT_TRUE(QDir().mkpath(folder));
    const QString dangling = dir.filePath(QStringLiteral("dangling"));
    ASSERT_TRUE(QFile::link(dir.filePath(QStringLiteral("gone")), dangling));
    const QString endless = dir.filePath(QStringLiteral("endless"));
    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/zero"), endless));

    // A pipe nobody writes would block a read for ever, /dev/zero never ends: neither is opened.
    for (const QString& path : {fifo, folder, dangling, endless}) {
        PlistSettingsStore store(path);
        EXPECT_TRUE(store.isReadOnly()) << path.toStdString();
        EXPECT_FALSE(store.openProblem().isEmpty());
        store.setBool(QStringLiteral("b"), true);
        EXPECT_FALSE(store.synchronize());
    }
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System).size(), 4);
    EXPECT_TRUE(QFileInfo(fifo).exists() && !QFileInfo(fifo).isFile());
    EXPECT_TRUE(QFileInfo(dangling).isSymLink() && !QFileInfo::exists(dir.filePath(QStringLiteral("gone"))));
}

TEST(SettingsStore, ALinkedFileStaysALinkAndItsTargetIsSetAsideOrReplaced)
{
    QTemporaryDir dir;
    const QString target = dir.filePath(QStringLiteral("real.plist"));
    const QString link = dir.filePath(QStringLiteral("s.plist"));
    writeBytes(target, PlistIo::toXml(QVariantMap{}));
    ASSERT_TRUE(QFile::link(target, link));
    {
        PlistSettingsStore store(link);
        store.setInteger(QStringLiteral("n"), 3);
        ASSERT_TRUE(store.synchronize());
    }
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_EQ(PlistSettingsStore(target).integerForKey(QStringLiteral("n")), 3);

    writeBytes(target, "junk");
    PlistSettingsStore damaged(link);
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_EQ(QDir(dir.path()).entryList({QStringLiteral("real.plist.unreadable-*")}).size(), 1);
}

TEST(SettingsStore, DamagedFilesInTheSameSecondAreAllKept)
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("s.plist"));
    for (int i = 0; i < 3; ++i) {
        writeBytes(path, "junk " + QByteArray::number(i));
        PlistSettingsStore store(path);
        EXPECT_FALSE(store.isReadOnly());
    }
    QStringList aside = QDir(dir.path()).entryList({QStringLiteral("s.plist.unreadable-*")});
    ASSERT_EQ(aside.size(), 3);
    QStringList contents;
    for (const QString& name : aside) {
        QFile file(dir.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        contents << QString::fromLatin1(file.readAll());
    }
    contents.sort();
    EXPECT_EQ(contents, (QStringList{"junk 0", "junk 1", "junk 2"}));
}

TEST(SettingsStore, DeeplyNestedFilesAreSetAsideWithoutOverflowingTheStack)
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("s.plist"));
    const int depth = 200000;
    const QByteArray xml = "<?xml version=\"1.0\"?><plist version=\"1.0\">" + QByteArray("<array>").repeated(depth) +
                           QByteArray("</array>").repeated(depth) + "</plist>";
    for (const QByteArray& bytes : {xml, deepBinaryPlist(depth)}) {
        writeBytes(path, bytes);
        PlistSettingsStore store(path);
        EXPECT_FALSE(store.openProblem().isEmpty());
        EXPECT_FALSE(QFile::exists(path));
    }
}

TEST(SettingsStore, AFailedSaveIsReportedOnceUntilASaveSucceeds)
{
    QTemporaryDir dir;
    writeBytes(dir.filePath(QStringLiteral("file")), "x");
    PlistSettingsStore store(dir.filePath(QStringLiteral("file/s.plist")));
    QStringList reports;
    store.setSaveProblemReporter([&](const QString& text) { reports << text; });
    store.setBool(QStringLiteral("b"), true);
    EXPECT_FALSE(store.synchronize());
    EXPECT_FALSE(store.synchronize());
    ASSERT_EQ(reports.size(), 1);
    EXPECT_TRUE(reports.front().contains(QStringLiteral("file/s.plist")));
}
