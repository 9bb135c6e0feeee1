// Status-item heights and insets.
#include "toolkit/menu_geometry.h"

namespace TvlClasses {

float retRootMenuHeight(double platformHeight)
{
    return platformHeight > 0 ? static_cast<float>(platformHeight) : 20.0F;
}

Insets retStatusMenuInsets(int shownCount)
{
    // A lone element sits closer to the end margin; the spacing still counts in the width.
    return {1, shownCount == 1 ? 3.0 : 4.0, 2, 0};
}

Insets retMenuPullDownInsets()
{
    return {1, 0, 1, 0};
}

} // namespace TvlClasses
