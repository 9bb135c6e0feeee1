// The Memory picture: its parts fill the machine's total, its width rule, texts and graph.
#include "memory_network_defaults.h"
#include "modules/memory/image_memory_bar.h"
#include "modules/memory/memory_bar_width.h"
#include "modules/memory/memory_breakdown.h"
#include "picture_recording.h"
#include "toolkit/point_canvas.h"
#include "toolkit/recording_paint_device.h"

#include <QStringList>
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <numeric>

using namespace PrefKey;

namespace {

constexpr double kBarHeight = 22;
constexpr std::size_t kMiB = 1024 * 1024;

// wired 100, active 300, inactive 200, free 250, compressed 50, application 350, cached 150 of
// 1000 pages: 100 pages are the kernel's other memory in either view.
const MemorySample kSample{100, 300, 200, 250, 7, 3, -1, 50, 350, 150};

std::vector<DrawCall> drawPicture(const ModuleDefaults& d, const History<MemorySample>& history, double* end = nullptr)
{
    const MemoryPictureSettings settings = memoryPictureSettings(d);
    const MemoryTextWidths widths = memoryTextWidths(settings, 1000 * static_cast<std::int64_t>(kMiB));
    ImageMemoryBar bar(kMiB, 1000);
    bar.redrawWithSize(QSizeF(400, kBarHeight), TvlClasses::retStatusMenuInsets(2), false, true, settings, history,
                       widths);
    const Drawn drawn = recordPicture(bar, QSize(400, static_cast<int>(kBarHeight)));
    if (end != nullptr)
        *end = drawn.end;
    return drawn.calls;
}

} // namespace

TEST(MemoryBreakdown, EitherViewFillsTheMachinesTotal)
{
    const MemoryBreakdown pages = memoryBreakdown(kSample, 1000, true);
    const MemoryBreakdown apps = memoryBreakdown(kSample, 1000, false);
    for (const MemoryBreakdown* view : {&pages, &apps}) {
        const auto sum = std::accumulate(view->shares.begin(), view->shares.end(), std::int64_t{0},
                                         [](std::int64_t s, const MemoryShare& share) { return s + share.pages; });
        EXPECT_EQ(sum, 1000);
        EXPECT_EQ(view->total, 1000);
        EXPECT_EQ(view->shares[4 - (view->traditional ? 0 : 1)].part, MemoryPart::Other);
        EXPECT_EQ(view->shares[4 - (view->traditional ? 0 : 1)].pages, 100);
        EXPECT_EQ(view->shares.back().part, MemoryPart::Free);
    }
    EXPECT_EQ(pages.inUse(), 750);
    EXPECT_EQ(apps.inUse(), 600); // cached files are not in use
    EXPECT_EQ(apps.inUse() + apps.available(), 1000);

    // Counters that drifted above the total are the total then; a missing compressor counts 0.
    MemorySample drifted = kSample;
    drifted[MemoryCompressor] = -1;
    const MemoryBreakdown over = memoryBreakdown(drifted, 800, true);
    EXPECT_EQ(over.total, 850);
    EXPECT_EQ(over.shares[3].pages, 0);
    double fractions = 0;
    for (std::size_t s = 0; s < over.shares.size(); ++s)
        fractions += over.fraction(s);
    EXPECT_DOUBLE_EQ(fractions, 1.0);
}

TEST(MemoryBarWidth, EqualsThePictureForEveryCombinationOfElements)
{
    const History<MemorySample> history = historyOf(std::vector<MemorySample>(40, kSample));
    for (unsigned mask = 1; mask < 32; ++mask) {
        for (const bool label : {false, true}) {
            SCOPED_TRACE(testing::Message() << "elements " << mask << " label " << label);
            ModuleDefaults defaults = memoryPictureDefaults(mask, label);
            defaults.set(Memory_Text_WithLongLabel, (mask & 4) != 0);
            const MemoryPictureSettings d = memoryPictureSettings(defaults);
            const MemoryTextWidths widths = memoryTextWidths(d, 1000 * static_cast<std::int64_t>(kMiB));
            const double width = memoryBarWidth(d, widths, kBarHeight);
            const TvlClasses::Insets insets = TvlClasses::retStatusMenuInsets(std::popcount(mask));
            ImageMemoryBar bar(kMiB, 1000);
            bar.redrawWithSize(QSizeF(width, kBarHeight), insets, false, true, d, history, widths);

            RecordingPaintDevice device(QSize(static_cast<int>(std::ceil(width)), static_cast<int>(kBarHeight)));
            QPainter painter(&device);
            TvlClasses::PointCanvas::flipToPoints(painter, kBarHeight);
            EXPECT_DOUBLE_EQ(bar.drawRect(painter) - insets.spacing + 4, width);
            painter.end();

            // Nothing is drawn into the last points of the end margin.
            const QImage image = bar.image(2);
            for (int x = static_cast<int>((width - 3) * 2); x < image.width(); ++x)
                for (int y = 0; y < image.height(); ++y)
                    ASSERT_EQ(image.pixelColor(x, y).alpha(), 0) << "at " << x << ", " << y;
        }
    }
    EXPECT_DOUBLE_EQ(memoryBarWidth(memorySettings(0, true), {}, kBarHeight), 0);
}

TEST(ImageMemoryBar, LevelBarStacksEveryPartUpToTheFullHeight)
{
    for (const bool traditional : {true, false}) {
        SCOPED_TRACE(traditional);
        ModuleDefaults d = memoryPictureDefaults(2);
        d.set(Memory_TradMemoryInfo, traditional);
        const auto calls = drawPicture(d, historyOf<MemorySample>({kSample}));
        ASSERT_EQ(calls.size(), 7U); // six parts, then the frame
        double stacked = 0;
        for (std::size_t i = 0; i < 6; ++i)
            stacked += calls[i].rect.height();
        EXPECT_NEAR(stacked, kBarHeight - 1 - 2 - 1, 1e-9);
        const MemoryBreakdown parts = memoryBreakdown(kSample, 1000, traditional);
        for (std::size_t i = 0; i < 6; ++i)
            EXPECT_EQ(calls[i].brush, memoryPartColor(d, parts.shares[i].part)) << i;
        EXPECT_EQ(calls.back().pen, d.color(MemoryThemeKey::B06));
    }
}

TEST(ImageMemoryBar, TextsShowTheChosenViewInTheChosenUnit)
{
    ModuleDefaults d = memoryPictureDefaults(8 | 16);
    d.set(Memory_Unit, qint64{2});
    d.set(Memory_TradMemoryInfo, true);
    EXPECT_EQ(textsOf(drawPicture(d, historyOf<MemorySample>({kSample}))),
              QStringList({"U:", "750.0MB", "F:", "250.0MB", "W:", "100.0MB", "A:", "300.0MB", "I:", "200.0MB",
                           "F:", "250.0MB"}));

    d.set(Memory_TradMemoryInfo, false);
    d.set(Memory_Unit, qint64{3});
    d.set(Memory_DetailText_WithLongLabel, true);
    EXPECT_EQ(textsOf(drawPicture(d, historyOf<MemorySample>({kSample}))),
              QStringList({"U:", "0.59GB", "F:", "0.24GB", "App:", "0.34GB", "Wired:", "0.10GB", "Cached:", "0.15GB",
                           "Free:", "0.24GB"}));
}

TEST(ImageMemoryBar, GraphStacksPartsOrShowsPressureInItsColour)
{
    ModuleDefaults d = memoryPictureDefaults(1);
    d.set(Memory_TradMemoryInfo, true);
    double end = 0;
    auto calls = drawPicture(d, historyOf<MemorySample>({kSample, kSample}), &end);
    ASSERT_EQ(calls.size(), 2U * 6 + 1); // two columns of six parts, the underline
    EXPECT_DOUBLE_EQ(calls[0].rect.left(), 29);
    EXPECT_DOUBLE_EQ(calls[6].rect.left(), 28);
    EXPECT_EQ(calls.back().brush, d.color(MemoryThemeKey::Z03));
    EXPECT_DOUBLE_EQ(end, 30 + 4);

    // Newest first: a machine nearly full is drawn in the critical colour, the older calm one low.
    MemorySample full = kSample;
    full[MemoryFree] = 10;
    full[MemoryCached] = 0;
    d.set(Memory_TradMemoryInfo, false);
    calls = drawPicture(d, historyOf<MemorySample>({kSample, full}));
    ASSERT_EQ(calls.size(), 3U);
    EXPECT_EQ(calls[0].brush, d.color(MemoryThemeKey::B10));
    EXPECT_EQ(calls[1].brush, d.color(MemoryThemeKey::B08));
    EXPECT_NEAR(calls[1].rect.height(), 0.6 * (kBarHeight - 3), 1e-9);
}
