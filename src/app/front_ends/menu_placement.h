// Where a status item's drop-down opens: beside the item it belongs to, never over it.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

class QMenu;

// The top-left corner for a menu of menuSize next to anchor (global coordinates) inside area:
// under the anchor, left edges lined up, or above it where there is no room below; moved
// sideways as far as needed to stay inside area.
QPoint menuPositionBeside(const QRect& anchor, const QSize& menuSize, const QRect& area);

// Shows the menu beside anchor on the screen that holds it. The menu learns its final size
// only as it opens, so the position is checked once more against that.
void popupBeside(QMenu& menu, const QRect& anchor);
