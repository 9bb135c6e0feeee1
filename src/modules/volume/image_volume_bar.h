// The Volume status item's picture: the label, then per volume or combined the elements the user chose.
#pragma once

#include "modules/image_bar.h"

#include "collect/disk_sample.h"
#include "collect/history.h"
#include "modules/volume/volume_bar_width.h"
#include "modules/volume/volume_graph.h"
#include "prefs/module_defaults.h"
#include "toolkit/menu_geometry.h"
#include "toolkit/text_attributes.h"

#include <QImage>
#include <QPainter>
#include <QSizeF>

#include <vector>

class ImageVolumeBar : public ImageBar<VolumeSample> {
public:
    // Keeps its own copies of settings, history and sets, so the module may replace its own at
    // any time, and a picture can be drawn on another thread from what was last handed over.
    void redrawWithSize(QSizeF size, TvlClasses::Insets insets, bool isHighLighted, bool drawEmptyLine,
                        const ModuleDefaults& myDefaults, const History<VolumeSample>& resumeArray,
                        const std::vector<VolumeBarSet>& sets);

    double drawRect(QPainter& painter) const override;

private:
    void moduleForeach(QPainter& painter, const VolumeBarSet& set, const VolumeUsage& usage,
                       TvlClasses::TextAttributes& attributes, double& x) const;
    void drawGraph(QPainter& painter, const QString& path, double& x) const;
    void drawPercent(QPainter& painter, TvlClasses::TextAttributes& attributes, const VolumeUsage& usage,
                     double& x) const;
    void drawText(QPainter& painter, TvlClasses::TextAttributes& attributes, const VolumeUsage& usage, double& x) const;
    void drawBackgroundIcon(QPainter& painter, const VolumeBarSet& set, double x) const;

    std::vector<VolumeBarSet> sets_;
    TvlClasses::VolumeGraphStyle style_;
    // Linux panels highlight an open item themselves, so the picture never turns white.
    static constexpr bool drawInWhite = false;
};
