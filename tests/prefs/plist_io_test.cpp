// Property-list reading and writing: every value type survives, anything else is refused quietly.
#include "prefs/plist_io.h"

#include <QDateTime>
#include <QFile>
#include <QTemporaryDir>
#include <QTimeZone>
#include <gtest/gtest.h>

#include <plist/plist.h>

#include <cstdlib>

namespace {

QVariantMap everyType()
{
    return {
        {QStringLiteral("string"), QStringLiteral("Grüße ● ok")},
        {QStringLiteral("empty string"), QString()},
        {QStringLiteral("true"), true},
        {QStringLiteral("false"), false},
        {QStringLiteral("integer"), qint64(1234567890123)},
        {QStringLiteral("negative"), qint64(-9999)},
        {QStringLiteral("real"), 0.125},
        {QStringLiteral("data"), QByteArray("\x89PNG\0\x01\xff", 7)},
        {QStringLiteral("date"), QDateTime(QDate(2019, 3, 4), QTime(5, 6, 7), QTimeZone::utc())},
        {QStringLiteral("array"), QVariantList{1.0, QStringLiteral("two"), QVariantList{true}}},
        {QStringLiteral("dict"), QVariantMap{{QStringLiteral("inner"), QVariantMap{}}}},
    };
}

QByteArray binaryPlistOf(const QVariantMap& dict)
{
    plist_t root = nullptr;
    const QByteArray xml = PlistIo::toXml(dict);
    plist_from_xml(xml.constData(), static_cast<uint32_t>(xml.size()), &root);
    char* bytes = nullptr;
    uint32_t length = 0;
    plist_to_bin(root, &bytes, &length);
    QByteArray out(bytes, static_cast<qsizetype>(length));
    plist_to_bin_free(bytes);
    plist_free(root);
    return out;
}

void expectSameValues(const QVariantMap& read, const QVariantMap& written)
{
    ASSERT_EQ(read.keys(), written.keys());
    EXPECT_EQ(read.value(QStringLiteral("string")).toString(), QStringLiteral("Grüße ● ok"));
    EXPECT_EQ(read.value(QStringLiteral("empty string")).typeId(), QMetaType::QString);
    EXPECT_EQ(read.value(QStringLiteral("true")).typeId(), QMetaType::Bool);
    EXPECT_TRUE(read.value(QStringLiteral("true")).toBool());
    EXPECT_FALSE(read.value(QStringLiteral("false")).toBool());
    EXPECT_EQ(read.value(QStringLiteral("integer")).toLongLong(), 1234567890123);
    EXPECT_EQ(read.value(QStringLiteral("negative")).toLongLong(), -9999);
    EXPECT_EQ(read.value(QStringLiteral("real")).typeId(), QMetaType::Double);
    EXPECT_DOUBLE_EQ(read.value(QStringLiteral("real")).toDouble(), 0.125);
    EXPECT_EQ(read.value(QStringLiteral("data")).toByteArray(), QByteArray("\x89PNG\0\x01\xff", 7));
    EXPECT_EQ(read.value(QStringLiteral("date")).toDateTime(), written.value(QStringLiteral("date")).toDateTime());
    const QVariantList array = read.value(QStringLiteral("array")).toList();
    ASSERT_EQ(array.size(), 3);
    EXPECT_EQ(array[1].toString(), QStringLiteral("two"));
    EXPECT_EQ(array[2].toList(), QVariantList{true});
    EXPECT_EQ(read.value(QStringLiteral("dict")).toMap().value(QStringLiteral("inner")).typeId(),
              QMetaType::QVariantMap);
}

class PlistFileTest : public ::testing::Test {
protected:
    QString pathOf(const char* name) const { return dir_.filePath(QLatin1String(name)); }

    void writeBytes(const char* name, const QByteArray& bytes) const
    {
        QFile file(pathOf(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QTemporaryDir dir_;
};

} // namespace

TEST(PlistIoRoundTrip, XmlKeepsEveryType)
{
    const QVariantMap written = everyType();
    const std::optional<QVariant> read = PlistIo::parse(PlistIo::toXml(written));
    ASSERT_TRUE(read.has_value());
    expectSameValues(read->toMap(), written);
}

TEST(PlistIoRoundTrip, BinaryIsReadLikeXml)
{
    const QVariantMap written = everyType();
    const std::optional<QVariant> read = PlistIo::parse(binaryPlistOf(written));
    ASSERT_TRUE(read.has_value());
    expectSameValues(read->toMap(), written);
}

TEST(PlistIoRoundTrip, TopLevelArrayAndValuesWithoutPlistFormAreLeftOut)
{
    const QVariantList list{QStringLiteral("a"), QVariant(), 2.5};
    const std::optional<QVariant> read = PlistIo::parse(PlistIo::toXml(list));
    ASSERT_TRUE(read.has_value());
    EXPECT_EQ(read->toList(), (QVariantList{QStringLiteral("a"), 2.5}));
    EXPECT_TRUE(PlistIo::toXml(QVariant()).isEmpty());
}

TEST(PlistIoParse, RefusesWhatIsNotAPropertyList)
{
    EXPECT_FALSE(PlistIo::parse(QByteArray()).has_value());
    EXPECT_FALSE(PlistIo::parse("not a plist <<<").has_value());
    EXPECT_FALSE(PlistIo::parse("bplist00").has_value());
    EXPECT_FALSE(PlistIo::parse("<?xml version=\"1.0\"?><plist><dict><key>a</key>").has_value());
}

TEST(PlistIoParse, NestingIsBoundedInBothFormsBeforeLibplistSeesIt)
{
    const auto nested = [](int depth) {
        QVariant value = QVariantList{QStringLiteral("leaf"), 1};
        for (int i = 1; i < depth; ++i)
            value = QVariantList{value, i};
        return QVariantMap{{QStringLiteral("k"), value}};
    };
    const QVariantMap fits = nested(PlistIo::kMaxNesting - 2);
    const QVariantMap deep = nested(PlistIo::kMaxNesting + 2);
    EXPECT_TRUE(PlistIo::parse(PlistIo::toXml(fits)).has_value());
    EXPECT_TRUE(PlistIo::parse(binaryPlistOf(fits)).has_value());
    EXPECT_FALSE(PlistIo::parse(PlistIo::toXml(deep)).has_value());
    EXPECT_FALSE(PlistIo::parse(binaryPlistOf(deep)).has_value());
}

TEST_F(PlistFileTest, ReadsAndWritesDictionaries)
{
    const QVariantMap written{{QStringLiteral("Z01"), QVariantList{0.0, 0.5, 1.0, 1.0}}};
    ASSERT_TRUE(PlistIo::writeDictionaryAtomically(pathOf("theme.plist"), written));
    EXPECT_EQ(PlistIo::readDictionary(pathOf("theme.plist")), written);

    writeBytes("binary.plist", binaryPlistOf(written));
    EXPECT_EQ(PlistIo::readDictionary(pathOf("binary.plist")), written);
}

TEST_F(PlistFileTest, AnythingButADictionaryReadsAsNothing)
{
    writeBytes("garbage.plist", "\x01\x02 garbage");
    writeBytes("empty.plist", QByteArray());
    writeBytes("array.plist", PlistIo::toXml(QVariantList{1, 2}));
    writeBytes("string.plist", PlistIo::toXml(QStringLiteral("just text")));

    EXPECT_FALSE(PlistIo::readDictionary(pathOf("garbage.plist")));
    EXPECT_FALSE(PlistIo::readDictionary(pathOf("empty.plist")));
    EXPECT_FALSE(PlistIo::readDictionary(pathOf("array.plist")));
    EXPECT_FALSE(PlistIo::readDictionary(pathOf("string.plist")));
    EXPECT_FALSE(PlistIo::readDictionary(pathOf("missing.plist")));
    EXPECT_FALSE(PlistIo::readDictionary(dir_.path()));
}

TEST_F(PlistFileTest, UnwritablePlaceReportsFalse)
{
    const QVariantMap dict{{QStringLiteral("kept"), true}};
    EXPECT_FALSE(PlistIo::writeDictionaryAtomically(pathOf("no-such-folder/theme.plist"), dict));
    EXPECT_FALSE(PlistIo::writeDictionaryAtomically(dir_.path(), dict));
}
