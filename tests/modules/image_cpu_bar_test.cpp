// The CPU picture: which records it draws, in which order, and its texts.
#include "cpu_picture_defaults.h"
#include "modules/cpu/cpu_bar_width.h"
#include "modules/cpu/image_cpu_bar.h"
#include "picture_recording.h"
#include "toolkit/point_canvas.h"

#include <QStringList>
#include <gtest/gtest.h>

namespace {

constexpr double kBarHeight = 22;

std::vector<DrawCall> drawPicture(const ModuleDefaults& defaults, const History<CpuSample>& history,
                                  double* end = nullptr)
{
    ImageCpuBar bar;
    bar.redrawWithSize(QSizeF(400, kBarHeight), TvlClasses::retStatusMenuInsets(2), false, true,
                       cpuPictureSettings(defaults), history);
    const Drawn drawn = recordPicture(bar, QSize(400, static_cast<int>(kBarHeight)));
    if (end != nullptr)
        *end = drawn.end;
    return drawn.calls;
}

} // namespace

TEST(ImageCpuBar, ElementsFollowTheChosenOrder)
{
    ModuleDefaults defaults = cpuPictureDefaults({.graph = true, .text = true});
    defaults.set(PrefKey::CpuItemSortArray, QVariantList{4, 1, 9});
    const auto calls = drawPicture(defaults, cpuHistory(CpuSample{{1, 1, 0, 2}}, 3));

    ASSERT_EQ(calls.size(), 2U + 3 * 3 + 1); // two texts, three columns of three, the underline
    EXPECT_EQ(calls[0].kind, DrawCall::Text);
    EXPECT_EQ(calls[1].kind, DrawCall::Text);
    // The graph follows the 30-point text box and its spacing; its empty part is underlined.
    EXPECT_DOUBLE_EQ(calls[2].rect.left(), 34 + 40 - 1);
    const DrawCall& underline = calls.back();
    EXPECT_EQ(underline.brush, defaults.color(CpuThemeKey::Z03));
    EXPECT_EQ(underline.rect, QRectF(34, kBarHeight - 1 - 0.5, 37, 0.5));
}

TEST(ImageCpuBar, EmptyRecordDrawsEmptyBarsAndZeroTexts)
{
    ModuleDefaults defaults = cpuPictureDefaults({.levelBar = true, .text = true});
    const History<CpuSample> history = cpuHistory(zeroCpuSample(4));
    const auto calls = drawPicture(defaults, history);
    ASSERT_EQ(calls.size(), 3U); // the level bar's frame, two texts
    EXPECT_EQ(calls[0].pen, defaults.color(CpuThemeKey::A05));
    EXPECT_EQ(textsOf(calls), QStringList({"0%", "0%"}));
    EXPECT_EQ(calls[1].pen, defaults.color(CpuThemeKey::A01));
    EXPECT_EQ(calls[2].pen, defaults.color(CpuThemeKey::A02));

    defaults.set(PrefKey::Cpu_Text_DisplayAverage, true);
    const auto combined = drawPicture(defaults, history);
    EXPECT_EQ(textsOf(combined), QStringList({"0%"}));
    EXPECT_EQ(combined.back().pen, defaults.color(CpuThemeKey::A07));
}

TEST(ImageCpuBar, AveragingDrawsTheMachineOnceOtherwiseEveryCoreInTurn)
{
    // Three cores at 10, 20 and 30% user, the machine at 50%.
    const History<CpuSample> history = cpuHistory(CpuSample{{1, 0, 0, 9}, {2, 0, 0, 8}, {3, 0, 0, 7}, {5, 0, 0, 5}});
    ModuleDefaults defaults = cpuPictureDefaults({.levelBar = true, .text = true});
    EXPECT_EQ(textsOf(drawPicture(defaults, history)), QStringList({"50%", "0%"}));

    defaults.set(PrefKey::Cpu_AverageMultiProcessors, false);
    double end = 0;
    const auto calls = drawPicture(defaults, history, &end);
    EXPECT_EQ(textsOf(calls), QStringList({"10%", "0%", "20%", "0%", "30%", "0%"}));
    EXPECT_EQ(calls[3].kind, DrawCall::Text); // each core's bar, then its texts
    EXPECT_DOUBLE_EQ(end, 3 * (7 + 4 + 30 + 4));
}

TEST(ImageCpuBar, LabelComesFirstAndMovesTheElementsTwelvePointsRight)
{
    ModuleDefaults defaults = cpuPictureDefaults({.levelBar = true}, true, true);
    QImage icon(24, 44, QImage::Format_ARGB32_Premultiplied);
    icon.fill(Qt::black);
    defaults.set(CpuThemeKey::L01, QVariant::fromValue(ThemePicture{icon, QSizeF(12, 22)}));
    const auto calls = drawPicture(defaults, cpuHistory(CpuSample{{1, 0, 0, 1}}));

    ASSERT_FALSE(calls.empty());
    EXPECT_EQ(calls[0].kind, DrawCall::Image);
    EXPECT_EQ(calls[0].rect, QRectF(0, 0, 12, 22));
    EXPECT_DOUBLE_EQ(calls[1].rect.left(), 13); // the level bar's fill, inset one point
}

TEST(ImageCpuBar, DrawsNothingWithoutSettingsHistoryOrRecords)
{
    const ModuleDefaults defaults = cpuPictureDefaults({.graph = true, .text = true});
    EXPECT_TRUE(drawPicture(ModuleDefaults(), cpuHistory(zeroCpuSample(2))).empty());
    EXPECT_TRUE(drawPicture(defaults, History<CpuSample>()).empty());
    EXPECT_TRUE(drawPicture(defaults, cpuHistory(CpuSample())).empty());
    // Per core on a sample holding only the machine's record: no core to draw.
    ModuleDefaults perCore = defaults;
    perCore.set(PrefKey::Cpu_AverageMultiProcessors, false);
    EXPECT_TRUE(drawPicture(perCore, cpuHistory(zeroCpuSample(0))).empty());
    EXPECT_TRUE(ImageCpuBar().image(2).isNull());
}
