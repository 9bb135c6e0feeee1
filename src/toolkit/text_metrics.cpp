// Measuring text in points, independent of the screen's resolution.
#include "toolkit/text_metrics.h"

#include "toolkit/menu_font.h"

#include <QFontMetricsF>
#include <QImage>

namespace TvlClasses {

QSizeF calcMenuLabelSize(const QString& text, double fontSize, const QString& fontName)
{
    // Menu-bar pictures are laid out in points. Measuring on a 72-dpi device makes one point
    // one unit whatever the screen reports, so widths agree with text painted at the same
    // point size on a 72-dpi image.
    if (!fontsAvailable())
        return {};
    constexpr int kDotsPerMeterAt72Dpi = 2835;
    QImage reference(1, 1, QImage::Format_ARGB32_Premultiplied);
    reference.setDotsPerMeterX(kDotsPerMeterAt72Dpi);
    reference.setDotsPerMeterY(kDotsPerMeterAt72Dpi);

    const QFontMetricsF metrics(menuFont(fontName, fontSize), &reference);
    return QSizeF(metrics.horizontalAdvance(text), metrics.height());
}

} // namespace TvlClasses
