// The colour lists that level bars and cycle meters are drawn from.
#pragma once

#include <QColor>

#include <optional>
#include <vector>

namespace TvlClasses {

// A share to stack (colour and fraction 0 to 1), or, without a fraction, the frame colour.
struct ColorShare {
    QColor color;
    std::optional<double> fraction;
};
using ColorList = std::vector<ColorShare>;

// The colour to draw with: in the white look every colour turns white but keeps its alpha,
// so transparent parts stay transparent.
inline QColor drawingColor(const QColor& color, bool drawInWhite)
{
    if (!drawInWhite)
        return color;
    QColor white(Qt::white);
    white.setAlphaF(color.alphaF());
    return white;
}

} // namespace TvlClasses
