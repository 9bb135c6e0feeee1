// Tells X11 window managers that the bar window is a dock holding the top of its screen, so
// they keep other windows (a maximised one's title bar too) clear of it. Elsewhere: nothing.
#pragma once

#include <QRect>

class QWidget;

namespace X11Dock {

// Whether the application talks to an X server, where the two calls below take effect.
bool available();
// Marks the window as a dock; managers read this when the window is first shown.
void markAsDock(QWidget& window);
// Reserves the band of height points along the top of screen (its geometry in points) for the
// window, in the partial form and the older whole-edge form.
void reserveTopEdge(QWidget& window, const QRect& screen, int height);

} // namespace X11Dock
