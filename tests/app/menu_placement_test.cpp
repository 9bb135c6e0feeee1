// Where a drop-down opens beside its item: below, above at the screen's foot, never off screen.
#include "app/front_ends/menu_placement.h"

#include <gtest/gtest.h>

TEST(MenuPlacement, BelowTheItemElseAboveItAndAlwaysOnTheScreen)
{
    const QRect screen(0, 0, 1280, 800);
    const QSize menu(300, 400);
    // A bar along the top: under the item, left edges lined up.
    EXPECT_EQ(menuPositionBeside(QRect(100, 0, 40, 22), menu, screen), QPoint(100, 22));
    // Near the right edge the menu moves left rather than leave the screen.
    EXPECT_EQ(menuPositionBeside(QRect(1250, 0, 30, 22), menu, screen), QPoint(980, 22));
    // A tray along the bottom: above the icon, its bottom edge on the icon's top.
    EXPECT_EQ(menuPositionBeside(QRect(600, 776, 24, 24), menu, screen), QPoint(600, 376));
    // A second screen to the right, with the tray at its top.
    EXPECT_EQ(menuPositionBeside(QRect(1300, 0, 24, 24), menu, QRect(1280, 0, 1024, 768)), QPoint(1300, 24));
    // Too tall for either side: the roomier one, kept on the screen.
    EXPECT_EQ(menuPositionBeside(QRect(10, 500, 24, 24), QSize(300, 700), screen), QPoint(10, 0));
    EXPECT_EQ(menuPositionBeside(QRect(10, 200, 24, 24), QSize(300, 700), screen), QPoint(10, 224));
}
