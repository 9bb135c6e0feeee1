// Records what a module's picture view draws, in points on the y-up canvas, for the picture tests.
#pragma once

#include "modules/image_bar.h"
#include "toolkit/recording_paint_device.h"

#include <QPainter>
#include <QStringList>

#include <vector>

struct Drawn {
    std::vector<DrawCall> calls;
    double end = 0; // where the next element would start
};

// Draws the view, as redrawn last, on a recording device of deviceSize (the picture's height).
template <class Sample, class Settings> Drawn recordPicture(const ImageBar<Sample, Settings>& bar, QSize deviceSize)
{
    RecordingPaintDevice device(deviceSize);
    QPainter painter(&device);
    TvlClasses::PointCanvas::flipToPoints(painter, deviceSize.height());
    Drawn drawn;
    drawn.end = bar.drawRect(painter);
    painter.end();
    drawn.calls = device.calls();
    return drawn;
}

// The texts drawn, in drawing order.
inline QStringList textsOf(const std::vector<DrawCall>& calls)
{
    QStringList texts;
    for (const DrawCall& call : calls)
        if (call.kind == DrawCall::Text)
            texts << call.text;
    return texts;
}
