// Keeps the descriptions of the mounted volumes and their disks, and rebuilds them as volumes
// are mounted, unmounted and renamed.
#pragma once

#include "app/volume_rename.h"
#include "collect/info_dict.h"
#include "collect/storage_descriptions.h"
#include "prefs/module_defaults.h"

#include <QObject>

#include <memory>
#include <vector>

class LoadSystemInformation;
class QSocketNotifier;

class VolumeTracker : public QObject {
    Q_OBJECT
public:
    // general: the application's General settings, whose Disk and Volume switches every rebuild
    // reads; it must outlive the tracker, as must loadInfo.
    VolumeTracker(LoadSystemInformation& loadInfo, const ModuleDefaults& general, QObject* parent = nullptr);
    ~VolumeTracker() override;

    // Listens, on this thread's event loop, for changes of the mount table and for block
    // devices whose label changed. Without the sources for them it does nothing.
    void startWatching();

    // Rebuilds the descriptions, unless Disk and Volume are both off; the disks only while
    // Disk is on. True when it rebuilt.
    bool collectDskVolDetail();
    // Rebuilds and announces the new descriptions: after a mount, an unmount or a rename.
    void moduleDskVolRefresh();

    // The Volume history is rewritten for the renames found since the previous call, and then
    // the descriptions are rebuilt. Call it between cycles, where the redraw step stores a
    // cycle's result: a running cycle holds a copy of the history and would put the old names
    // back. True when anything was renamed.
    bool applyPendingRenames(History<VolumeSample>& volumeHistory);

    const VolumeUtilDetail& volumeUtilDict() const { return volumeUtilDict_; }
    const VolumeBaseDict& volumeBaseDict() const { return *volumeBaseDict_; }
    // The same, for the cycle thread: a rebuild replaces the pointer, never what it points to.
    std::shared_ptr<const VolumeBaseDict> sharedVolumeBaseDict() const { return volumeBaseDict_; }
    const DiskBaseDict& diskBaseDict() const { return diskBaseDict_; }

Q_SIGNALS:
    // The descriptions changed after a mount, an unmount or a rename: the Disk and Volume
    // modules take them and reset their bars.
    void descriptionsChanged();

private:
    bool switchedOn() const;
    void mountTableChanged();
    void blockDevicesChanged();

    LoadSystemInformation& loadInfo_;
    const ModuleDefaults& general_;
    VolumeUtilDetail volumeUtilDict_;
    std::shared_ptr<const VolumeBaseDict> volumeBaseDict_;
    DiskBaseDict diskBaseDict_;
    std::vector<VolumeRename> pendingRenames_;
    QSocketNotifier* mountWatch_ = nullptr;
    QSocketNotifier* deviceWatch_ = nullptr;
};
