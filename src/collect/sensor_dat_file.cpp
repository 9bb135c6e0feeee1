// Reads and parses the sensor description property list with libplist.
#include "collect/sensor_dat_file.h"

#include "toolkit/guarded_file.h"
#include "toolkit/plist_nesting.h"

#include <plist/plist.h>

#include <cstdlib>
#include <limits>
#include <memory>

namespace {
struct PlistFree {
    void operator()(void* node) const { plist_free(static_cast<plist_t>(node)); }
};
struct CFree {
    void operator()(void* p) const { std::free(p); }
};

// Calls visit(key, value) for each entry of a dictionary node, in its order.
template <class Visit> void forEachEntry(plist_t dict, Visit visit)
{
    if (dict == nullptr || plist_get_node_type(dict) != PLIST_DICT)
        return;
    plist_dict_iter iter = nullptr;
    plist_dict_new_iter(dict, &iter);
    if (iter == nullptr)
        return;
    const std::unique_ptr<void, CFree> iterOwner(iter);
    for (;;) {
        char* rawKey = nullptr;
        plist_t value = nullptr;
        plist_dict_next_item(dict, iter, &rawKey, &value);
        const std::unique_ptr<char, CFree> key(rawKey);
        if (value == nullptr)
            return;
        if (key)
            visit(QString::fromUtf8(key.get()), value);
    }
}

std::optional<QString> stringValue(plist_t node)
{
    if (plist_get_node_type(node) != PLIST_STRING)
        return std::nullopt;
    char* raw = nullptr;
    plist_get_string_val(node, &raw);
    const std::unique_ptr<char, CFree> text(raw);
    return text ? std::optional(QString::fromUtf8(text.get())) : std::nullopt;
}
} // namespace

std::optional<QByteArray> readSensorDatFile(const std::filesystem::path& root)
{
    // The system's table is a few hundred kilobytes.
    return GuardedFile::readBounded(QString::fromStdString((root / "usr/share/snmp/SensorDat.xml").string()),
                                    8 * 1024 * 1024);
}

QList<SensorDatModel> parseSensorDat(const QByteArray& bytes)
{
    QList<SensorDatModel> models;
    // Models, their fields and the sensors: anything deeper is not the table.
    if (bytes.isEmpty() || bytes.size() > std::numeric_limits<int32_t>::max() || !plistNestingWithin(bytes, 8))
        return models;
    plist_t raw = nullptr;
    plist_from_memory(bytes.constData(), static_cast<uint32_t>(bytes.size()), &raw);
    const std::unique_ptr<void, PlistFree> root(raw);
    forEachEntry(raw, [&models](const QString& modelName, plist_t model) {
        SensorDatModel entry{modelName, {}};
        forEachEntry(model, [&entry](const QString& field, plist_t value) {
            if (field != QLatin1String("temp_data"))
                return;
            forEachEntry(value, [&entry](const QString& key, plist_t name) {
                if (const auto text = stringValue(name))
                    entry.tempData.append({key, *text});
            });
        });
        models.append(std::move(entry));
    });
    return models;
}
