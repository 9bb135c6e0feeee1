// The Disk picture: its width rule against what it draws, per-disk and combined figures, rates.
#include "modules/disk/disk_bar_width.h"
#include "modules/disk/disk_graph.h"
#include "modules/disk/disk_rates.h"
#include "modules/disk/image_disk_bar.h"
#include "picture_recording.h"
#include "storage_picture_defaults.h"
#include "toolkit/point_canvas.h"

#include <QStringList>
#include <gtest/gtest.h>

#include <bit>
#include <cmath>

namespace {

constexpr double kBarHeight = 22;

DiskSample diskSample(std::map<QString, DiskCounters> devices, double interval = 2)
{
    return DiskSample{std::move(devices), interval};
}

// sda reads 2000 B/s, nvme0n1 writes 1 MB/s; dm-0 (on nvme0n1) and loop0 repeat what they carry.
History<DiskSample> busyHistory()
{
    return historyOf<DiskSample>({diskSample({{"/dev/sda", {2000, 0}},
                                              {"/dev/nvme0n1", {0, 1'000'000}},
                                              {"/dev/dm-0", {0, 1'000'000}},
                                              {"/dev/loop0", {0, 0}}}),
                                  diskSample({{"/dev/sda", {6000, 0}},
                                              {"/dev/nvme0n1", {0, 3'000'000}},
                                              {"/dev/dm-0", {0, 3'000'000}},
                                              {"/dev/loop0", {500, 0}}})});
}

Drawn draw(const DiskPictureSettings& defaults, const History<DiskSample>& history, const DiskBaseDict& disks)
{
    const std::vector<StorageBarSet> sets = diskBarSets(defaults, disks);
    const double width = diskBarWidth(defaults, sets.size());
    ImageDiskBar bar;
    bar.redrawWithSize(QSizeF(width, kBarHeight), TvlClasses::retStatusMenuInsets(diskShownElementCount(defaults)),
                       false, true, defaults, history, sets);
    return recordPicture(bar, QSize(static_cast<int>(std::ceil(width)) + 1, static_cast<int>(kBarHeight)));
}

} // namespace

TEST(DiskPicture, WidthRuleIsWhereTheDrawingEndsForEveryCombination)
{
    // Lamps alone, no labels: 7 points, spacing 3 replaced by the 4-point end margin.
    DiskPictureSettings lamps = diskSettings(true, false, false, false);
    lamps.indicatorLabels.width = 0;
    EXPECT_DOUBLE_EQ(diskBarWidth(lamps, 1), 11);
    EXPECT_DOUBLE_EQ(diskBarWidth(lamps, 2), 21);
    EXPECT_DOUBLE_EQ(diskBarWidth(diskSettings(false, false, false), 2), 0);

    const History<DiskSample> history = busyHistory();
    for (int mask = 1; mask < 8; ++mask) {
        for (const bool each : {false, true}) {
            for (const bool label : {false, true}) {
                SCOPED_TRACE(testing::Message() << "elements " << mask << " each " << each << " label " << label);
                const DiskPictureSettings d =
                    diskSettings((mask & 1) != 0, (mask & 2) != 0, (mask & 4) != 0, each, label);
                const double spacing =
                    TvlClasses::retStatusMenuInsets(std::popcount(static_cast<unsigned>(mask))).spacing;
                const std::size_t sets = each ? 2 : 1;
                EXPECT_EQ(diskBarSets(d, twoDisks()).size(), sets);
                EXPECT_DOUBLE_EQ(draw(d, history, twoDisks()).end - spacing + 4, diskBarWidth(d, sets));
            }
        }
    }
}

TEST(DiskPicture, EachDiskShowsItsOwnRatesAndTheCombinedSetCountsOnlyDisks)
{
    const History<DiskSample> history = busyHistory();
    // Key order: nvme0n1, then sda; read above write.
    EXPECT_EQ(textsOf(draw(diskSettings(false, false, true), history, twoDisks()).calls),
              QStringList({"R:", "W:", "0.0B/s", "1000.0KB/s", "R:", "W:", "2.0KB/s", "0.0B/s"}));
    // dm-0 and loop0 pass their transfers on to disks that are counted already.
    EXPECT_EQ(textsOf(draw(diskSettings(false, false, true, false), history, twoDisks()).calls),
              QStringList({"R:", "W:", "2.0KB/s", "1000.0KB/s"}));
    // Without any disk described, the combined set stands in for the per-disk ones.
    EXPECT_EQ(diskBarSets(diskSettings(true, false, false), {}).size(), 1U);

    // The lamps light for what the disk did between the two samples: nvme0n1 wrote, sda read.
    ModuleDefaults lamps = diskPictureDefaults(true, false, false);
    lamps.set(PrefKey::DiskInnerIndicatorLabelWidth, qint64{0});
    QList<QColor> fills;
    for (const DrawCall& call : draw(diskPictureSettings(lamps), history, twoDisks()).calls)
        if (call.kind == DrawCall::Path && call.brush.isValid() && call.brush != lamps.color("D03"))
            fills << call.brush;
    EXPECT_EQ(fills, (QList<QColor>{lamps.color("D04"), lamps.color("D02"), lamps.color("D01"), lamps.color("D04")}));
}

TEST(DiskRates, NeedTwoSamplesAndNeverRunBackwards)
{
    const History<DiskSample> history = historyOf<DiskSample>(
        {diskSample({{"/dev/sda", {9000, 4000}}}, 1), diskSample({{"/dev/sda", {1000, 6000}}}, 0)});
    EXPECT_FALSE(diskRatesAt(history, 0, QStringLiteral("/dev/sda")));
    EXPECT_FALSE(diskRatesAt(history, 1, QStringLiteral("/dev/sdb")));
    // A device that came back starts its counters again: no negative rate. An interval of 0
    // counts as the one-second cycle.
    const DiskRates rates = newestDiskRates(history, QStringLiteral("/dev/sda"));
    EXPECT_DOUBLE_EQ(rates.read, 0);
    EXPECT_DOUBLE_EQ(rates.write, 2000);
    EXPECT_DOUBLE_EQ(newestDiskRates(History<DiskSample>(), QString()).write, 0);
    for (const char* name : {"/dev/dm-1", "/dev/md127", "/dev/loop3", "/dev/zram0"})
        EXPECT_FALSE(countsInCombinedRates(QLatin1String(name))) << name;
    for (const char* name : {"/dev/sda", "/dev/nvme0n1", "/dev/mmcblk0", "/dev/md"})
        EXPECT_TRUE(countsInCombinedRates(QLatin1String(name))) << name;
}

TEST(DiskGraph, ScalesToTheBusiestMomentOrLogarithmicallyAndOpposesReadAndWrite)
{
    // Two rates, newest first: read 200 kB/s with write 50 kB/s, then read 100 kB/s alone.
    const auto history =
        historyOf<DiskSample>({diskSample({{"/dev/sda", {0, 0}}}, 1), diskSample({{"/dev/sda", {100'000, 0}}}, 1),
                               diskSample({{"/dev/sda", {300'000, 50'000}}}, 1)});
    const auto columns = [&](TvlClasses::DiskGraphKind kind, TvlClasses::DiskGraphScale scale) {
        RecordingPaintDevice device(QSize(40, 20));
        QPainter painter(&device);
        const TvlClasses::DiskGraphStyle style{kind, scale, Qt::green, Qt::red};
        EXPECT_DOUBLE_EQ(
            tvlDrawDiskGraph(painter, history, QStringLiteral("/dev/sda"), style, QRectF(30, 0, 30, 20), false), 28);
        painter.end();
        std::vector<std::pair<QColor, QRectF>> out;
        for (const DrawCall& call : device.calls(DrawCall::Rect))
            if (call.rect.height() > 0)
                out.emplace_back(call.brush, call.rect);
        return out;
    };
    using Kind = TvlClasses::DiskGraphKind;
    using Scale = TvlClasses::DiskGraphScale;
    // Stacked against the peak of 250 kB/s: read 16 of 20 points, write 4 above it; then read 8.
    const auto stacked = columns(Kind::Stacked, Scale::Relative);
    ASSERT_EQ(stacked.size(), 3U);
    EXPECT_EQ(stacked[0], std::make_pair(QColor(Qt::green), QRectF(29, 0, 1, 16)));
    EXPECT_EQ(stacked[1], std::make_pair(QColor(Qt::red), QRectF(29, 16, 1, 4)));
    EXPECT_EQ(stacked[2], std::make_pair(QColor(Qt::green), QRectF(28, 0, 1, 8)));
    // Opposed against the larger of the two, 200 kB/s: read up from the middle, write down.
    const auto opposed = columns(Kind::Opposed, Scale::Relative);
    ASSERT_EQ(opposed.size(), 3U);
    EXPECT_EQ(opposed[0].second, QRectF(29, 10, 1, 10));
    EXPECT_EQ(opposed[1].second, QRectF(29, 7.5, 1, 2.5));
    // Logarithmic: 250 kB/s is 5.4 of 9 decades, whatever else the graph shows.
    const auto logarithmic = columns(Kind::Stacked, Scale::Logarithmic);
    ASSERT_GE(logarithmic.size(), 2U);
    EXPECT_NEAR(logarithmic[0].second.height() + logarithmic[1].second.height(), 20 * std::log10(250'000.0) / 9, 1e-9);
}
