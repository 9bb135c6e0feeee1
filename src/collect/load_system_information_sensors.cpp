// Temperatures and fans: placeholders until the sensor collectors are in.
#include "collect/load_system_information.h"

SensorDatDict LoadSystemInformation::getSensorDatXml(const QString&)
{
    return {};
}

TempDetail LoadSystemInformation::getDetailTemp(const SensorDatDict&, const QStringList& removedTempKeys)
{
    return {{}, removedTempKeys};
}

SensorSample LoadSystemInformation::getBaseTempNew(const SensorDatDict&)
{
    return {};
}

QList<FanEntry> LoadSystemInformation::getFanBase()
{
    return {};
}

SensorSample LoadSystemInformation::getFanDetail(const SensorDatDict&)
{
    return {};
}

QList<SmartReading> LoadSystemInformation::getSmartTemp(bool)
{
    return {};
}

QList<SmartReading> LoadSystemInformation::getSmartDetailTemp(bool)
{
    return {};
}
