// Tests that tray icons keep the picture's proportions: padded to a square, never stretched.
#include "app/front_ends/tray_icon_image.h"

#include <gtest/gtest.h>

namespace {

QImage solid(int width, int height, double ratio)
{
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::blue);
    image.setDevicePixelRatio(ratio);
    return image;
}

// The bounding box of the pixels that are not transparent.
QRect opaqueBounds(const QImage& image)
{
    QRect bounds;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) != 0)
                bounds |= QRect(x, y, 1, 1);
    return bounds;
}

} // namespace

TEST(TrayIconImage, PadsTheShortSideAroundTheUnscaledPicture)
{
    const QImage wide = squareTrayImage(solid(110, 40, 2.0));
    EXPECT_EQ(wide.size(), QSize(110, 110));
    EXPECT_EQ(wide.devicePixelRatio(), 2.0);
    EXPECT_EQ(opaqueBounds(wide), QRect(0, 35, 110, 40));
    EXPECT_EQ(wide.pixel(55, 55), QColor(Qt::blue).rgba());

    const QImage tall = squareTrayImage(solid(7, 20, 1.0));
    EXPECT_EQ(tall.size(), QSize(20, 20));
    EXPECT_EQ(opaqueBounds(tall), QRect(6, 0, 7, 20));

    EXPECT_EQ(squareTrayImage(solid(16, 16, 1.0)).size(), QSize(16, 16));
}
