// The CPU status item's picture: the label, then per core or averaged the elements the user chose.
#pragma once

#include "collect/cpu_sample.h"
#include "collect/history.h"
#include "prefs/module_defaults.h"
#include "toolkit/menu_geometry.h"
#include "toolkit/text_attributes.h"

#include <QImage>
#include <QPainter>
#include <QSizeF>

#include <cstddef>

class ImageCpuBar {
public:
    // Keeps its own copies of settings and history, so the module may replace its own at any
    // time, and a picture can be drawn on another thread from what was last handed over.
    void redrawWithSize(QSizeF size, TvlClasses::Insets insets, bool isHighLighted, bool drawEmptyLine,
                        const ModuleDefaults& myDefaults, const History<CpuSample>& resumeArray);

    // Draws on a painter in points with y up (a TvlClasses::PointCanvas). Returns where the
    // next element would start: the width rule must give this less the spacing plus 4.
    double drawRect(QPainter& painter) const;

    // The picture at devicePixelRatio pixels per point, transparent where nothing is drawn;
    // a null image when the size is empty.
    QImage image(qreal devicePixelRatio) const;

    QSizeF size() const { return mySize; }

private:
    void drawGraph(QPainter& painter, std::size_t core, double& x) const;
    void drawText(QPainter& painter, TvlClasses::TextAttributes& attributes, double usrUsage, double sysUsage,
                  double& x) const;

    ModuleDefaults myDefaults;
    History<CpuSample> resumeArray;
    bool isHighLighted = false;
    bool drawEmptyLine = false;
    QSizeF mySize;
    TvlClasses::Insets insets;
    // Linux panels highlight an open item themselves, so the picture never turns white when
    // its menu opens; a platform that leaves highlighting to the picture would flip this.
    static constexpr bool isYosemiteOver = true;
    static constexpr bool drawInWhite = !isYosemiteOver;
};
