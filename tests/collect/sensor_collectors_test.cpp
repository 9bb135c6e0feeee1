// The temperature and fan collectors over an in-memory SMC: filter, samples, fan list, averages.
#include "collect/load_system_information.h"
#include "collect/sensor_value_rules.h"
#include "collect/smc_decoding.h"
#include "collect/smc_value_encoding.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <atomic>
#include <fstream>
#include <map>
#include <string>
#include <thread>

namespace {

// A table of key values, as an SMC would hold them; keys it lacks fail to read.
class TableSmc final : public SmcSource {
public:
    std::map<std::string, SMCValue, std::less<>> values;
    bool opens = true;
    bool smcKeys = true;
    QList<TempSensorEntry> platform;
    std::vector<std::string> reads;
    std::atomic<int> overlaps = 0; // a connection opened while another was still open

    bool open() override
    {
        if (inUse_.exchange(true))
            ++overlaps;
        if (!opens)
            inUse_ = false;
        return opens;
    }
    int readValue(std::string_view key, SMCValue& value) override
    {
        reads.emplace_back(key);
        value = emptySmcValue(key);
        const auto found = values.find(key);
        if (found == values.end())
            return kSmcKeyNotFound;
        value = found->second;
        return 0;
    }
    void close() override { inUse_ = false; }
    bool servesSmcKeys() override { return smcKeys; }
    QList<TempSensorEntry> namedTemperatures() override { return platform; }

private:
    std::atomic<bool> inUse_ = false;
};

// Two bytes of the given type, as a driver might hand them over.
SMCValue bytesValue(const char* key, std::uint8_t first, std::uint8_t second, const char* type = "sp78")
{
    return textValue(key, std::string{static_cast<char>(first), static_cast<char>(second)}, type);
}

// The collector over a table; the table stays reachable through the returned pointer.
std::pair<std::unique_ptr<LoadSystemInformation>, TableSmc*> collectorWith(std::filesystem::path root = "/")
{
    auto smc = std::make_unique<TableSmc>();
    TableSmc* table = smc.get();
    SourceSet sources;
    sources.root = std::move(root);
    sources.smc = std::move(smc);
    return {std::make_unique<LoadSystemInformation>(std::move(sources)), table};
}

SensorDatDict tableOf(std::initializer_list<std::pair<const char*, const char*>> keysAndNames)
{
    QList<TempSensorEntry> entries;
    for (const auto& [key, name] : keysAndNames)
        entries.append({QString::fromLatin1(key), QString::fromLatin1(name), {}, {}, {}});
    return {entries, {}};
}

SensorDatDict fansOf(std::initializer_list<std::pair<const char*, const char*>> namesAndSpeedKeys)
{
    SensorDatDict dict;
    for (const auto& [name, speedKey] : namesAndSpeedKeys)
        dict.fanData.append({QString::fromLatin1(name), {}, QString::fromLatin1(speedKey), {}, {}});
    return dict;
}

} // namespace

TEST(TemperatureFilter, KeysThatDoNotAnswerJoinTheRemovedListAndRemovedKeysAreNotRead)
{
    auto [info, smc] = collectorWith();
    smc->values["TC0P"] = sp78Value("TC0P", 50000);
    smc->values["TA0P"] = emptySmcValue("TA0P"); // answers with nothing
    smc->values["TG0P"] = sp78Value("TG0P", 60000);
    const SensorDatDict dict = tableOf({{"TC0P", "CPU"}, {"TA0P", "Air"}, {"TN0P", "Bridge"}, {"TG0P", "GPU"}});

    const TempDetail detail = info->getDetailTemp(dict, {"TG0P"});
    ASSERT_EQ(detail.entries.size(), 1);
    EXPECT_EQ(detail.entries[0].key, "TC0P");
    EXPECT_EQ(detail.removedTempKeys, (QStringList{"TG0P", "TA0P", "TN0P"}));
    EXPECT_EQ(smc->reads, (std::vector<std::string>{"TC0P", "TA0P", "TN0P"}));
}

TEST(TemperatureFilter, AllAnsweringGivesAnEmptyListToRemoveTheStoredKey)
{
    auto [info, smc] = collectorWith();
    smc->values["TC0P"] = sp78Value("TC0P", 50000);
    const TempDetail detail = info->getDetailTemp(tableOf({{"TC0P", "CPU"}}), {});
    EXPECT_EQ(detail.entries.size(), 1);
    EXPECT_TRUE(detail.removedTempKeys.isEmpty());
    // Without a table nothing is read and the stored keys come back as they were.
    EXPECT_EQ(info->getDetailTemp({}, {"TX0X"}).removedTempKeys, QStringList{"TX0X"});
}

TEST(TemperatureSample, OnlyWholeDegreesFromOneUpAreKeptAndAveraged)
{
    auto [info, smc] = collectorWith();
    smc->values["T075"] = bytesValue("T075", 0x00, 0xC0); // 0.75 degrees
    smc->values["T001"] = bytesValue("T001", 0x01, 0x00);
    smc->values["TNEG"] = bytesValue("TNEG", 0xFF, 0x00);
    smc->values["T040"] = bytesValue("T040", 0x28, 0xFF); // 40.996: the fraction is dropped
    smc->values["TFLT"] = bytesValue("TFLT", 0x2D, 0x00, "flt "); // the type is not looked at
    smc->values["TNIL"] = emptySmcValue("TNIL");
    const SensorDatDict dict = tableOf({{"T075", "a"}, {"T001", "b"}, {"TNEG", "c"}, {"T040", "d"}, {"TFLT", "e"},
                                        {"TNIL", "f"}, {"TGON", "g"}});

    const SensorSample sample = info->getBaseTempNew(dict);
    EXPECT_EQ(sample.values, (QMap<QString, qint64>{{"b", 1}, {"d", 40}, {"e", 45}}));
    EXPECT_EQ(sample.average, 28); // 86 / 3
    // Nothing valid: no values and no average either.
    EXPECT_TRUE(info->getBaseTempNew(tableOf({{"TNEG", "a"}, {"TGON", "b"}})).empty());
    EXPECT_TRUE(info->getBaseTempNew({}).empty());
}

TEST(FanList, NamesAreCleanedAndAnUnreadableNameIsUntitled)
{
    auto [info, smc] = collectorWith();
    smc->values["FNum"] = ui8Value("FNum", 3);
    smc->values["F1ID"] = textValue("F1ID", "\x01\x02Left side\xC2\xA0\x7F");
    smc->values["F2ID"] = textValue("F2ID", "   ");
    smc->values["F1Mn"] = fanSpeedValue("F1Mn", 1200);
    smc->values["F1Mx"] = fanSpeedValue("F1Mx", 6000);
    const QList<FanEntry> fans = info->getFanBase();
    ASSERT_EQ(fans.size(), 3);
    EXPECT_EQ(fans[0].name, "(Untitled Fan #1)");
    EXPECT_EQ(fans[0].idKey, "F0ID");
    EXPECT_EQ(fans[0].speedKey, "F0Ac");
    EXPECT_FALSE(fans[0].minimum);
    EXPECT_EQ(fans[1].name, "Leftside\x7F");
    EXPECT_EQ(fans[1].minimum, 1200);
    EXPECT_EQ(fans[1].maximum, 6000);
    EXPECT_EQ(fans[2].name, "(Untitled Fan #3)");
}

TEST(FanList, CountRulesAndTheLimitOfThirtySixIndexCharacters)
{
    struct Row {
        const char* what;
        SMCValue number;
        qsizetype fans;
        const char* lastSpeedKey;
    } rows[] = {
        {"forty reported, thirty-six listed", ui8Value("FNum", 40), 36, "FZAc"},
        {"eleven: the tenth index is A", ui8Value("FNum", 11), 11, "FAAc"},
        {"a two-byte count is its last byte", textValue("FNum", std::string("\x01\x02", 2), "ui16"), 2, "F1Ac"},
        {"no count", emptySmcValue("FNum"), 0, ""},
    };
    for (const Row& row : rows) {
        auto [info, smc] = collectorWith();
        smc->values["FNum"] = row.number;
        const QList<FanEntry> fans = info->getFanBase();
        ASSERT_EQ(fans.size(), row.fans) << row.what;
        if (!fans.isEmpty()) {
            EXPECT_EQ(fans.back().speedKey, QString::fromLatin1(row.lastSpeedKey)) << row.what;
        }
    }
}

TEST(FanSample, SpeedsAndTheirAverageOverTheWholeList)
{
    struct Row {
        const char* what;
        SensorDatDict fans;
        std::vector<std::pair<const char*, SMCValue>> speeds;
        QMap<QString, qint64> expected;
        qint64 average;
    } rows[] = {
        {"integer average", fansOf({{"A", "F0Ac"}, {"B", "F1Ac"}}),
         {{"F0Ac", fanSpeedValue("F0Ac", 1200)}, {"F1Ac", fanSpeedValue("F1Ac", 1301)}}, {{"A", 1200}, {"B", 1301}},
         1250},
        {"same name: the later wins, both divide", fansOf({{"A", "F0Ac"}, {"A", "F1Ac"}}),
         {{"F0Ac", fanSpeedValue("F0Ac", 1000)}, {"F1Ac", fanSpeedValue("F1Ac", 3000)}}, {{"A", 3000}}, 2000},
        {"negative left out but counted", fansOf({{"A", "F0Ac"}, {"B", "F1Ac"}}),
         {{"F0Ac", fanSpeedValue("F0Ac", 2001)}, {"F1Ac", bytesValue("F1Ac", 0x90, 0x00, "fpe2")}}, {{"A", 2001}}, 1000},
        {"unreadable is 0 and counted", fansOf({{"A", "F0Ac"}, {"B", "F1Ac"}}),
         {{"F0Ac", fanSpeedValue("F0Ac", 900)}}, {{"A", 900}, {"B", 0}}, 450},
        {"beyond fpe2, a float", fansOf({{"A", "F0Ac"}}), {{"F0Ac", fanSpeedValue("F0Ac", 9500)}}, {{"A", 9500}}, 9500},
    };
    for (Row& row : rows) {
        auto [info, smc] = collectorWith();
        for (auto& [key, value] : row.speeds)
            smc->values[key] = value;
        const SensorSample sample = info->getFanDetail(row.fans);
        EXPECT_EQ(sample.values, row.expected) << row.what;
        EXPECT_EQ(sample.average, row.average) << row.what;
    }
}

TEST(SensorCollectors, ASourceThatDoesNotOpenGivesNothingAndEndsNothing)
{
    auto [info, smc] = collectorWith();
    smc->values["TC0P"] = sp78Value("TC0P", 50000);
    smc->values["FNum"] = ui8Value("FNum", 1);
    smc->opens = false;
    EXPECT_FALSE(info->getSensorDatXml("MacBookPro11,1").tempData);
    const TempDetail detail = info->getDetailTemp(tableOf({{"TC0P", "CPU"}}), {"TX0X"});
    EXPECT_TRUE(detail.entries.isEmpty());
    EXPECT_EQ(detail.removedTempKeys, QStringList{"TX0X"});
    EXPECT_TRUE(info->getBaseTempNew(tableOf({{"TC0P", "CPU"}})).empty());
    EXPECT_TRUE(info->getFanBase().isEmpty());
    EXPECT_TRUE(info->getFanDetail(fansOf({{"A", "F0Ac"}})).empty());
    EXPECT_TRUE(info->getSmartDetailTemp(false).isEmpty());

    LoadSystemInformation bare{SourceSet{}};
    EXPECT_FALSE(bare.getSensorDatXml("MacBookPro11,1").tempData);
    EXPECT_TRUE(bare.getFanBase().isEmpty());
}

TEST(SensorCollectors, TheSystemsDescriptionFileNamesTheKeysFirst)
{
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const std::filesystem::path root = dir.path().toStdString();
    std::filesystem::create_directories(root / "usr/share/snmp");
    std::ofstream(root / "usr/share/snmp/SensorDat.xml")
        << R"(<plist version="1.0"><dict><key>MacMini4,1</key><dict><key>temp_data</key><dict>)"
        << R"(<key>TC0P</key><string> Processor </string></dict></dict></dict></plist>)";
    auto [info, smc] = collectorWith(root);
    const SensorDatDict dict = info->getSensorDatXml("Xserve3,1");
    ASSERT_TRUE(dict.tempData);
    const auto tc0p = std::find_if(dict.tempData->begin(), dict.tempData->end(),
                                   [](const TempSensorEntry& e) { return e.key == "TC0P"; });
    ASSERT_NE(tc0p, dict.tempData->end());
    EXPECT_EQ(tc0p->name, "Processor");

    // Where no SMC key can be answered the file is not even looked at.
    smc->smcKeys = false;
    smc->platform = {{"devices/platform/coretemp.0/temp1", "coretemp Core 0", "coretemp", {}, {}}};
    const SensorDatDict platformOnly = info->getSensorDatXml("Xserve3,1");
    ASSERT_TRUE(platformOnly.tempData);
    ASSERT_EQ(platformOnly.tempData->size(), 1);
    EXPECT_EQ(platformOnly.tempData->front().name, "Coretemp Core 0");
}

TEST(SensorCollectors, SamplesFromTwoThreadsNeverShareAConnection)
{
    auto [info, smc] = collectorWith();
    smc->values["TC0P"] = sp78Value("TC0P", 50000);
    smc->values["F0Ac"] = fanSpeedValue("F0Ac", 1000);
    const SensorDatDict temps = tableOf({{"TC0P", "CPU"}});
    const SensorDatDict fans = fansOf({{"A", "F0Ac"}});
    LoadSystemInformation* collector = info.get();
    std::thread other([collector, &fans] {
        for (int i = 0; i < 200; ++i)
            collector->getFanDetail(fans);
    });
    for (int i = 0; i < 200; ++i)
        collector->getBaseTempNew(temps);
    other.join();
    EXPECT_EQ(smc->overlaps, 0);
}

TEST(SmcValueEncoding, ReadingsComeBackThroughTheDecoders)
{
    const std::pair<std::int64_t, std::optional<std::int64_t>> temperatures[] = {
        {43000, 43}, {31850, 31}, {999, std::nullopt}, {-5500, std::nullopt}, {127999, 127}, {400000, 127},
        {-400000, std::nullopt}};
    for (const auto& [millidegrees, degrees] : temperatures)
        EXPECT_EQ(acceptedTemperature(0, sp78Value("T", millidegrees)), degrees) << millidegrees;
    // The general decoder takes the second byte as signed too: -5.5 degrees read as a number is -6.
    EXPECT_EQ(convertToNumber(sp78Value("T", -5500)), -6);
    const std::pair<std::int64_t, std::int64_t> speeds[] = {{0, 0}, {1200, 1200}, {8191, 8191}, {8192, 8192},
                                                            {20000, 20000}, {-5, 0}};
    for (const auto& [rpm, decoded] : speeds)
        EXPECT_EQ(convertToNumber(fanSpeedValue("F0Ac", rpm)), decoded) << rpm;
}
