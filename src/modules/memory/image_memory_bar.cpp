// Composing the Memory picture from the toolkit's bar, meter and text primitives.
#include "modules/memory/image_memory_bar.h"

#include "modules/memory/memory_graph.h"
#include "modules/picture_label.h"
#include "toolkit/circle_meter.h"
#include "toolkit/graph_color.h"
#include "toolkit/level_bar.h"
#include "toolkit/localization.h"
#include "toolkit/point_canvas.h"
#include "toolkit/text_drawing.h"
#include "toolkit/value_format.h"

using namespace TvlClasses;

namespace {

enum ElementCode : qint64 { Graph = 1, LevelBar = 2, CycleMeter = 3, Text = 4, DetailText = 5 };

constexpr double kLevelBarWidth = 7;

const char* headerOf(MemoryPart part, bool longLabel)
{
    switch (part) {
    case MemoryPart::Wired:
        return longLabel ? Tarvel::textKey("Wired:") : Tarvel::textKey("W:");
    case MemoryPart::Active:
        return longLabel ? Tarvel::textKey("Active:") : Tarvel::textKey("A:");
    case MemoryPart::Inactive:
        return longLabel ? Tarvel::textKey("Inactive:") : Tarvel::textKey("I:");
    case MemoryPart::Application:
        return longLabel ? Tarvel::textKey("App:") : Tarvel::textKey("A:");
    case MemoryPart::Cached:
        return longLabel ? Tarvel::textKey("Cached:") : Tarvel::textKey("C:");
    case MemoryPart::Free:
        return longLabel ? Tarvel::textKey("Free:") : Tarvel::textKey("F:");
    case MemoryPart::Compressed:
    case MemoryPart::Other:
        break;
    }
    return "";
}

const MemoryShare& shareOf(const MemoryBreakdown& parts, MemoryPart part)
{
    for (const MemoryShare& share : parts.shares) {
        if (share.part == part)
            return share;
    }
    return parts.shares.back();
}

} // namespace

ImageMemoryBar::ImageMemoryBar(std::size_t pageSize, std::int64_t totalPages)
    : pageSize_(pageSize)
    , totalPages_(totalPages)
{}

void ImageMemoryBar::setMemorySize(std::size_t pageSize, std::int64_t totalPages)
{
    pageSize_ = pageSize;
    totalPages_ = totalPages;
}

void ImageMemoryBar::redrawWithSize(QSizeF size, Insets newInsets, bool highLighted, bool emptyLine,
                                    const MemoryPictureSettings& settings, const History<MemorySample>& history,
                                    const MemoryTextWidths& widths)
{
    setFrame(size, newInsets, highLighted, emptyLine, settings, history);
    widths_ = widths;
}

double ImageMemoryBar::drawRect(QPainter& painter) const
{
    const MemoryPictureSettings& settings = mySettings;
    if (!settings.loaded || resumeArray.empty())
        return 0;
    double x = 0;
    x += drawModuleLabel(painter, settings);

    const MemoryBreakdown parts = memoryBreakdown(resumeArray.back(), totalPages_, settings.traditional);
    ColorList shares;
    for (std::size_t s = 0; s < parts.shares.size(); ++s)
        shares.push_back({settings.partColor(parts.shares[s].part), parts.fraction(s)});
    const ColorShare frameColor{settings.frame, {}};

    TextAttributes attributes = settings.textAttributes;

    const double innerHeight = mySize.height() - insets.top - insets.bottom;
    forEachShownElement(settings.order, settings.shownElements(), [&](qint64 code) {
        switch (code) {
        case Graph:
            drawGraph(painter, x);
            break;
        case LevelBar: {
            // Shares stack from the bottom; the frame colour comes last, over them.
            ColorList bar = shares;
            bar.push_back(frameColor);
            tvlDrawLevelBar(painter, bar, QRectF(x, insets.top, kLevelBarWidth, innerHeight), drawInWhite);
            x += kLevelBarWidth + insets.spacing;
            break;
        }
        case CycleMeter: {
            // The meter walks its list backwards: frame first, so it is stroked last.
            ColorList meter{frameColor};
            meter.insert(meter.end(), shares.begin(), shares.end());
            tvlDrawCicleBar(painter, meter, QRectF(x, insets.top, innerHeight, innerHeight), isHighLighted,
                            drawInWhite);
            x += innerHeight + insets.spacing;
            break;
        }
        case Text:
            drawText(painter, attributes, parts, x);
            break;
        case DetailText:
            drawDetailText(painter, attributes, parts, x);
            break;
        default:
            break;
        }
    });
    return x;
}

void ImageMemoryBar::drawGraph(QPainter& painter, double& x) const
{
    const MemoryPictureSettings& settings = mySettings;
    const double graphWidth = settings.graphWidth;
    MemoryGraphStyle style{totalPages_, settings.traditional, {}, settings.low, settings.warning, settings.critical};
    const MemoryBreakdown layout = memoryBreakdown(MemorySample{}, 0, settings.traditional);
    for (std::size_t s = 0; s < layout.shares.size(); ++s)
        style.partColors[s] = settings.partColor(layout.shares[s].part);
    // The graph's frame names its right edge: it draws leftwards from there, newest first.
    const QRectF frame(x + graphWidth, insets.top, graphWidth, mySize.height() - insets.top - insets.bottom);
    const double widthLeft = tvlDrawMemoryGraph(painter, resumeArray, style, frame, drawInWhite);
    if (widthLeft > 0 && drawEmptyLine)
        tvlDrawEmptyUnderLine(painter, settings.emptyLine, x, insets.top, widthLeft);
    x += graphWidth + insets.spacing;
}

void ImageMemoryBar::drawLine(QPainter& painter, TextAttributes& attributes, const QRectF& column, int vAlign,
                              const QString& header, const QColor& headerColor, std::int64_t pages) const
{
    const int ajustPointY = mySettings.fontAdjust;
    tvlDrawString(painter, header, vAlign, 0, headerColor, attributes, column, ajustPointY, drawInWhite);
    tvlDrawString(painter, calcMemorySize(pages * static_cast<std::int64_t>(pageSize_), mySettings.unit), vAlign, 2,
                  mySettings.textColor, attributes, column, ajustPointY, drawInWhite);
}

void ImageMemoryBar::drawText(QPainter& painter, TextAttributes& attributes, const MemoryBreakdown& parts,
                              double& x) const
{
    const MemoryPictureSettings& settings = mySettings;
    const bool longLabel = settings.longText;
    const QRectF column(x, 0, widths_.text(), mySize.height());
    // The figure in use is headed in the colour of the memory pressure, as the graph shows it.
    const QColor pressure = retGraphColor(memoryPressure(resumeArray.back(), totalPages_), settings.low,
                                          settings.warning, settings.critical, true);
    const char* usedKey = longLabel ? Tarvel::textKey("Used:") : Tarvel::textKey("U:");
    const char* freeKey = longLabel ? Tarvel::textKey("Free:") : Tarvel::textKey("F:");
    drawLine(painter, attributes, column, 0, Tarvel::localized(usedKey), pressure, parts.inUse());
    drawLine(painter, attributes, column, 2, Tarvel::localized(freeKey), settings.textColor,
             shareOf(parts, MemoryPart::Free).pages);
    x += widths_.text() + insets.spacing;
}

void ImageMemoryBar::drawDetailText(QPainter& painter, TextAttributes& attributes, const MemoryBreakdown& parts,
                                    double& x) const
{
    const bool longLabel = mySettings.longDetail;
    const std::array<MemoryPart, 4> shown =
        parts.traditional
            ? std::array{MemoryPart::Wired, MemoryPart::Active, MemoryPart::Inactive, MemoryPart::Free}
            : std::array{MemoryPart::Application, MemoryPart::Wired, MemoryPart::Cached, MemoryPart::Free};
    const QRectF columns[] = {
        QRectF(x, 0, widths_.detailLeft, mySize.height()),
        QRectF(x + widths_.detailLeft + MemoryTextWidths::kColumnGap, 0, widths_.detailRight, mySize.height())};
    for (std::size_t i = 0; i < shown.size(); ++i) {
        const MemoryPart part = shown[i];
        // Free's own colour is kept faint; its header is drawn like the figures.
        const QColor header = part == MemoryPart::Free ? mySettings.textColor : mySettings.partColor(part);
        drawLine(painter, attributes, columns[i / 2], i % 2 == 0 ? 0 : 2, Tarvel::localized(headerOf(part, longLabel)), header,
                 shareOf(parts, part).pages);
    }
    x += widths_.detail() + insets.spacing;
}
