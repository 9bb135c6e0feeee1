// Composing the Temp and Fan pictures from the figure's graph and its text.
#include "modules/image_sensor_bar.h"

#include "toolkit/color_list.h"
#include "toolkit/graph_color.h"
#include "toolkit/level_bar.h"
#include "toolkit/text_drawing.h"

#include <algorithm>

using namespace TvlClasses;

namespace {

enum ElementCode : qint64 { Graph = 1, Text = 2 };

} // namespace

std::optional<qint64> sensorValue(const SensorSample& sample, const QString& shown)
{
    return shown.isEmpty() ? sample.average : sample.reading(shown);
}

int sensorShownElementCount(const SensorPictureSettings& settings)
{
    return shownElementCount(settings.shownElements());
}

double sensorBarWidth(const SensorPictureSettings& settings)
{
    const int shown = sensorShownElementCount(settings);
    if (shown == 0)
        return 0;
    const double s = retStatusMenuInsets(shown).spacing;
    double width = 0;
    if (settings.graph)
        width += settings.graphWidth + s;
    // Piled text lies on the graph and takes no room of its own.
    if (settings.text && !(settings.graph && settings.piled()))
        width += settings.textWidth + s;
    if (settings.showLabel)
        width += kModuleLabelWidth;
    return width - s + 4;
}

void ImageSensorBar::redrawWithSize(QSizeF size, Insets newInsets, bool highLighted, bool emptyLine,
                                    const SensorPictureSettings& settings, const History<SensorSample>& history,
                                    const QString& shown)
{
    setFrame(size, newInsets, highLighted, emptyLine, settings, history);
    shown_ = shown;
}

double ImageSensorBar::fractionOf(qint64 value) const
{
    const double maximum = mySettings.maximum;
    return maximum > 0 ? std::clamp(static_cast<double>(value) / maximum, 0.0, 1.0) : 0.0;
}

QColor ImageSensorBar::levelColor(double fraction) const
{
    const SensorPictureSettings& settings = mySettings;
    return retGraphColor(fraction, settings.low, settings.warning, settings.critical, settings.gradient);
}

double ImageSensorBar::drawRect(QPainter& painter) const
{
    const SensorPictureSettings& settings = mySettings;
    if (!settings.loaded)
        return 0;
    double x = drawModuleLabel(painter, settings);
    TextAttributes attributes = settings.textAttributes;
    const bool piled = settings.graph && settings.piled();
    forEachShownElement(settings.order, settings.shownElements(), [&](qint64 code) {
        if (code == Graph) {
            drawGraph(painter, attributes, x);
        } else if (code == Text && !piled) {
            drawText(painter, attributes, QRectF(x, 0, settings.textWidth, mySize.height()), false);
            x += settings.textWidth + insets.spacing;
        }
    });
    return x;
}

void ImageSensorBar::drawGraph(QPainter& painter, TextAttributes& attributes, double& x) const
{
    const SensorPictureSettings& settings = mySettings;
    const double width = settings.graphWidth;
    const double height = mySize.height() - insets.top - insets.bottom;
    // Leftwards from the right edge, newest first, one point per sample; a sample without the
    // figure leaves a gap.
    double right = x + width;
    for (std::size_t i = resumeArray.size(); i > 0 && right > x; --i, right -= 1) {
        const std::optional<qint64> value = sensorValue(resumeArray[i - 1], shown_);
        if (!value || settings.maximum <= 0)
            continue;
        const double fraction = fractionOf(*value);
        painter.fillRect(QRectF(right - 1, insets.top, 1, fraction * height),
                         drawingColor(levelColor(fraction), drawInWhite));
    }
    if (right > x && drawEmptyLine)
        tvlDrawEmptyUnderLine(painter, settings.emptyLine, x, insets.top, right - x);
    if (settings.text && settings.piled())
        drawText(painter, attributes, QRectF(x, 0, width, mySize.height()), true);
    x += width + insets.spacing;
}

void ImageSensorBar::drawText(QPainter& painter, TextAttributes& attributes, const QRectF& frame, bool piled) const
{
    const SensorPictureSettings& settings = mySettings;
    const std::optional<qint64> value =
        resumeArray.empty() ? std::nullopt : sensorValue(resumeArray.back(), shown_);
    const QColor ink = settings.colored && value ? levelColor(fractionOf(*value)) : settings.textColor;
    if (!piled) {
        tvlDrawString(painter, valueText(value, false), 1, 2, ink, attributes, frame, settings.fontAdjust, drawInWhite);
        return;
    }
    // On the graph: the heavier shadow, and the smaller size where the full one does not fit.
    TextAttributes onGraph = attributes;
    const bool shrunk = settings.piledFontSize > 0;
    if (shrunk)
        onGraph.font.setPointSizeF(settings.piledFontSize);
    onGraph.shadow = retPiledTextShadow(settings.textAttributes.shadow ? settings.textAttributes.shadow->color
                                                                       : QColor(Qt::transparent));
    tvlDrawString(painter, valueText(value, shrunk), 1, 1, ink, onGraph, frame, settings.fontAdjust, drawInWhite);
}
