// Tests the bar window: menu-bar order, right alignment, the pictures' sizes, switching between
// open menus as in a menu bar, and the panel colour of the theme.
#include "app/front_ends/bar_item_widget.h"
#include "app/front_ends/bar_window_status_bar.h"
#include "modules/module_registry.h"
#include "prefs/pref_keys.h"
#include "prefs/theme_files.h"
#include "test_app.h"
#include "toolkit/panel_color.h"

#include <QApplication>
#include <QGuiApplication>
#include <QMenu>
#include <QMouseEvent>
#include <QScreen>
#include <QTest>
#include <gtest/gtest.h>

namespace {

// A picture of the given size in points, drawn at ratio 2 as on a HiDPI screen.
QImage picture(int widthPoints, int heightPoints = 20)
{
    QImage image(widthPoints * 2, heightPoints * 2, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::red);
    image.setDevicePixelRatio(2.0);
    return image;
}

class BarWindowTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        if (!qobject_cast<QApplication*>(QCoreApplication::instance()))
            GTEST_SKIP() << "needs a widget application";
    }

    QRect itemRect(const QString& key) const { return bar->findChild<BarItemWidget*>(key)->geometry(); }
    QPoint itemCentre(const QString& key) const { return bar->mapToGlobal(itemRect(key).center()); }

    std::unique_ptr<BarWindowStatusBar> bar = std::make_unique<BarWindowStatusBar>();
};

// A mouse event at a place on the screen, delivered where the window system would deliver it.
void sendMouse(QWidget* receiver, QEvent::Type type, const QPoint& global)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const Qt::MouseButtons held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
    QMouseEvent event(type, receiver->mapFromGlobal(QPointF(global)), QPointF(global), button, held, Qt::NoModifier);
    QApplication::sendEvent(receiver, &event);
}

} // namespace

TEST_F(BarWindowTest, LaterItemsStandLeftAndTheLastOneTouchesTheRightEdge)
{
    auto a = bar->createItem(QStringLiteral("A"));
    auto b = bar->createItem(QStringLiteral("B"));
    auto c = bar->createItem(QStringLiteral("C"));
    a->setImage(picture(30), false);
    b->setImage(picture(55), false);
    c->setImage(picture(23), false);

    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    EXPECT_EQ(bar->geometry(), QRect(screen.left(), screen.top(), screen.width(), 20));
    EXPECT_EQ(bar->windowFlags() & Qt::WindowStaysOnTopHint, Qt::WindowStaysOnTopHint);

    const int gap = BarWindowStatusBar::kItemSpacing;
    EXPECT_EQ(itemRect(QStringLiteral("A")), QRect(screen.width() - 30, 0, 30, 20));
    EXPECT_EQ(itemRect(QStringLiteral("B")), QRect(screen.width() - 30 - gap - 55, 0, 55, 20));
    EXPECT_EQ(itemRect(QStringLiteral("C")), QRect(screen.width() - 30 - gap - 55 - gap - 23, 0, 23, 20));

    // A picture growing pushes its left neighbours; a removed item leaves no hole.
    a->setImage(picture(40), false);
    EXPECT_EQ(itemRect(QStringLiteral("C")).right(), screen.width() - 40 - gap - 55 - gap - 1);
    b.reset();
    EXPECT_EQ(itemRect(QStringLiteral("C")), QRect(screen.width() - 40 - gap - 23, 0, 23, 20));
}

TEST_F(BarWindowTest, GrowsToTheTallestPictureAndSkipsItemsWithoutOne)
{
    auto a = bar->createItem(QStringLiteral("A"));
    auto empty = bar->createItem(QStringLiteral("Empty"));
    auto c = bar->createItem(QStringLiteral("C"));
    a->setImage(picture(30, 22), false);
    c->setImage(picture(10), false);

    EXPECT_EQ(bar->height(), 22);
    EXPECT_EQ(itemRect(QStringLiteral("C")).right(), bar->width() - 30 - BarWindowStatusBar::kItemSpacing - 1);
}

TEST_F(BarWindowTest, WithAMenuOpenAClickOrAMoveOntoAnotherItemOpensThatOne)
{
    QMenu menuA, menuB;
    menuA.addAction(QStringLiteral("a"));
    menuB.addAction(QStringLiteral("b"));
    auto a = bar->createItem(QStringLiteral("A"));
    auto b = bar->createItem(QStringLiteral("B"));
    auto plain = bar->createItem(QStringLiteral("Plain"));
    a->setImage(picture(30), false);
    b->setImage(picture(55), false);
    plain->setImage(picture(20), false);
    a->setMenu(&menuA);
    b->setMenu(&menuB);

    QTest::mouseClick(bar->findChild<BarItemWidget*>(QStringLiteral("A")), Qt::LeftButton);
    ASSERT_TRUE(menuA.isVisible());
    // Below the bar, on the screen, the item itself left uncovered.
    EXPECT_EQ(menuA.y(), bar->geometry().bottom() + 1);
    EXPECT_TRUE(QGuiApplication::primaryScreen()->geometry().contains(menuA.geometry()));

    // An open menu has the pointer, so the press over B reaches menu A: one click switches.
    sendMouse(&menuA, QEvent::MouseButtonPress, itemCentre(QStringLiteral("B")));
    EXPECT_FALSE(menuA.isVisible());
    EXPECT_TRUE(menuB.isVisible());
    // Moving over an item without a menu keeps B's; moving back onto A is enough.
    sendMouse(&menuB, QEvent::MouseMove, itemCentre(QStringLiteral("Plain")));
    EXPECT_TRUE(menuB.isVisible());
    sendMouse(&menuB, QEvent::MouseMove, itemCentre(QStringLiteral("A")));
    EXPECT_TRUE(menuA.isVisible());
    EXPECT_FALSE(menuB.isVisible());
    // The arrow keys walk along the bar; Left from A is B.
    QTest::keyClick(&menuA, Qt::Key_Left);
    EXPECT_TRUE(menuB.isVisible());
    EXPECT_FALSE(menuA.isVisible());
    // A press on the open item closes it, and nothing opens.
    sendMouse(&menuB, QEvent::MouseButtonPress, itemCentre(QStringLiteral("B")));
    EXPECT_FALSE(menuA.isVisible());
    EXPECT_FALSE(menuB.isVisible());

    // A click on another item comes with the pointer moving there first: its menu stays open.
    QTest::mouseClick(bar->findChild<BarItemWidget*>(QStringLiteral("A")), Qt::LeftButton);
    sendMouse(&menuA, QEvent::MouseMove, itemCentre(QStringLiteral("B")));
    sendMouse(&menuB, QEvent::MouseButtonPress, itemCentre(QStringLiteral("B")));
    EXPECT_TRUE(menuB.isVisible());
    EXPECT_FALSE(menuA.isVisible());
}

TEST(BarWindowTheme, ADarkThemeDarkensTheBarBehindItsPictures)
{
    if (!qobject_cast<QApplication*>(QCoreApplication::instance()))
        GTEST_SKIP() << "needs a widget application";
    TestApp t;
    TvlClasses::checkMyApplicationSupportDir();
    ASSERT_TRUE(TvlClasses::replaceThemeFile(TvlClasses::retBundleThemePath(QStringLiteral("_dark_theme")),
                                             TvlClasses::retThemeFilePath(QStringLiteral("_now_theme.plist"))));
    t.writeSettings();
    BarWindowStatusBar bar;
    t.launchWithBar(bar);
    // The left end of the bar holds no item: there the bar's own colour shows.
    const QImage shot = bar.grab().toImage();
    ASSERT_FALSE(shot.isNull());
    EXPECT_EQ(shot.pixelColor(2, shot.height() / 2), TvlClasses::retPanelColor(true));
    EXPECT_NE(TvlClasses::retPanelColor(true), TvlClasses::retPanelColor(false));
}
