// The threshold colour that graphs, bars and meters share.
#pragma once

#include <QColor>

namespace TvlClasses {

// value is a fraction 0 to 1. Below 0.7 the low colour, from 0.9 the critical colour; in
// between the warning colour, or with synthesis a blend running from the warning colour at
// 0.7 to the critical colour at 0.9 (the low colour never takes part in a blend).
QColor retGraphColor(double value, const QColor& lowColor, const QColor& warningColor, const QColor& criticalColor,
                     bool synthesis);

} // namespace TvlClasses
