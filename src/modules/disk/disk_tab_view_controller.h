// The Disk module's preferences tab: elements and their order, graph, interval, labels, graph
// style and scale, per-disk sets, menu items and a live preview of the picture.
#pragma once

#include "collect/disk_sample.h"
#include "collect/storage_descriptions.h"
#include "modules/sampled_picture_tab.h"

class DiskTabViewController : public SampledPictureTab<DiskSample> {
    Q_OBJECT
public:
    DiskTabViewController(SettingsStore& store, PrefNotificationCenter& center, QWidget* parent = nullptr);

    // The elements in the list: lamps 1, graph 2, text 3.
    static const QList<Element>& elements();

    // The disks the preview draws one set for, as the status item does.
    void setDiskBaseDict(const DiskBaseDict& diskBaseDict);
    void setStorageDescriptions(const DiskBaseDict& disks, std::shared_ptr<const VolumeBaseDict> volumes) override
    {
        Q_UNUSED(volumes)
        setDiskBaseDict(disks);
    }

protected:
    QImage drawPreview(const ModuleDefaults& defaults) override;

private:
    QWidget* buildDisplay();

    DiskBaseDict diskBaseDict_;
};
