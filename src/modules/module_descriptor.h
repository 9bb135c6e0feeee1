// What the application knows of one module without a desktop, given by the module's own folder.
#pragma once

#include "collect/info_dict.h"
#include "collect/sensor_dat.h"
#include "collect/storage_descriptions.h"
#include "prefs/pref_schema.h"

#include <QJsonObject>
#include <QString>

#include <memory>

class LoadSystemInformation;
class MenuModuleDelegate;
class ModulePicture;
class SettingsStore;

// What one module's step of the sampling cycle gets; it runs on the cycle's thread.
struct SampleRequest {
    LoadSystemInformation& loadInfo;
    std::size_t slot; // the module's history slot in the sampled data
    // The seconds since the module's previous sample, which this one covers: the interval
    // setting, or fewer while its menu is open, or more after a slow cycle.
    qint64 seconds;
    bool menuOpened; // its menu is open: what only the menu shows is wanted too
    const VolumeBaseDict& volumes;
    const SensorDatDict& sensors; // the sensor table of start-up
    // Swap usage is wanted beside the Memory sample (an alert rule on it, the long-term history).
    bool swapWanted = false;
};

// What a module's part of the snapshot report reads, after the last cycle.
struct SnapshotContext {
    const InfoDict& info;
    std::size_t slot;
    const char* key; // the module's key, under which its JSON goes
    const ModuleDefaults& settings;
    LoadSystemInformation& loadInfo;
    const DiskBaseDict& disks;
    const VolumeBaseDict& volumes;
    const SensorDatDict& sensors;
};

// A module's part of the snapshot report; made when the snapshot starts, told of every cycle.
class ModuleSnapshot {
public:
    virtual ~ModuleSnapshot() = default;
    virtual void cycleFinished() {}
    // The module's block of the text report.
    virtual QString text(const SnapshotContext& context) = 0;
    // Adds the module's newest raw sample (and anything else it reports) to the JSON report.
    virtual void addJson(const SnapshotContext& context, QJsonObject& root) = 0;
};

// Which of the volume and disk descriptions a module draws from.
enum class StorageUse {
    None,
    Disks,
    // Volumes: a volume just mounted is measured at the next cycle, not at the end of the interval.
    Volumes,
};

struct ModuleDescriptor {
    // The module's settings: keys, first-run values, theme entries, derived values.
    ModuleSchema schema;
    // Its step in the sampling cycle: appends a sample to its history, or leaves it unchanged
    // when the collector has none. Null for modules that keep no history.
    void (*sample)(const SampleRequest& request, InfoDict& info) = nullptr;
    // Sampled on the first cycle whatever its interval, so its picture fills at once.
    bool firstSampleAtOnce = false;
    StorageUse storage = StorageUse::None;
    // Its part of the snapshot report; null for modules that report nothing.
    std::unique_ptr<ModuleSnapshot> (*createSnapshot)(LoadSystemInformation& loadInfo) = nullptr;
    // What the collector forgets when the module's status item goes; null for nothing.
    void (*released)(LoadSystemInformation& loadInfo) = nullptr;
    // The figure its status item shows, as words, for the text view; empty before the first
    // sample. Null for modules whose item shows no figure.
    QString (*barText)(const SnapshotContext& context, const SettingsStore& store) = nullptr;
    // What draws its status item's picture; null for a module without a status item.
    std::unique_ptr<ModulePicture> (*createPicture)(MenuModuleDelegate* delegate) = nullptr;
};

// Factories for the descriptors' entries.
template <class Snapshot> std::unique_ptr<ModuleSnapshot> makeSnapshot(LoadSystemInformation& loadInfo)
{
    return std::make_unique<Snapshot>(loadInfo);
}

// A snapshot part of two functions, for modules that keep nothing between cycles.
template <QString (*Text)(const SnapshotContext&), void (*Json)(const SnapshotContext&, QJsonObject&)>
class PlainSnapshot final : public ModuleSnapshot {
public:
    explicit PlainSnapshot(LoadSystemInformation&) {}
    QString text(const SnapshotContext& context) override { return Text(context); }
    void addJson(const SnapshotContext& context, QJsonObject& root) override { Json(context, root); }
};

template <QString (*Text)(const SnapshotContext&), void (*Json)(const SnapshotContext&, QJsonObject&)>
std::unique_ptr<ModuleSnapshot> makePlainSnapshot(LoadSystemInformation& loadInfo)
{
    return std::make_unique<PlainSnapshot<Text, Json>>(loadInfo);
}

// Appends a sample to the request's slot: a new history, the old one left to its readers.
template <class Sample> void appendSample(const SampleRequest& request, InfoDict& info, Sample sample)
{
    info.setHistory(request.slot, info.history<Sample>(request.slot).appended(std::move(sample)));
}

// The history of a module's slot, typed.
template <class Sample> History<Sample> moduleHistory(const InfoDict& info, ModuleId id)
{
    return info.history<Sample>(moduleIndex(id));
}
