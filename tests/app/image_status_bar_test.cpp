// Tests that the in-memory front end keeps the latest pictures and writes them as PNG files.
#include "app/front_ends/image_status_bar.h"

#include <QDir>
#include <QImageReader>
#include <QTemporaryDir>
#include <gtest/gtest.h>

TEST(ImageStatusBar, KeepsTheLatestPictureAndWritesOneFilePerPicturedModule)
{
    ImageStatusBar bar;
    auto general = bar.createItem(QStringLiteral("General"));
    auto cpu = bar.createItem(QStringLiteral("CPU"));
    auto memory = bar.createItem(QStringLiteral("Memory"));
    EXPECT_EQ(bar.moduleKeys(),
              (QStringList{QStringLiteral("Memory"), QStringLiteral("CPU"), QStringLiteral("General")}));

    QImage first(10, 40, QImage::Format_ARGB32_Premultiplied);
    first.fill(Qt::green);
    QImage latest(110, 40, QImage::Format_ARGB32_Premultiplied);
    latest.fill(Qt::red);
    latest.setDevicePixelRatio(2.0);
    cpu->setImage(first, false);
    cpu->setImage(latest, true);
    cpu->setText(QStringLiteral("12%"));
    general->setImage(first, false);
    EXPECT_EQ(bar.image(QStringLiteral("CPU")).size(), QSize(110, 40));
    EXPECT_EQ(bar.text(QStringLiteral("CPU")), QStringLiteral("12%"));

    QTemporaryDir temporary;
    const QString dir = temporary.filePath(QStringLiteral("out"));
    QStringList names;
    ASSERT_TRUE(bar.writeAll(dir, &names));
    EXPECT_EQ(QDir(dir).entryList(QDir::Files),
              (QStringList{QStringLiteral("CPU.png"), QStringLiteral("General.png")}));
    names.sort();
    EXPECT_EQ(names, QDir(dir).entryList(QDir::Files));
    const QImage written(QDir(dir).filePath(QStringLiteral("CPU.png")));
    EXPECT_EQ(written.size(), QSize(110, 40));
    EXPECT_EQ(written.pixel(0, 0), QColor(Qt::red).rgba());
    // 144 dots per inch: shown at 55 by 20 points.
    EXPECT_NEAR(written.dotsPerMeterX(), 5669, 1);

    memory.reset();
    EXPECT_EQ(bar.moduleKeys().size(), 2);
    EXPECT_FALSE(ImageStatusBar::writePng(dir, QStringLiteral("empty"), QImage()));
}
