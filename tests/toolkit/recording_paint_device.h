// Test paint device that records what a painter draws instead of rasterising it.
#pragma once

#include <QColor>
#include <QFont>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainterPath>
#include <QRectF>
#include <QString>
#include <QTransform>

#include <memory>
#include <vector>

// One drawing call, in device coordinates (the painter's transform applied). A 72-dpi
// device, so text is measured in points as on the pictures.
struct DrawCall {
    enum Kind { Rect, Path, Text, Image };
    Kind kind = Rect;
    QRectF rect;       // Rect, Image: the rectangle; Path: its bounds; Text: the text's box
    QPainterPath path; // Path only
    QColor brush;      // invalid when nothing is filled
    QColor pen;        // invalid when nothing is stroked
    double penWidth = 0;
    bool antialiased = false;
    QString text;
    QFont font;
};

class RecordingPaintDevice : public QPaintDevice {
public:
    explicit RecordingPaintDevice(QSize size = QSize(200, 22));
    ~RecordingPaintDevice() override;

    QPaintEngine* paintEngine() const override;
    const std::vector<DrawCall>& calls() const;
    std::vector<DrawCall> calls(DrawCall::Kind kind) const;

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    QSize size_;
    std::unique_ptr<QPaintEngine> engine_;
};

// Angles of a filled wedge (centre, arc, back to the centre): where its arc starts, in [0, 360),
// and the signed angle it sweeps, both in degrees counter-clockwise on a y-up canvas.
struct Wedge {
    double start = 0;
    double sweep = 0;
};
Wedge wedgeOf(const QPainterPath& path, const QPointF& centre);
