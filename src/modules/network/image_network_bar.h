// The Network status item's picture: the label, then the elements the user chose, in order.
#pragma once

#include "collect/history.h"
#include "collect/network_sample.h"
#include "modules/network/network_rates.h"
#include "prefs/module_defaults.h"
#include "toolkit/menu_geometry.h"
#include "toolkit/text_attributes.h"

#include <QImage>
#include <QPainter>
#include <QSizeF>

// Element codes of NetworkItemSortArray: 1 upload and download labels, 2 activity lamps, 3 graph,
// 4 rate texts. Upload is drawn in C01 above download in C02.
class ImageNetworkBar {
public:
    static constexpr double kLampDiameter = 7;

    // Keeps its own copies of settings and history, so the module may replace its own at any
    // time, and a picture can be drawn on another thread from what was last handed over.
    // current: the rates the lamps and texts show.
    void redrawWithSize(QSizeF size, TvlClasses::Insets insets, bool isHighLighted, bool drawEmptyLine,
                        const ModuleDefaults& myDefaults, const History<NetworkSample>& resumeArray,
                        const NetworkRates& current);

    // Draws on a painter in points with y up (a TvlClasses::PointCanvas). Returns where the
    // next element would start: the width rule must give this less the spacing plus 4.
    double drawRect(QPainter& painter) const;

    // The picture at devicePixelRatio pixels per point; a null image when the size is empty.
    QImage image(qreal devicePixelRatio) const;

private:
    void drawUdLabel(QPainter& painter, TvlClasses::TextAttributes& attributes, double& x) const;
    void drawIndicator(QPainter& painter, double& x) const;
    void drawGraph(QPainter& painter, double& x) const;
    void drawText(QPainter& painter, TvlClasses::TextAttributes& attributes, double& x) const;

    ModuleDefaults myDefaults;
    History<NetworkSample> resumeArray;
    NetworkRates current_;
    bool isHighLighted = false;
    bool drawEmptyLine = false;
    QSizeF mySize;
    TvlClasses::Insets insets;
    // Linux panels highlight an open item themselves; the picture keeps its colours.
    static constexpr bool drawInWhite = false;
};
