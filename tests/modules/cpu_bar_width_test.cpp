// The CPU status item's width rule, and that the picture drawn at that width fills it exactly.
#include "cpu_picture_defaults.h"
#include "modules/cpu/cpu_bar_width.h"
#include "modules/cpu/image_cpu_bar.h"
#include "toolkit/point_canvas.h"
#include "toolkit/recording_paint_device.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>

namespace {

constexpr double kBarHeight = 22;

} // namespace

TEST(CpuBarWidth, WorkedExamples)
{
    EXPECT_DOUBLE_EQ(cpuBarWidth(cpuSettings({.graph = true, .levelBar = true}), 8, kBarHeight), 55);
    EXPECT_DOUBLE_EQ(cpuBarWidth(cpuSettings({.meter = true}), 8, kBarHeight), 23);
    // Per core, every element repeats for each of the 8 cores.
    EXPECT_DOUBLE_EQ(cpuBarWidth(cpuSettings({.graph = true, .levelBar = true}, false), 8, kBarHeight), (44 + 11) * 8);
    EXPECT_DOUBLE_EQ(cpuBarWidth(cpuSettings({.graph = true, .levelBar = true}, true, true), 8, kBarHeight), 55 + 12);
    EXPECT_DOUBLE_EQ(cpuBarWidth(cpuSettings({}, true, true), 8, kBarHeight), 0);
    EXPECT_DOUBLE_EQ(TvlClasses::retRootMenuHeight(), 20);
}

TEST(CpuBarWidth, EqualsThePictureForEveryCombinationOfElements)
{
    const History<CpuSample> history = cpuHistory(CpuSample(9, CpuRecord{3, 2, 1, 4}), 5);
    for (int mask = 1; mask < 16; ++mask) {
        const CpuElements shown{(mask & 1) != 0, (mask & 2) != 0, (mask & 4) != 0, (mask & 8) != 0};
        const int count = std::popcount(static_cast<unsigned>(mask));
        const TvlClasses::Insets insets = TvlClasses::retStatusMenuInsets(count);
        for (const bool average : {true, false}) {
            for (const bool label : {false, true}) {
                SCOPED_TRACE(testing::Message() << "elements " << mask << " average " << average << " label " << label);
                const CpuPictureSettings defaults = cpuSettings(shown, average, label);
                const double width = cpuBarWidth(defaults, 8, kBarHeight);
                ImageCpuBar bar;
                bar.redrawWithSize(QSizeF(width, kBarHeight), insets, false, true, defaults, history);

                RecordingPaintDevice device(QSize(static_cast<int>(std::ceil(width)), static_cast<int>(kBarHeight)));
                QPainter painter(&device);
                TvlClasses::PointCanvas::flipToPoints(painter, kBarHeight);
                EXPECT_DOUBLE_EQ(bar.drawRect(painter) - insets.spacing + 4, width);
                painter.end();

                // Nothing is drawn into the last points of the end margin.
                const QImage image = bar.image(2);
                ASSERT_EQ(image.width(), static_cast<int>(std::ceil(width * 2)));
                for (int x = static_cast<int>((width - 3) * 2); x < image.width(); ++x)
                    for (int y = 0; y < image.height(); ++y)
                        ASSERT_EQ(image.pixelColor(x, y).alpha(), 0) << "at " << x << ", " << y;
            }
        }
    }
}
