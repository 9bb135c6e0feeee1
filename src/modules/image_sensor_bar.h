// The Temp and Fan pictures: the label, then one figure's graph and text in the user's order.
#pragma once

#include "modules/image_bar.h"

#include "collect/history.h"
#include "collect/sensor_dat.h"
#include "modules/sensor_picture_settings.h"
#include "toolkit/menu_geometry.h"
#include "toolkit/text_attributes.h"

#include <QPainter>
#include <QSizeF>
#include <QString>

#include <optional>

// The figure a picture follows in a sample: a sensor's name, or empty for the average.
std::optional<qint64> sensorValue(const SensorSample& sample, const QString& shown);

// How many of the two elements are on.
int sensorShownElementCount(const SensorPictureSettings& settings);
// The picture's width in points: the graph, the text unless it is piled on the graph, 12 for the
// label; the last spacing becomes a 4-point end margin. 0 when no element is shown.
double sensorBarWidth(const SensorPictureSettings& settings);

// Element codes of the order arrays: 1 graph, 2 text. The graph draws the figure against the
// settings' maximum, coloured low, warning (from 70%) and critical (from 90%).
class ImageSensorBar : public ImageBar<SensorSample, SensorPictureSettings> {
public:
    void redrawWithSize(QSizeF size, TvlClasses::Insets insets, bool isHighLighted, bool drawEmptyLine,
                        const SensorPictureSettings& settings, const History<SensorSample>& resumeArray,
                        const QString& shown);

    double drawRect(QPainter& painter) const override;

    // The figure as the text element shows it; bare leaves the unit out, for text piled on the
    // graph. No figure gives the placeholder.
    virtual QString valueText(std::optional<qint64> value, bool bare) const = 0;

private:
    void drawGraph(QPainter& painter, TvlClasses::TextAttributes& attributes, double& x) const;
    void drawText(QPainter& painter, TvlClasses::TextAttributes& attributes, const QRectF& frame, bool piled) const;
    // The figure's share of the full scale, 0 to 1.
    double fractionOf(qint64 value) const;
    // Low, warning from 0.7, critical from 0.9 (blended between them with the gradient setting).
    QColor levelColor(double fraction) const;

    QString shown_;
    // Linux panels highlight an open item themselves; the picture keeps its colours.
    static constexpr bool drawInWhite = false;
};
