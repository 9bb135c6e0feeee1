// The system's sensor description file: per machine model, the names of its SMC temperature keys.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <filesystem>
#include <optional>
#include <utility>

// One model of the file and the names it gives its keys, in the file's order.
struct SensorDatModel {
    QString name; // "MacBookPro11,1"
    QList<std::pair<QString, QString>> tempData; // SMC key, sensor name
};

// The file's bytes below root; empty when it is missing or unreadable, which is normal: only
// some systems have it.
std::optional<QByteArray> readSensorDatFile(const std::filesystem::path& root);

// The models of a property list (XML or binary) whose top level maps model names to
// dictionaries that may hold "temp_data"; values of any other shape are passed over. Empty when
// the bytes are no property list or hold no dictionary.
QList<SensorDatModel> parseSensorDat(const QByteArray& bytes);
