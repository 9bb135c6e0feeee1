// The Disk status item's picture: the label, then per disk or combined the elements the user chose.
#pragma once

#include "modules/storage_image_bar.h"

#include "collect/disk_sample.h"
#include "collect/history.h"
#include "modules/disk/disk_bar_width.h"
#include "modules/disk/disk_picture_settings.h"
#include "modules/disk/disk_rates.h"
#include "toolkit/text_attributes.h"

#include <QPainter>

class ImageDiskBar : public StorageImageBar<DiskSample, DiskPictureSettings> {
protected:
    double setWidth() const override;
    void drawSet(QPainter& painter, const StorageBarSet& set, TvlClasses::TextAttributes& attributes,
                 double& x) const override;

private:
    void drawIndicator(QPainter& painter, TvlClasses::TextAttributes& attributes, const DiskRates& rates,
                       double& x) const;
    void drawGraph(QPainter& painter, TvlClasses::TextAttributes& attributes, const QString& key, double& x) const;
    void drawText(QPainter& painter, TvlClasses::TextAttributes& attributes, const DiskRates& rates, double& x) const;
    // The read and write labels of one element, in its label column; returns the column's width.
    double drawLabels(QPainter& painter, TvlClasses::TextAttributes& attributes, const DiskLabelColumn& column,
                      double x) const;

    // Linux panels highlight an open item themselves, so the picture never turns white.
    static constexpr bool drawInWhite = false;
};
