// The Volume status item's picture: the label, then per volume or combined the elements the user chose.
#pragma once

#include "modules/storage_image_bar.h"

#include "collect/disk_sample.h"
#include "collect/history.h"
#include "modules/volume/volume_bar_width.h"
#include "modules/volume/volume_picture_settings.h"
#include "toolkit/text_attributes.h"

#include <QPainter>

class ImageVolumeBar : public StorageImageBar<VolumeSample, VolumePictureSettings> {
protected:
    double setWidth() const override;
    void drawSet(QPainter& painter, const StorageBarSet& set, TvlClasses::TextAttributes& attributes,
                 double& x) const override;

private:
    void drawGraph(QPainter& painter, const QString& path, double& x) const;
    void drawPercent(QPainter& painter, TvlClasses::TextAttributes& attributes, const VolumeUsage& usage,
                     double& x) const;
    void drawText(QPainter& painter, TvlClasses::TextAttributes& attributes, const VolumeUsage& usage, double& x) const;

    // Linux panels highlight an open item themselves, so the picture never turns white.
    static constexpr bool drawInWhite = false;
};
