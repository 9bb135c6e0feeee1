// The colour of the panel that status-item pictures stand on, for light and dark themes.
#include "toolkit/panel_color.h"

namespace TvlClasses {

QColor retPanelColor(bool darkAppearance)
{
    // The greys of the desktops' own light and dark panels, so a preview looks like the real thing.
    return darkAppearance ? QColor(0x24, 0x24, 0x24) : QColor(0xec, 0xec, 0xec);
}

} // namespace TvlClasses
