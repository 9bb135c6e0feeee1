// Builds the temperature sensor table: which keys the machine is read by and what each is called.
#pragma once

#include "collect/sensor_dat.h"
#include "collect/sensor_dat_file.h"

#include <QList>
#include <QString>
#include <QStringList>

// The model identifier's characters up to, not including, the first "," or decimal digit:
// MacBookPro11,1 gives MacBookPro.
QString modelFamily(const QString& macRawName);

// The model of the file whose names come first, among its model names sorted without regard to
// case: the last one that begins with the family (or the one the identifier equals in lower
// case); failing that, the last one that is neither an Xserve nor a Mac Pro; failing that,
// "MacMini3,1".
QString chooseSensorModel(const QStringList& sortedModels, const QString& macRawName);

// Every named key, each once, in the order the names were given: the file's models (the chosen
// one first, then the others in reverse sorted order), then the built-in tables, when the
// platform serves SMC keys at all; then the platform's own sensors. A key keeps the first name
// it is given; a platform sensor that is also an SMC key lends it its group and marks.
QList<TempSensorEntry> namedSensorKeys(const QList<SensorDatModel>& file, const QString& macRawName,
                                       bool smcKeys, const QList<TempSensorEntry>& platform);

// The first letter and every letter after a blank in upper case; the rest as it is.
QString capitalizedSensorName(const QString& name);

// The table as shown: names sorted without regard to case, each given the first key that bears
// it, capitalised. A name already listed is skipped, but the check compares the raw name with
// the capitalised ones listed, so a name that capitalisation changes is listed once for each key
// that bears it, every time with the same first key.
QList<TempSensorEntry> sensorList(const QList<TempSensorEntry>& named);
