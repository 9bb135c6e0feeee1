// The CPU status item's picture: the label, then per core or averaged the elements the user chose.
#pragma once

#include "modules/image_bar.h"

#include "collect/cpu_sample.h"
#include "collect/history.h"
#include "modules/cpu/cpu_picture_settings.h"
#include "toolkit/menu_geometry.h"
#include "toolkit/text_attributes.h"

#include <QImage>
#include <QPainter>
#include <QSizeF>

#include <cstddef>

class ImageCpuBar : public ImageBar<CpuSample, CpuPictureSettings> {
public:
    void redrawWithSize(QSizeF size, TvlClasses::Insets insets, bool isHighLighted, bool drawEmptyLine,
                        const CpuPictureSettings& settings, const History<CpuSample>& resumeArray);

    double drawRect(QPainter& painter) const override;

private:
    void drawGraph(QPainter& painter, std::size_t core, double& x) const;
    void drawText(QPainter& painter, TvlClasses::TextAttributes& attributes, double usrUsage, double sysUsage,
                  double& x) const;

    // Linux panels highlight an open item themselves, so the picture never turns white when
    // its menu opens; a platform that leaves highlighting to the picture would flip this.
    static constexpr bool isYosemiteOver = true;
    static constexpr bool drawInWhite = !isYosemiteOver;
};
