// Where a status item's drop-down opens: beside the item it belongs to, never over it.
#include "app/front_ends/menu_placement.h"

#include <QGuiApplication>
#include <QMenu>
#include <QScreen>

#include <algorithm>

QPoint menuPositionBeside(const QRect& anchor, const QSize& menuSize, const QRect& area)
{
    const int x = std::max(area.left(), std::min(anchor.left(), area.right() + 1 - menuSize.width()));
    const int below = anchor.bottom() + 1;
    const int above = anchor.top() - menuSize.height();
    int y = below;
    if (below + menuSize.height() > area.bottom() + 1) {
        // A menu too tall for either side goes to the roomier one; the menu scrolls within it.
        const int roomBelow = area.bottom() + 1 - below;
        const int roomAbove = anchor.top() - area.top();
        y = above >= area.top() || roomAbove > roomBelow ? std::max(above, area.top()) : below;
    }
    return {x, y};
}

void popupBeside(QMenu& menu, const QRect& anchor)
{
    const QScreen* screen = QGuiApplication::screenAt(anchor.center());
    if (screen == nullptr)
        screen = QGuiApplication::primaryScreen();
    const QRect area = screen != nullptr ? screen->availableGeometry() : QRect(anchor.bottomLeft(), menu.sizeHint());
    menu.popup(menuPositionBeside(anchor, menu.sizeHint(), area));
    const QPoint settled = menuPositionBeside(anchor, menu.size(), area);
    if (menu.isVisible() && menu.pos() != settled)
        menu.move(settled);
}
