// The Network status item's picture: the label, then the elements the user chose, in order.
#pragma once

#include "modules/image_bar.h"

#include "collect/history.h"
#include "collect/network_sample.h"
#include "modules/network/network_picture_settings.h"
#include "modules/network/network_rates.h"
#include "toolkit/menu_geometry.h"
#include "toolkit/text_attributes.h"

#include <QImage>
#include <QPainter>
#include <QSizeF>

// Element codes of NetworkItemSortArray: 1 upload and download labels, 2 activity lamps, 3 graph,
// 4 rate texts. Upload is drawn above download, each in its colour.
class ImageNetworkBar : public ImageBar<NetworkSample, NetworkPictureSettings> {
public:
    static constexpr double kLampDiameter = 7;

    // current: the rates the lamps and texts show.
    void redrawWithSize(QSizeF size, TvlClasses::Insets insets, bool isHighLighted, bool drawEmptyLine,
                        const NetworkPictureSettings& settings, const History<NetworkSample>& resumeArray,
                        const NetworkRates& current);

    double drawRect(QPainter& painter) const override;

private:
    void drawUdLabel(QPainter& painter, TvlClasses::TextAttributes& attributes, double& x) const;
    void drawIndicator(QPainter& painter, double& x) const;
    void drawGraph(QPainter& painter, double& x) const;
    void drawText(QPainter& painter, TvlClasses::TextAttributes& attributes, double& x) const;

    NetworkRates current_;
    // Linux panels highlight an open item themselves; the picture keeps its colours.
    static constexpr bool drawInWhite = false;
};
