// Text attributes of menu-bar pictures: font, colour, shadow, and the measures taken with them.
#pragma once

#include <QColor>
#include <QFont>
#include <QPointF>

#include <optional>

namespace TvlClasses {

// Drawn as a copy of the text in the shadow colour, moved by offset (points, y up).
struct TextShadow {
    QColor color;
    double blurRadius = 0;
    QPointF offset;
};

struct TextAttributes {
    QFont font;
    QColor color;
    std::optional<TextShadow> shadow;
};

// The shadow under ordinary menu-bar text: blur 0.5, a quarter point down.
TextShadow retNormalTextShadow(const QColor& color);
// The heavier shadow under piled (two-line) text: blur 1.0, 1.25 points down.
TextShadow retPiledTextShadow(const QColor& color);

// Height in points of lines lines of text in the attributes' font; 0 for no lines. Each line
// holds an ideographic space, so a fallback font for wide characters counts in the height.
double calcTextViewHeightWithLines(int lines, const TextAttributes& attributes);

// A font with digits of equal width, at font's size plus sizeChange. Other platforms keep a
// monospaced face per weight; here the system fixed-pitch font serves every weight, and
// takes over font's weight and slant.
QFont changeMsf(const QFont& font, int weight, double sizeChange);

} // namespace TvlClasses
