// What every module's picture view keeps between redraws, and how it becomes an image.
#pragma once

#include "collect/history.h"
#include "toolkit/menu_geometry.h"
#include "toolkit/point_canvas.h"

#include <QImage>
#include <QPainter>
#include <QSizeF>

// A view keeps its own copies of settings and history, so the module may replace its own at any
// time, and a picture can be drawn on another thread from what was last handed over. Settings is
// the module's typed picture settings, read from its dictionary once per change.
template <class Sample, class Settings> class ImageBar {
public:
    virtual ~ImageBar() = default;

    // Draws on a painter in points with y up (a TvlClasses::PointCanvas). Returns where the
    // next element would start: the width rule must give this less the spacing plus 4.
    virtual double drawRect(QPainter& painter) const = 0;

    // The picture at devicePixelRatio pixels per point, transparent where nothing is drawn;
    // a null image when the size is empty.
    QImage image(qreal devicePixelRatio) const
    {
        TvlClasses::PointCanvas canvas(mySize, devicePixelRatio);
        if (canvas.isActive())
            drawRect(canvas.painter());
        return canvas.takeImage();
    }

    QSizeF size() const { return mySize; }

protected:
    void setFrame(QSizeF size, TvlClasses::Insets newInsets, bool highLighted, bool emptyLine, const Settings& settings,
                  const History<Sample>& history)
    {
        mySize = size;
        insets = newInsets;
        isHighLighted = highLighted;
        drawEmptyLine = emptyLine;
        mySettings = settings;
        resumeArray = history;
    }

    Settings mySettings;
    History<Sample> resumeArray;
    bool isHighLighted = false;
    bool drawEmptyLine = false;
    QSizeF mySize;
    TvlClasses::Insets insets;
};
