// The Disk status item's picture: the label, then per disk or combined the elements the user chose.
#pragma once

#include "modules/image_bar.h"

#include "collect/disk_sample.h"
#include "collect/history.h"
#include "modules/disk/disk_bar_width.h"
#include "modules/disk/disk_rates.h"
#include "prefs/module_defaults.h"
#include "toolkit/menu_geometry.h"
#include "toolkit/text_attributes.h"

#include <QImage>
#include <QPainter>
#include <QSizeF>

#include <vector>

class ImageDiskBar : public ImageBar<DiskSample> {
public:
    // Keeps its own copies of settings, history and sets, so the module may replace its own at
    // any time, and a picture can be drawn on another thread from what was last handed over.
    void redrawWithSize(QSizeF size, TvlClasses::Insets insets, bool isHighLighted, bool drawEmptyLine,
                        const ModuleDefaults& myDefaults, const History<DiskSample>& resumeArray,
                        const std::vector<DiskBarSet>& sets);

    double drawRect(QPainter& painter) const override;

private:
    void moduleForeach(QPainter& painter, const DiskBarSet& set, TvlClasses::TextAttributes& attributes,
                       double& x) const;
    void drawIndicator(QPainter& painter, TvlClasses::TextAttributes& attributes, const DiskRates& rates,
                       double& x) const;
    void drawGraph(QPainter& painter, TvlClasses::TextAttributes& attributes, const QString& key, double& x) const;
    void drawText(QPainter& painter, TvlClasses::TextAttributes& attributes, const DiskRates& rates, double& x) const;
    // The read and write labels of one element, in its label column; returns the column's width.
    double drawLabels(QPainter& painter, TvlClasses::TextAttributes& attributes, const char* listKey,
                      const char* widthKey, double x) const;
    void drawBackgroundIcon(QPainter& painter, const DiskBarSet& set, double x) const;

    std::vector<DiskBarSet> sets_;
    // Linux panels highlight an open item themselves, so the picture never turns white.
    static constexpr bool drawInWhite = false;
};
