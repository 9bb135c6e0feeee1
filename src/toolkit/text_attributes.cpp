// Shadows, text heights and the fixed-width digit font.
#include "toolkit/text_attributes.h"

#include "toolkit/point_canvas.h"

#include <QFontDatabase>
#include <QStringList>

#include <limits>

namespace TvlClasses {

TextShadow retNormalTextShadow(const QColor& color)
{
    return {color, 0.5, QPointF(0, -0.25)};
}

TextShadow retPiledTextShadow(const QColor& color)
{
    return {color, 1.0, QPointF(0, -1.25)};
}

double calcTextViewHeightWithLines(int lines, const TextAttributes& attributes)
{
    if (lines <= 0)
        return 0;
    const QStringList rows(lines, QString(QChar(0x3000)));
    constexpr double kUnlimited = std::numeric_limits<float>::max();
    return pointFontMetrics(attributes.font)
        .boundingRect(QRectF(0, 0, kUnlimited, kUnlimited), Qt::AlignLeft | Qt::AlignTop, rows.join(QChar(u'\n')))
        .height();
}

QFont changeMsf(const QFont& font, [[maybe_unused]] int weight, double sizeChange)
{
    QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    fixed.setWeight(font.weight());
    fixed.setStyle(font.style());
    const double size = font.pointSizeF() + sizeChange;
    if (size > 0)
        fixed.setPointSizeF(size);
    return fixed;
}

} // namespace TvlClasses
