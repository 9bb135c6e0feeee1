// The Volume module's preferences tab: elements and their order, graph, interval, labels, the
// used or free percentage, colours by fill, per-volume sets, menu items and a live preview.
#pragma once

#include "collect/disk_sample.h"
#include "collect/storage_descriptions.h"
#include "modules/sampled_picture_tab.h"

#include <memory>

class VolumeTabViewController : public SampledPictureTab<VolumeSample> {
    Q_OBJECT
public:
    VolumeTabViewController(SettingsStore& store, PrefNotificationCenter& center, QWidget* parent = nullptr);

    // The elements in the list: bar chart 1, cycle chart 2, graph 3, text 4, percentage 5.
    static const QList<Element>& elements();

    // The volumes the preview draws one set for, as the status item does.
    void setVolumeBaseDict(std::shared_ptr<const VolumeBaseDict> volumeBaseDict);
    void setStorageDescriptions(const DiskBaseDict& disks, std::shared_ptr<const VolumeBaseDict> volumes) override
    {
        Q_UNUSED(disks)
        setVolumeBaseDict(std::move(volumes));
    }

protected:
    QImage drawPreview(const ModuleDefaults& defaults) override;

private:
    QWidget* buildDisplay();

    std::shared_ptr<const VolumeBaseDict> volumeBaseDict_;
};
