// Disk and Volume working dictionaries, descriptions and histories for the module tests.
#pragma once

#include "collect/disk_sample.h"
#include "collect/history.h"
#include "collect/storage_descriptions.h"
#include "modules/disk/disk_picture_settings.h"
#include "modules/volume/volume_picture_settings.h"
#include "prefs/module_defaults.h"
#include "prefs/pref_keys.h"

#include <QFontDatabase>

#include <vector>

inline void setColor(ModuleDefaults& d, const char* key, int r, int g, int b)
{
    d.set(key, QVariant::fromValue(QColor(r, g, b)));
}

// Every element in its default order, graph 30 points, label columns 10 points, figures 40.
inline ModuleDefaults diskPictureDefaults(bool indicator, bool graph, bool text, bool eachDisk = true,
                                          bool label = false)
{
    using namespace PrefKey;
    ModuleDefaults d;
    d.set(DiskItemSortArray, QVariantList{1, 2, 3});
    d.set(Disk_Display_Indicator, indicator);
    d.set(Disk_Display_Graph, graph);
    d.set(Disk_Display_Text, text);
    d.set(Disk_ShowEachDisk, eachDisk);
    d.set(Disk_ShowMyLabel, label);
    d.set(Disk_GraphWidth, qint64{30});
    d.set(Disk_Indicator_LabelAry, QStringList{"R:", "W:"});
    d.set(DiskInnerIndicatorLabelWidth, qint64{10});
    d.set(DiskInnerGraphLabelWidth, qint64{0});
    d.set(Disk_Text_LabelAry, QStringList{"R:", "W:"});
    d.set(DiskInnerTextLabelWidth, qint64{10});
    d.set(DiskInnerTextValueWidth, qint64{40});
    d.set(_FontPostScriptName, QFontDatabase::systemFont(QFontDatabase::FixedFont).family());
    setColor(d, "D01", 0, 200, 0);
    setColor(d, "D02", 200, 0, 0);
    setColor(d, "D03", 50, 50, 50);
    setColor(d, "D04", 120, 120, 120);
    setColor(d, "Z03", 40, 40, 40);
    return d;
}

inline DiskPictureSettings diskSettings(bool indicator, bool graph, bool text, bool eachDisk = true, bool label = false)
{
    return diskPictureSettings(diskPictureDefaults(indicator, graph, text, eachDisk, label));
}

// Every element in its default order, graph 30 points, labels 10, sizes 40, percentage 20.
inline ModuleDefaults volumePictureDefaults(int elementMask, bool eachVolume = true, bool label = false)
{
    using namespace PrefKey;
    ModuleDefaults d;
    d.set(VlmsItemSortArray, QVariantList{1, 2, 3, 4, 5});
    const char* keys[] = {Vlms_Display_BarChart, Vlms_Display_CycleChart, Vlms_Display_Graph, Vlms_Display_Text,
                          Vlms_Display_Percent};
    for (int i = 0; i < 5; ++i)
        d.set(keys[i], (elementMask & (1 << i)) != 0);
    d.set(Vlms_ShowEachDisk, eachVolume);
    d.set(Vlms_ShowMyLabel, label);
    d.set(Vlms_GraphWidth, qint64{30});
    d.set(Vlms_Text_LabelAry, QStringList{"U:", "F:"});
    d.set(VlmsInnerTextLabelWidth, qint64{10});
    d.set(VlmsInnerTextValueWidth, qint64{40});
    d.set(VlmsInnerPercentWidth, qint64{20});
    d.set(_FontPostScriptName, QFontDatabase::systemFont(QFontDatabase::FixedFont).family());
    setColor(d, "E01", 0, 0, 200);
    setColor(d, "E02", 200, 150, 0);
    setColor(d, "E03", 200, 0, 0);
    setColor(d, "E04", 120, 120, 120);
    setColor(d, "E05", 50, 50, 50);
    setColor(d, "E06", 10, 10, 10);
    setColor(d, "E07", 20, 20, 20);
    setColor(d, "Z03", 40, 40, 40);
    return d;
}

inline VolumePictureSettings volumeSettings(int elementMask, bool eachVolume = true, bool label = false)
{
    return volumePictureSettings(volumePictureDefaults(elementMask, eachVolume, label));
}

inline DiskBaseDict twoDisks()
{
    DiskBaseDict disks;
    disks[QStringLiteral("/dev/nvme0n1")].bsdName = QStringLiteral("nvme0n1");
    disks[QStringLiteral("/dev/sda")].bsdName = QStringLiteral("sda");
    return disks;
}

// A local volume on a device, or a share when bsdPath is empty.
inline VolumeBaseEntry volumeEntry(const char* name, const char* bsdName, const char* bsdPath, const char* fileType)
{
    VolumeBaseEntry v;
    v.volumeName = QLatin1String(name);
    v.bsdName = QLatin1String(bsdName);
    v.bsdPath = QLatin1String(bsdPath);
    v.isNetworkVol = v.bsdPath.isEmpty();
    v.iconKind = v.isNetworkVol ? VolumeIconKind::Network : VolumeIconKind::Internal;
    v.fileType = QLatin1String(fileType);
    v.totalSize = 1000;
    return v;
}

// "/" and a removable stick under /media.
inline VolumeBaseDict twoVolumes()
{
    VolumeBaseDict volumes;
    volumes[QStringLiteral("/")] = volumeEntry("Root", "vda1", "/dev/vda1", "ext4");
    volumes[QStringLiteral("/")].isWritable = true;
    VolumeBaseEntry stick = volumeEntry("STICK", "sdb1", "/dev/sdb1", "vfat");
    stick.iconKind = VolumeIconKind::External;
    stick.isRemovable = stick.isWritable = stick.isUnmountable = true;
    volumes[QStringLiteral("/media/stick")] = stick;
    return volumes;
}

template <class Sample> History<Sample> historyOf(std::vector<Sample> samples)
{
    return History<Sample>::fromSamples(std::move(samples));
}
