// Disk and Volume pictures drawn from a full history over four disks and four volumes.
#include "storage_picture_bench.h"

#include "modules/disk/disk_bar_width.h"
#include "modules/disk/image_disk_bar.h"
#include "modules/module_prefs.h"
#include "modules/volume/image_volume_bar.h"
#include "modules/volume/volume_bar_width.h"
#include "prefs/plist_settings_store.h"
#include "prefs/pref_functions.h"
#include "prefs/pref_keys.h"
#include "toolkit/menu_geometry.h"

#include <QTemporaryDir>

#include <chrono>
#include <cstdio>
#include <random>

namespace {

constexpr qreal kScale = 2;
constexpr int kDevices = 4;

template <class Draw> void measure(const char* label, Draw&& draw, QSizeF size, int pictures)
{
    QImage last = draw(); // warm-up: fonts and glyph caches
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < pictures; ++i)
        last = draw();
    const auto elapsed = std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start);
    std::printf("%-44s %8.1f us/picture  (%gx%g pt, %d pictures)\n", label, elapsed.count() / pictures, size.width(),
                size.height(), pictures);
}

struct Storage {
    DiskBaseDict disks;
    VolumeBaseDict volumes;
    History<DiskSample> diskHistory;
    History<VolumeSample> volumeHistory;
};

// Busy, varied samples, so no column is skipped as empty.
Storage fullStorage()
{
    std::mt19937 random(7);
    std::uniform_int_distribution<std::uint64_t> step(0, 5'000'000);
    Storage s;
    std::array<DiskCounters, kDevices> counters{};
    for (int d = 0; d < kDevices; ++d) {
        s.disks[QStringLiteral("/dev/sd%1").arg(QChar(u'a' + d))].bsdName = QStringLiteral("sd%1").arg(QChar(u'a' + d));
        s.volumes[QStringLiteral("/mnt/v%1").arg(d)].volumeName = QStringLiteral("v%1").arg(d);
    }
    for (std::size_t i = 0; i < History<DiskSample>::kMaxSamples; ++i) {
        DiskSample disk{{}, 1};
        VolumeSample volume;
        std::int64_t total = 0;
        std::int64_t free = 0;
        for (int d = 0; d < kDevices; ++d) {
            counters[d][0] += step(random);
            counters[d][1] += step(random);
            disk.devices[QStringLiteral("/dev/sd%1").arg(QChar(u'a' + d))] = counters[d];
            const std::int64_t left = static_cast<std::int64_t>(step(random)) * 100;
            volume.volumes[QStringLiteral("/mnt/v%1").arg(d)] =
                VolumeUsage{1'000'000'000'000, 1'000'000'000'000 - left, left, {}};
            total += 1'000'000'000'000;
            free += left;
        }
        volume.all = VolumeUsage{total, total - free, free, {}};
        s.diskHistory = s.diskHistory.appended(std::move(disk));
        s.volumeHistory = s.volumeHistory.appended(std::move(volume));
    }
    return s;
}

// One picture of Bar for the sets, width wide at the bar's height.
template <class Bar, class Settings, class History>
void measurePicture(const char* label, const Settings& settings, const History& history,
                    const std::vector<StorageBarSet>& sets, double width, int shownElements, int pictures)
{
    const QSizeF size(width, TvlClasses::retRootMenuHeight());
    Bar bar;
    bar.redrawWithSize(size, TvlClasses::retStatusMenuInsets(shownElements), false, true, settings, history, sets);
    measure(
        label, [&] { return bar.image(kScale); }, size, pictures);
}

void measureDisk(const char* label, const ModuleDefaults& defaults, const Storage& s, int pictures)
{
    const DiskPictureSettings d = diskPictureSettings(defaults);
    const std::vector<StorageBarSet> sets = diskBarSets(d, s.disks);
    measurePicture<ImageDiskBar>(label, d, s.diskHistory, sets, diskBarWidth(d, sets.size()), diskShownElementCount(d),
                                 pictures);
}

void measureVolume(const char* label, const ModuleDefaults& defaults, const Storage& s, int pictures)
{
    const VolumePictureSettings v = volumePictureSettings(defaults);
    const std::vector<StorageBarSet> sets = volumeBarSets(v, s.volumes);
    measurePicture<ImageVolumeBar>(label, v, s.volumeHistory, sets,
                                   volumeBarWidth(v, sets.size(), TvlClasses::retRootMenuHeight()),
                                   volumeShownElementCount(v), pictures);
}

} // namespace

void benchStoragePictures(const QVariantMap& theme, int pictures)
{
    QTemporaryDir folder;
    PlistSettingsStore store(folder.filePath(QStringLiteral("settings.plist")));
    PrefFunctions::initializeDiskPreference(store);
    PrefFunctions::initializeVolumePreference(store);
    const ModuleDefaults disk = PrefFunctions::loadModuleDefaults(ModuleId::Disk, store, theme);
    const ModuleDefaults volume = PrefFunctions::loadModuleDefaults(ModuleId::Volume, store, theme);
    const Storage storage = fullStorage();

    std::printf("\nDisk and Volume pictures at scale %g, %d disks and %d volumes, %zu samples of history:\n", kScale,
                kDevices, kDevices, storage.diskHistory.size());
    measureDisk("Disk: first-run lamps, per disk", disk, storage, pictures);
    ModuleDefaults everyDisk = disk;
    for (const char* key : {PrefKey::Disk_Display_Graph, PrefKey::Disk_Display_Text, PrefKey::DiskInnerIconAbleToBeBol})
        everyDisk.set(key, true);
    measureDisk("Disk: lamps, graph and text, per disk", everyDisk, storage, pictures);
    everyDisk.set(PrefKey::Disk_Graph_Mode, qint64{4});
    measureDisk("Disk: the same with line graphs", everyDisk, storage, pictures);

    measureVolume("Volume: first-run bar chart, per volume", volume, storage, pictures);
    ModuleDefaults everyVolume = volume;
    for (const char* key : {PrefKey::Vlms_Display_CycleChart, PrefKey::Vlms_Display_Graph, PrefKey::Vlms_Display_Text,
                            PrefKey::Vlms_Display_Percent, PrefKey::VlmsInnerIconAbleToBeBol})
        everyVolume.set(key, true);
    measureVolume("Volume: all five elements, per volume", everyVolume, storage, pictures);
}
