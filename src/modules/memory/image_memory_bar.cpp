// Composing the Memory picture from the toolkit's bar, meter and text primitives.
#include "modules/memory/image_memory_bar.h"

#include "modules/memory/memory_graph.h"
#include "modules/memory/memory_theme_keys.h"
#include "modules/picture_label.h"
#include "prefs/pref_keys.h"
#include "toolkit/circle_meter.h"
#include "toolkit/graph_color.h"
#include "toolkit/level_bar.h"
#include "toolkit/localization.h"
#include "toolkit/menu_font.h"
#include "toolkit/point_canvas.h"
#include "toolkit/text_drawing.h"
#include "toolkit/value_format.h"

using namespace PrefKey;
using namespace TvlClasses;

namespace {

enum ElementCode : qint64 { Graph = 1, LevelBar = 2, CycleMeter = 3, Text = 4, DetailText = 5 };

constexpr double kLevelBarWidth = 7;

const char* headerOf(MemoryPart part, bool longLabel)
{
    switch (part) {
    case MemoryPart::Wired:
        return longLabel ? "Wired:" : "W:";
    case MemoryPart::Active:
        return longLabel ? "Active:" : "A:";
    case MemoryPart::Inactive:
        return longLabel ? "Inactive:" : "I:";
    case MemoryPart::Application:
        return longLabel ? "App:" : "A:";
    case MemoryPart::Cached:
        return longLabel ? "Cached:" : "C:";
    case MemoryPart::Free:
        return longLabel ? "Free:" : "F:";
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
                                    const ModuleDefaults& defaults, const History<MemorySample>& history,
                                    const MemoryTextWidths& widths)
{
    setFrame(size, newInsets, highLighted, emptyLine, defaults, history);
    widths_ = widths;
}

double ImageMemoryBar::drawRect(QPainter& painter) const
{
    if (myDefaults.isEmpty() || resumeArray.empty())
        return 0;
    double x = 0;
    x += drawModuleLabel(painter, myDefaults, Memory_ShowMyLabel, MemoryThemeKey::L02);

    const MemoryBreakdown parts =
        memoryBreakdown(resumeArray.back(), totalPages_, myDefaults.boolValue(Memory_TradMemoryInfo));
    ColorList shares;
    for (std::size_t s = 0; s < parts.shares.size(); ++s)
        shares.push_back({memoryPartColor(myDefaults, parts.shares[s].part), parts.fraction(s)});
    const ColorShare frameColor{myDefaults.color(MemoryThemeKey::B06), {}};

    TextAttributes attributes = menuTextAttributes(myDefaults);

    const double innerHeight = mySize.height() - insets.top - insets.bottom;
    for (const qint64 code : myDefaults.intList(MemoryItemSortArray)) {
        switch (code) {
        case Graph:
            if (myDefaults.boolValue(Memory_Display_Graph))
                drawGraph(painter, x);
            break;
        case LevelBar:
            if (myDefaults.boolValue(Memory_Display_LevelBar)) {
                // Shares stack from the bottom; the frame colour comes last, over them.
                ColorList bar = shares;
                bar.push_back(frameColor);
                tvlDrawLevelBar(painter, bar, QRectF(x, insets.top, kLevelBarWidth, innerHeight), drawInWhite);
                x += kLevelBarWidth + insets.spacing;
            }
            break;
        case CycleMeter:
            if (myDefaults.boolValue(Memory_Display_CircleMeter)) {
                // The meter walks its list backwards: frame first, so it is stroked last.
                ColorList meter{frameColor};
                meter.insert(meter.end(), shares.begin(), shares.end());
                tvlDrawCicleBar(painter, meter, QRectF(x, insets.top, innerHeight, innerHeight), isHighLighted,
                                drawInWhite);
                x += innerHeight + insets.spacing;
            }
            break;
        case Text:
            if (myDefaults.boolValue(Memory_Display_Text))
                drawText(painter, attributes, parts, x);
            break;
        case DetailText:
            if (myDefaults.boolValue(Memory_Display_DetailText))
                drawDetailText(painter, attributes, parts, x);
            break;
        default: // codes of later versions are skipped
            break;
        }
    }
    return x;
}

void ImageMemoryBar::drawGraph(QPainter& painter, double& x) const
{
    const auto graphWidth = static_cast<double>(myDefaults.intValue(Memory_GraphWidth));
    const bool traditional = myDefaults.boolValue(Memory_TradMemoryInfo);
    MemoryGraphStyle style{totalPages_,
                           traditional,
                           {},
                           myDefaults.color(MemoryThemeKey::B08),
                           myDefaults.color(MemoryThemeKey::B09),
                           myDefaults.color(MemoryThemeKey::B10)};
    const MemoryBreakdown layout = memoryBreakdown(MemorySample{}, 0, traditional);
    for (std::size_t s = 0; s < layout.shares.size(); ++s)
        style.partColors[s] = memoryPartColor(myDefaults, layout.shares[s].part);
    // The graph's frame names its right edge: it draws leftwards from there, newest first.
    const QRectF frame(x + graphWidth, insets.top, graphWidth, mySize.height() - insets.top - insets.bottom);
    const double widthLeft = tvlDrawMemoryGraph(painter, resumeArray, style, frame, drawInWhite);
    if (widthLeft > 0 && drawEmptyLine)
        tvlDrawEmptyUnderLine(painter, myDefaults.color(MemoryThemeKey::Z03), x, insets.top, widthLeft);
    x += graphWidth + insets.spacing;
}

void ImageMemoryBar::drawLine(QPainter& painter, TextAttributes& attributes, const QRectF& column, int vAlign,
                              const QString& header, const QColor& headerColor, std::int64_t pages) const
{
    const auto ajustPointY = static_cast<int>(myDefaults.intValue(_FontAdjust));
    const auto unit = static_cast<int>(myDefaults.intValue(Memory_Unit));
    tvlDrawString(painter, header, vAlign, 0, headerColor, attributes, column, ajustPointY, drawInWhite);
    tvlDrawString(painter, calcMemorySize(pages * static_cast<std::int64_t>(pageSize_), unit), vAlign, 2,
                  myDefaults.color(MemoryThemeKey::B07), attributes, column, ajustPointY, drawInWhite);
}

void ImageMemoryBar::drawText(QPainter& painter, TextAttributes& attributes, const MemoryBreakdown& parts,
                              double& x) const
{
    const bool longLabel = myDefaults.boolValue(Memory_Text_WithLongLabel);
    const QRectF column(x, 0, widths_.text(), mySize.height());
    // The figure in use is headed in the colour of the memory pressure, as the graph shows it.
    const QColor pressure =
        retGraphColor(memoryPressure(resumeArray.back(), totalPages_), myDefaults.color(MemoryThemeKey::B08),
                      myDefaults.color(MemoryThemeKey::B09), myDefaults.color(MemoryThemeKey::B10), true);
    drawLine(painter, attributes, column, 0, localized(longLabel ? "Used:" : "U:"), pressure, parts.inUse());
    drawLine(painter, attributes, column, 2, localized(longLabel ? "Free:" : "F:"),
             myDefaults.color(MemoryThemeKey::B07), shareOf(parts, MemoryPart::Free).pages);
    x += widths_.text() + insets.spacing;
}

void ImageMemoryBar::drawDetailText(QPainter& painter, TextAttributes& attributes, const MemoryBreakdown& parts,
                                    double& x) const
{
    const bool longLabel = myDefaults.boolValue(Memory_DetailText_WithLongLabel);
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
        const QColor header =
            part == MemoryPart::Free ? myDefaults.color(MemoryThemeKey::B07) : memoryPartColor(myDefaults, part);
        drawLine(painter, attributes, columns[i / 2], i % 2 == 0 ? 0 : 2, localized(headerOf(part, longLabel)), header,
                 shareOf(parts, part).pages);
    }
    x += widths_.detail() + insets.spacing;
}
