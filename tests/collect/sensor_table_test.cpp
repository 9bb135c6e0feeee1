// The temperature sensor table: model choice, the order names are given in, and the listing.
#include "collect/sensor_table.h"

#include <gtest/gtest.h>

namespace {

QStringList keysOf(const QList<TempSensorEntry>& entries)
{
    QStringList keys;
    for (const TempSensorEntry& e : entries)
        keys.append(e.key);
    return keys;
}

QString nameOf(const QList<TempSensorEntry>& entries, const QString& key)
{
    for (const TempSensorEntry& e : entries)
        if (e.key == key)
            return e.name;
    return QStringLiteral("(absent)");
}

// The listing as "key=name" in its order.
QStringList listed(const QList<TempSensorEntry>& entries)
{
    QStringList rows;
    for (const TempSensorEntry& e : entries)
        rows.append(e.key + u'=' + e.name);
    return rows;
}

TempSensorEntry sensor(const char* key, const char* name)
{
    return {QString::fromLatin1(key), QString::fromLatin1(name), {}, {}, {}};
}

} // namespace

TEST(SensorTable, ChosenModel)
{
    const QStringList sorted{"iMac11,1", "MacBookAir3,1", "MacBookPro5,1", "MacBookPro8,2", "MacMini4,1",
                             "MacPro4,1", "Xserve2,1"};
    const QStringList noXserve{"iMac11,1", "MacBookPro8,2", "MacMini4,1", "MacPro4,1", "MacPro5,1"};
    const QStringList serversOnly{"MacPro4,1", "Xserve2,1"};
    struct Row {
        const char* what;
        QStringList models;
        const char* identifier;
        const char* expected;
    } rows[] = {
        {"the last of the family in sorted order", sorted, "MacBookPro11,1", "MacBookPro8,2"},
        {"a family is matched without regard to case", sorted, "macbookair9,9", "MacBookAir3,1"},
        {"an identifier equal to a lower-cased name stops the walk", sorted, "macbookpro5,1", "MacBookPro5,1"},
        {"an Xserve without its family falls to the last of the others", noXserve, "Xserve3,1", "MacMini4,1"},
        {"a name shorter than six letters is taken", {"Mac", "MacPro1,1"}, "Xserve3,1", "Mac"},
        {"only servers: the fixed model", serversOnly, "Foo1,1", "MacMini3,1"},
        {"no file at all: the fixed model", {}, "MacBookPro11,1", "MacMini3,1"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(chooseSensorModel(row.models, QString::fromLatin1(row.identifier)), QString::fromLatin1(row.expected))
            << row.what;
}

TEST(SensorTable, TheChosenModelNamesFirstThenTheOthersInReverseOrderThenTheBuiltIns)
{
    const QList<SensorDatModel> file{
        {"MacBookPro5,1", {{"TC0P", "Older CPU"}, {"TX1A", "Only here"}}},
        {"MacBookPro8,2", {{"TC0P", "  CPU Proximity "}, {"TLONG", "too long a key"}, {"TG0P", "Graphics"}}},
        {"iMac11,1", {{"TX1A", "iMac name"}, {"TC0P", "iMac CPU"}}},
    };
    const QList<TempSensorEntry> named = namedSensorKeys(file, "MacBookPro11,1", true, {});
    // MacBookPro8,2 is chosen; then, backwards, MacBookPro5,1 before iMac11,1.
    EXPECT_EQ(keysOf(named).mid(0, 3), (QStringList{"TC0P", "TG0P", "TX1A"}));
    EXPECT_EQ(nameOf(named, "TC0P"), "CPU Proximity");
    EXPECT_EQ(nameOf(named, "TX1A"), "Only here");
    EXPECT_FALSE(keysOf(named).contains("TLONG"));
    // The built-ins keep the names the file gave, and fill in the rest, the earlier table first.
    EXPECT_EQ(nameOf(named, "TG0P"), "Graphics");
    EXPECT_EQ(nameOf(named, "TB0T"), "Enclosure Base 1");
    EXPECT_EQ(nameOf(named, "TG0D"), "GPU die");
    EXPECT_EQ(nameOf(named, "Tp0P"), "PPowerboard Proximity");
    EXPECT_EQ(nameOf(named, "TCXc"), "PPECI CPU");
}

TEST(SensorTable, WithoutTheSmcOnlyThePlatformSensorsAreNamed)
{
    const QList<SensorDatModel> file{{"MacBookPro8,2", {{"TC0P", "CPU"}}}};
    const QList<TempSensorEntry> platform{
        {"devices/platform/coretemp.0/temp1", "coretemp Package id 0", "coretemp", 80, 100}};
    const QList<TempSensorEntry> named = namedSensorKeys(file, "MacBookPro8,2", false, platform);
    ASSERT_EQ(named.size(), 1);
    EXPECT_EQ(named[0].group, "coretemp");
    EXPECT_EQ(named[0].high, 80);
}

TEST(SensorTable, APlatformSensorOnAnSmcKeyKeepsTheTablesNameAndLendsItsGroup)
{
    const QList<TempSensorEntry> platform{{"TC0P", "applesmc TC0P", "applesmc", {}, 105},
                                          {"TZ9X", "applesmc TZ9X", "applesmc", {}, {}}};
    const QList<TempSensorEntry> named = namedSensorKeys({}, "MacBookPro11,1", true, platform);
    const QList<TempSensorEntry> list = sensorList(named);
    const auto find = [&list](const char* key) {
        return *std::find_if(list.begin(), list.end(), [key](const TempSensorEntry& e) { return e.key == key; });
    };
    EXPECT_EQ(find("TC0P").name, "PCPU 1 Proximity");
    EXPECT_EQ(find("TC0P").group, "applesmc");
    EXPECT_EQ(find("TC0P").critical, 105);
    EXPECT_EQ(find("TZ9X").name, "Applesmc TZ9X");
    EXPECT_EQ(find("TB0T").group, "");
}

TEST(SensorTable, ListingSortsCapitalisesAndSkipsOnlyUnchangedRepeats)
{
    const QList<TempSensorEntry> named{
        sensor("TC0E", "PCPU 1"),          sensor("TC0F", "PCPU 1"),           sensor("TM0P", "memory bank"),
        sensor("TM1P", "memory bank"),     sensor("TA0P", "ambient air flow"), sensor("TH0P", "Drive Bay"),
        sensor("TB0T", "battery"),
    };
    // "PCPU 1" is left as it is by capitalisation and listed once; "memory bank" is changed by
    // it, so each of its two keys lists it again, both times under the first key.
    EXPECT_EQ(listed(sensorList(named)),
              (QStringList{"TA0P=Ambient Air Flow", "TB0T=Battery", "TH0P=Drive Bay", "TM0P=Memory Bank",
                           "TM0P=Memory Bank", "TC0E=PCPU 1"}));
}

TEST(SensorTable, TheBuiltInTablesAloneListEachDistinctNameOnce)
{
    const QList<TempSensorEntry> list = sensorList(namedSensorKeys({}, "MacBookPro11,1", true, {}));
    // 108 distinct keys (29 of the last table's are named by the first two); "PCPU 1", "PCPU 2",
    // "PPCH Die", "PPECI GPU" (two keys each) and "PPECI SA" (three) are listed once.
    EXPECT_EQ(namedSensorKeys({}, "MacBookPro11,1", true, {}).size(), 108);
    EXPECT_EQ(list.size(), 102);
    EXPECT_EQ(list.front().name, "Airport Card");
    EXPECT_EQ(list.back().name, "PPowerboard Proximity");
}

TEST(SensorDatFile, ModelsAndTheirKeysInTheFilesOrder)
{
    const QByteArray xml = R"(<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0"><dict>
  <key>Xserve3,1</key><dict><key>temp_data</key><dict>
    <key>TC0P</key><string>CPU A</string><key>TA0P</key><string>Ambient</string><key>TN0P</key><integer>3</integer>
  </dict></dict>
  <key>MacMini4,1</key><dict><key>fan_data</key><array/></dict>
</dict></plist>)";
    const QList<SensorDatModel> models = parseSensorDat(xml);
    ASSERT_EQ(models.size(), 2);
    EXPECT_EQ(models[0].name, "Xserve3,1");
    ASSERT_EQ(models[0].tempData.size(), 2);
    EXPECT_EQ(models[0].tempData[0], (std::pair<QString, QString>{"TC0P", "CPU A"}));
    EXPECT_EQ(models[0].tempData[1].first, "TA0P");
    EXPECT_TRUE(models[1].tempData.isEmpty());
    EXPECT_TRUE(parseSensorDat("not a property list").isEmpty());
    EXPECT_TRUE(parseSensorDat("<plist><array><string>x</string></array></plist>").isEmpty());
}
