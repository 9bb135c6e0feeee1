// Tests the bar window's layout: menu-bar order, right alignment and the pictures' sizes.
#include "app/front_ends/bar_item_widget.h"
#include "app/front_ends/bar_window_status_bar.h"

#include <QApplication>
#include <QGuiApplication>
#include <QScreen>
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

    std::unique_ptr<BarWindowStatusBar> bar = std::make_unique<BarWindowStatusBar>();
};

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
