// Temperatures, fans and drive temperatures: the sensor table, its start-up filter and the samples.
#include "collect/load_system_information.h"

#include "collect/sensor_dat_file.h"
#include "collect/sensor_table.h"
#include "collect/sensor_value_rules.h"
#include "collect/smc_decoding.h"

namespace {
int readKey(SmcSource& smc, const QString& key, SMCValue& value)
{
    return smc.readValue(key.toStdString(), value);
}

// A limit the fan reports, when the key answers with a value.
std::optional<int> fanLimit(SmcSource& smc, const QString& key)
{
    SMCValue value;
    if (readKey(smc, key, value) != 0 || value.dataSize == 0)
        return std::nullopt;
    return static_cast<int>(convertToNumber(value));
}
} // namespace

bool LoadSystemInformation::withSmcConnection(const std::function<void(SmcSource&)>& use)
{
    const std::lock_guard guard(sensorLock);
    SmcSource* smc = sources_.smc.get();
    // Without an SMC or a chip standing in for one, there are no sensors here.
    if (smc == nullptr || !smc->open())
        return false;
    use(*smc);
    smc->close();
    return true;
}

SensorDatDict LoadSystemInformation::getSensorDatXml(const QString& macRawName)
{
    bool smcKeys = false;
    QList<TempSensorEntry> platform;
    const bool connected = withSmcConnection([&](SmcSource& smc) {
        smcKeys = smc.servesSmcKeys();
        platform = smc.namedTemperatures();
    });
    if (!connected)
        return {};
    QList<SensorDatModel> file;
    if (smcKeys)
        if (const auto bytes = readSensorDatFile(sources_.root))
            file = parseSensorDat(*bytes);
    SensorDatDict dict;
    QList<TempSensorEntry> list = sensorList(namedSensorKeys(file, macRawName, smcKeys, platform));
    if (!list.isEmpty())
        dict.tempData = std::move(list);
    return dict;
}

TempDetail LoadSystemInformation::getDetailTemp(const SensorDatDict& dict, const QStringList& removedTempKeys)
{
    TempDetail detail{{}, removedTempKeys};
    if (!dict.tempData || dict.tempData->isEmpty())
        return detail;
    // Nothing can be learnt without a connection: the stored keys then stay as they are.
    withSmcConnection([&](SmcSource& smc) {
        for (const TempSensorEntry& entry : *dict.tempData) {
            // A key that failed once, at any start, is never read again.
            if (removedTempKeys.contains(entry.key))
                continue;
            SMCValue value;
            if (readKey(smc, entry.key, value) != 0 || value.dataSize == 0)
                detail.removedTempKeys.append(entry.key);
            else
                detail.entries.append(entry);
        }
    });
    return detail;
}

SensorSample LoadSystemInformation::getBaseTempNew(const SensorDatDict& dict)
{
    SensorSample sample;
    if (!dict.tempData)
        return sample;
    qint64 sum = 0;
    qint64 count = 0;
    withSmcConnection([&](SmcSource& smc) {
        for (const TempSensorEntry& entry : *dict.tempData) {
            SMCValue value;
            const int result = readKey(smc, entry.key, value);
            if (const auto degrees = acceptedTemperature(result, value)) {
                sample.values.insert(entry.name, *degrees);
                sum += *degrees;
                ++count;
            }
        }
    });
    if (count > 0)
        sample.average = sum / count;
    return sample;
}

QList<FanEntry> LoadSystemInformation::getFanBase()
{
    QList<FanEntry> fans;
    withSmcConnection([&fans](SmcSource& smc) {
        SMCValue number;
        readKey(smc, QStringLiteral("FNum"), number);
        const std::uint32_t count = fanCount(number);
        for (int i = 0; static_cast<std::uint32_t>(i) < count && i < kMaxFans; ++i) {
            FanEntry fan{{}, fanKey(i, "ID"), fanKey(i, "Ac"), {}, {}};
            // A failed read leaves the value empty, which names the fan "(Untitled Fan #n)".
            SMCValue id;
            readKey(smc, fan.idKey, id);
            fan.name = cleanedFanName(id, i);
            fan.minimum = fanLimit(smc, fanKey(i, "Mn"));
            fan.maximum = fanLimit(smc, fanKey(i, "Mx"));
            fans.append(std::move(fan));
        }
    });
    return fans;
}

SensorSample LoadSystemInformation::getFanDetail(const SensorDatDict& dict)
{
    SensorSample sample;
    if (dict.fanData.isEmpty())
        return sample;
    qint64 sum = 0;
    const bool connected = withSmcConnection([&](SmcSource& smc) {
        for (const FanEntry& fan : dict.fanData) {
            // The read's result is not looked at: an unreadable speed is an empty value, 0 rpm.
            SMCValue value;
            readKey(smc, fan.speedKey, value);
            const qint64 rpm = convertToNumber(value);
            if (rpm >= 0) {
                sample.values.insert(fan.name, rpm);
                sum += rpm;
            }
        }
    });
    // Over the whole list, fans left out for a negative speed included.
    if (connected)
        sample.average = sum / dict.fanData.size();
    return sample;
}

std::optional<SmartReading> LoadSystemInformation::PerformSMARTUnitTest(DriveSource& drives, const DriveListing& drive,
                                                                        bool titleOnly)
{
    SmartReading reading{QString::fromStdString(drive.model), 0};
    if (!titleOnly && drive.hasSensorChip) {
        reading.temperature = static_cast<int>(drive.chipMillidegrees.value_or(0) / 1000);
    } else if (!titleOnly) {
        const AtaPages pages = drives.readAtaPages(drive.name).value_or(AtaPages{});
        if (pages.identify && ataIdentifyValid(*pages.identify)) {
            if (reading.model.isEmpty())
                reading.model = QString::fromLatin1(ataModelName(*pages.identify));
            if (pages.smartData && ataSmartDataValid(*pages.smartData))
                reading.temperature = ataTemperature(*pages.smartData);
        }
    }
    if (reading.model.isEmpty())
        return std::nullopt;
    return reading;
}

QList<SmartReading> LoadSystemInformation::getSmartTemp(bool titleOnly)
{
    QList<SmartReading> readings;
    if (!sources_.drives)
        return readings;
    const std::lock_guard guard(driveLock);
    for (const DriveListing& drive : sources_.drives->listDrives(!titleOnly))
        if (auto reading = PerformSMARTUnitTest(*sources_.drives, drive, titleOnly))
            readings.append(std::move(*reading));
    return readings;
}

QList<SmartReading> LoadSystemInformation::getSmartDetailTemp(bool titleOnly)
{
    QList<SmartReading> readings = getSmartTemp(titleOnly);
    if (!readings.isEmpty())
        readings.prepend(SmartReading{QStringLiteral("---"), 0});
    return readings;
}
