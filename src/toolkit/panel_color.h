// The colour of the panel that status-item pictures stand on, for light and dark themes.
#pragma once

#include <QColor>

namespace TvlClasses {

// A theme's pictures are drawn to read on this: a dark theme's light figures need a dark panel.
QColor retPanelColor(bool darkAppearance);

} // namespace TvlClasses
