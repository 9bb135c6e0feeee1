// The Volume picture: its width rule against what it draws, per-volume and combined figures, and
// the used or free percentage.
#include "modules/volume/image_volume_bar.h"
#include "modules/volume/volume_bar_width.h"
#include "picture_recording.h"
#include "storage_picture_defaults.h"
#include "toolkit/point_canvas.h"

#include <QStringList>
#include <gtest/gtest.h>

#include <bit>
#include <cmath>

namespace {

constexpr double kBarHeight = 22;
constexpr int kBar = 1, kGraph = 4, kText = 8, kPercent = 16;

// "/" a quarter full, the stick 90% full; "all" sums them.
VolumeSample usageSample()
{
    VolumeSample s;
    s.volumes[QStringLiteral("/")] = VolumeUsage{1'000'000'000, 250'000'000, 750'000'000, QStringLiteral("Root")};
    s.volumes[QStringLiteral("/media/stick")] =
        VolumeUsage{3'000'000'000, 2'700'000'000, 300'000'000, QStringLiteral("STICK")};
    s.all = VolumeUsage{4'000'000'000, 2'950'000'000, 1'050'000'000, {}};
    return s;
}

Drawn draw(const VolumePictureSettings& defaults, const History<VolumeSample>& history, const VolumeBaseDict& volumes)
{
    const std::vector<StorageBarSet> sets = volumeBarSets(defaults, volumes);
    const double width = volumeBarWidth(defaults, sets.size(), kBarHeight);
    ImageVolumeBar bar;
    bar.redrawWithSize(QSizeF(width, kBarHeight), TvlClasses::retStatusMenuInsets(volumeShownElementCount(defaults)),
                       false, true, defaults, history, sets);
    return recordPicture(bar, QSize(static_cast<int>(std::ceil(width)) + 1, static_cast<int>(kBarHeight)));
}

std::vector<DrawCall> texts(const Drawn& drawn)
{
    std::vector<DrawCall> out;
    for (const DrawCall& call : drawn.calls)
        if (call.kind == DrawCall::Text)
            out.push_back(call);
    return out;
}

QStringList textsOf(const Drawn& drawn)
{
    QStringList out;
    for (const DrawCall& call : texts(drawn))
        out << call.text;
    return out;
}

} // namespace

TEST(VolumePicture, WidthRuleIsWhereTheDrawingEndsForEveryCombination)
{
    // The bar chart alone: 7 points, spacing 3 replaced by the 4-point end margin.
    EXPECT_DOUBLE_EQ(volumeBarWidth(volumeSettings(kBar, false), 1, kBarHeight), 11);
    EXPECT_DOUBLE_EQ(volumeBarWidth(volumeSettings(kBar, true, true), 2, kBarHeight), 10 + 7 + 4 + 12);
    EXPECT_DOUBLE_EQ(volumeBarWidth(volumeSettings(0), 2, kBarHeight), 0);

    const History<VolumeSample> history = historyOf<VolumeSample>({usageSample(), usageSample()});
    for (int mask = 1; mask < 32; ++mask) {
        for (const bool each : {false, true}) {
            for (const bool label : {false, true}) {
                SCOPED_TRACE(testing::Message() << "elements " << mask << " each " << each << " label " << label);
                const VolumePictureSettings d = volumeSettings(mask, each, label);
                const double spacing =
                    TvlClasses::retStatusMenuInsets(std::popcount(static_cast<unsigned>(mask))).spacing;
                const std::size_t sets = each ? 2 : 1;
                EXPECT_DOUBLE_EQ(draw(d, history, twoVolumes()).end - spacing + 4, volumeBarWidth(d, sets, kBarHeight));
            }
        }
    }
}

TEST(VolumePicture, PercentageShowsTheChosenShareOfEachVolumeOrOfAll)
{
    const History<VolumeSample> history = historyOf<VolumeSample>({usageSample()});
    ModuleDefaults d = volumePictureDefaults(kPercent);
    const auto percentages = [&] { return textsOf(draw(volumePictureSettings(d), history, twoVolumes())); };
    EXPECT_EQ(percentages(), QStringList({"25%", "90%"}));
    d.set(PrefKey::Vlms_Percent_Mode, qint64{2});
    EXPECT_EQ(percentages(), QStringList({"75%", "10%"}));
    d.set(PrefKey::Vlms_ShowEachDisk, false);
    EXPECT_EQ(percentages(), QStringList({"26%"})); // 1050 of 4000 free
    d.set(PrefKey::Vlms_Percent_Mode, qint64{1});
    EXPECT_EQ(percentages(), QStringList({"74%"}));

    // Coloured figures warn by fill, whichever share they show; plain ones keep their colour.
    ModuleDefaults coloured = volumePictureDefaults(kPercent);
    coloured.set(PrefKey::Vlms_Percent_Mode, qint64{2});
    coloured.set(PrefKey::Vlms_ColoredValue, true);
    const auto inks = texts(draw(volumePictureSettings(coloured), history, twoVolumes()));
    ASSERT_EQ(inks.size(), 2U);
    EXPECT_EQ(inks[0].pen, coloured.color("E01"));
    EXPECT_EQ(inks[1].pen, coloured.color("E03"));

    // The text shows used above free; a volume mounted since the sample reads empty, not stale.
    VolumeBaseDict three = twoVolumes();
    three[QStringLiteral("/mnt/new")] = volumeEntry("new", "sdc1", "/dev/sdc1", "ext4");
    EXPECT_EQ(
        textsOf(draw(volumeSettings(kText), history, three)),
        QStringList({"U:", "F:", "250.0MB", "750.0MB", "U:", "F:", "2.7GB", "300.0MB", "U:", "F:", "0Byte", "0Byte"}));
}

TEST(VolumePicture, GraphLeavesAGapWhereAVolumeWasNotMeasured)
{
    VolumeSample without = usageSample();
    without.volumes.erase(QStringLiteral("/media/stick"));
    const History<VolumeSample> history = historyOf<VolumeSample>({usageSample(), without, usageSample()});
    ModuleDefaults d = volumePictureDefaults(kGraph, false);
    d.set(PrefKey::Vlms_ShowEachDisk, true);
    std::vector<QRectF> columns;
    for (const DrawCall& call : draw(volumePictureSettings(d), history, twoVolumes()).calls)
        if (call.kind == DrawCall::Rect && call.brush == d.color("E03"))
            columns.push_back(call.rect);
    // The stick's graph: its newest and oldest samples, one point apart from the missing one.
    ASSERT_EQ(columns.size(), 2U);
    EXPECT_DOUBLE_EQ(columns[0].left() - columns[1].left(), 2);
}

TEST(StoragePictures, KindPictureStandsFaintlyBehindEachVolumesSet)
{
    // The kernel's name tells optical drives and disk images apart; the flag tells a stick.
    EXPECT_EQ(volumePicture(VolumeIconKind::Network, QStringLiteral("sr0")), StoragePicture::Network);
    EXPECT_EQ(volumePicture(VolumeIconKind::External, QStringLiteral("sr0")), StoragePicture::Optical);
    EXPECT_EQ(volumePicture(VolumeIconKind::Internal, QStringLiteral("loop3")), StoragePicture::DiskImage);
    EXPECT_EQ(volumePicture(VolumeIconKind::External, QStringLiteral("sdb1"), true), StoragePicture::Removable);
    EXPECT_EQ(volumePicture(VolumeIconKind::External, QStringLiteral("sdb1")), StoragePicture::External);
    EXPECT_EQ(diskMenuPicture(VolumeIconKind::Network), StoragePicture::MenuExternal);

    // "/" is internal (M01, red here), the stick removable (M03, blue); the graph leaves the
    // left of each set empty, so the picture shows there.
    ModuleDefaults d = volumePictureDefaults(kGraph);
    d.set(PrefKey::VlmsInnerIconAbleToBeBol, true);
    for (const auto& [key, colour] : {std::pair{"M01", Qt::red}, std::pair{"M03", Qt::blue}}) {
        QImage picture(28, 28, QImage::Format_ARGB32_Premultiplied);
        picture.fill(colour);
        d.set(QLatin1String(key), QVariant::fromValue(ThemePicture{picture, QSizeF(14, 14)}));
    }
    const auto shownAt = [&](const VolumePictureSettings& settings, double x) {
        const std::vector<StorageBarSet> sets = volumeBarSets(settings, twoVolumes());
        ImageVolumeBar bar;
        bar.redrawWithSize(QSizeF(volumeBarWidth(settings, sets.size(), kBarHeight), kBarHeight),
                           TvlClasses::retStatusMenuInsets(1), false, false, settings,
                           historyOf<VolumeSample>({usageSample()}), sets);
        return bar.image(1).pixelColor(static_cast<int>(x), static_cast<int>(kBarHeight / 2));
    };
    const VolumePictureSettings each = volumePictureSettings(d);
    const double setWidth = 30 + TvlClasses::retStatusMenuInsets(1).spacing;
    const QColor root = shownAt(each, 3);
    const QColor stick = shownAt(each, setWidth + 3);
    EXPECT_GT(root.red(), 0);
    EXPECT_EQ(root.blue(), 0);
    EXPECT_GT(stick.blue(), 0);
    EXPECT_EQ(stick.red(), 0);
    EXPECT_LT(root.alpha(), 255); // faint, so the elements over it stay readable

    // All volumes together have no kind: no picture behind them.
    d.set(PrefKey::Vlms_ShowEachDisk, false);
    EXPECT_EQ(shownAt(volumePictureSettings(d), 3).alpha(), 0);
}
