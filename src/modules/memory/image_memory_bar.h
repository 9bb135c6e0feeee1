// The Memory status item's picture: the label, then the elements the user chose, in order.
#pragma once

#include "modules/image_bar.h"

#include "collect/history.h"
#include "collect/memory_sample.h"
#include "modules/memory/memory_bar_width.h"
#include "modules/memory/memory_breakdown.h"
#include "modules/memory/memory_picture_settings.h"
#include "toolkit/menu_geometry.h"
#include "toolkit/text_attributes.h"

#include <QImage>
#include <QPainter>
#include <QSizeF>

#include <cstddef>
#include <cstdint>

// Element codes of MemoryItemSortArray: 1 graph, 2 level bar, 3 cycle meter, 4 text (in use
// and free), 5 detail text (two columns of two parts of the chosen view).
class ImageMemoryBar : public ImageBar<MemorySample, MemoryPictureSettings> {
public:
    // pageSize turns the sample's pages into bytes; totalPages is the machine's memory.
    explicit ImageMemoryBar(std::size_t pageSize = 4096, std::int64_t totalPages = 0);
    void setMemorySize(std::size_t pageSize, std::int64_t totalPages);

    void redrawWithSize(QSizeF size, TvlClasses::Insets insets, bool isHighLighted, bool drawEmptyLine,
                        const MemoryPictureSettings& settings, const History<MemorySample>& resumeArray,
                        const MemoryTextWidths& widths);

    double drawRect(QPainter& painter) const override;

private:
    void drawGraph(QPainter& painter, double& x) const;
    void drawText(QPainter& painter, TvlClasses::TextAttributes& attributes, const MemoryBreakdown& parts,
                  double& x) const;
    void drawDetailText(QPainter& painter, TvlClasses::TextAttributes& attributes, const MemoryBreakdown& parts,
                        double& x) const;
    // A header on the left and its figure on the right of a column, in the upper or lower half.
    void drawLine(QPainter& painter, TvlClasses::TextAttributes& attributes, const QRectF& column, int vAlign,
                  const QString& header, const QColor& headerColor, std::int64_t pages) const;

    std::size_t pageSize_;
    std::int64_t totalPages_;
    MemoryTextWidths widths_;
    // Linux panels highlight an open item themselves; the picture keeps its colours.
    static constexpr bool drawInWhite = false;
};
