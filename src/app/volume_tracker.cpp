// Mount table and device manager watches on the main event loop, and the rebuilds they start.
#include "app/volume_tracker.h"

#include "collect/load_system_information.h"
#include "prefs/pref_keys.h"
#include "toolkit/localization.h"

#include <QSocketNotifier>

#include <algorithm>

namespace {
// The collector leaves a root file system that nothing names without a name of its own.
VolumeBaseDict withRootNamed(VolumeBaseDict base)
{
    for (auto& [path, volume] : base)
        if (volume.isUnnamedRoot)
            volume.volumeName = Tarvel::localized("Root");
    return base;
}
} // namespace

VolumeTracker::VolumeTracker(LoadSystemInformation& loadInfo, const ModuleDefaults& general, QObject* parent)
    : QObject(parent)
    , loadInfo_(loadInfo)
    , general_(general)
    , volumeBaseDict_(std::make_shared<const VolumeBaseDict>())
{}

VolumeTracker::~VolumeTracker() = default;

void VolumeTracker::startWatching()
{
    const SourceSet& sources = loadInfo_.sources();
    if (mountWatch_ == nullptr && sources.mounts) {
        // The kernel flags the open table as exceptional after each mount or unmount, so the
        // table is read again only when it did change.
        if (const int fd = sources.mounts->changeDescriptor(); fd >= 0) {
            mountWatch_ = new QSocketNotifier(fd, QSocketNotifier::Exception, this);
            connect(mountWatch_, &QSocketNotifier::activated, this, &VolumeTracker::mountTableChanged);
        }
    }
    if (deviceWatch_ == nullptr && sources.deviceDatabase) {
        if (const int fd = sources.deviceDatabase->eventDescriptor(); fd >= 0) {
            deviceWatch_ = new QSocketNotifier(fd, QSocketNotifier::Read, this);
            connect(deviceWatch_, &QSocketNotifier::activated, this, &VolumeTracker::blockDevicesChanged);
        }
    }
}

bool VolumeTracker::switchedOn() const
{
    return general_.boolValue(PrefKey::LaunchVolume) || general_.boolValue(PrefKey::LaunchDisk);
}

bool VolumeTracker::collectDskVolDetail()
{
    if (!switchedOn())
        return false;
    volumeUtilDict_ = loadInfo_.retVolumeUtilDetail();
    volumeBaseDict_ = std::make_shared<const VolumeBaseDict>(withRootNamed(loadInfo_.retVolumeBase(volumeUtilDict_)));
    // Disk descriptions are left as they were while the Disk module is off.
    if (general_.boolValue(PrefKey::LaunchDisk))
        diskBaseDict_ = loadInfo_.retDisAccessBase(volumeUtilDict_, *volumeBaseDict_);
    return true;
}

void VolumeTracker::moduleDskVolRefresh()
{
    if (collectDskVolDetail())
        Q_EMIT descriptionsChanged();
}

bool VolumeTracker::applyPendingRenames(History<VolumeSample>& volumeHistory)
{
    if (pendingRenames_.empty())
        return false;
    const std::vector<VolumeRename> renames = std::move(pendingRenames_);
    pendingRenames_.clear();
    // Without a history there is nothing to carry over, and the rename is not acted on.
    if (volumeHistory.empty())
        return false;
    for (const VolumeRename& rename : renames)
        volumeHistory = renameVolumeInHistory(volumeHistory, rename);
    moduleDskVolRefresh();
    return true;
}

void VolumeTracker::mountTableChanged()
{
    moduleDskVolRefresh();
}

void VolumeTracker::blockDevicesChanged()
{
    DeviceDatabaseSource* database = loadInfo_.sources().deviceDatabase.get();
    if (database == nullptr)
        return;
    // Every queued event is taken, whatever happens next, so the descriptor stops signalling.
    const DeviceEvents events = database->takeDeviceEvents();
    if (!events.any || !switchedOn())
        return;
    // A change event also comes with a new medium or a repartition; only a mounted volume
    // whose name moved is a rename. The descriptions stay as they are until the rename is
    // applied, so the samples taken meanwhile still carry the old name and move with it.
    const VolumeBaseDict after = withRootNamed(loadInfo_.retVolumeBase(loadInfo_.retVolumeUtilDetail()));
    const std::vector<VolumeRename> renames = renamedVolumes(*volumeBaseDict_, after);
    for (const VolumeRename& rename : renames)
        if (std::find(pendingRenames_.begin(), pendingRenames_.end(), rename) == pendingRenames_.end())
            pendingRenames_.push_back(rename);
    if (!renames.empty() || !general_.boolValue(PrefKey::LaunchDisk))
        return;
    // A loop device detaches only after its volume's unmount has been handled, and a disk can
    // come or go without any mount: the disk list is rebuilt when its members changed.
    const DiskBaseDict disks = loadInfo_.retDisAccessBase(volumeUtilDict_, *volumeBaseDict_);
    const auto sameName = [](const auto& a, const auto& b) { return a.first == b.first; };
    if (!std::equal(disks.begin(), disks.end(), diskBaseDict_.begin(), diskBaseDict_.end(), sameName))
        moduleDskVolRefresh();
}
