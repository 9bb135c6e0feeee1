// The Temp and Fan pictures: width rule, the graph against its full scale, the figure followed,
// piled text, units and formats.
#include "memory_network_defaults.h"
#include "modules/fan/fan_picture_settings.h"
#include "modules/fan/image_fan_bar.h"
#include "modules/temp/image_temp_bar.h"
#include "modules/temp/temp_picture_settings.h"
#include "modules/temp/temp_theme_keys.h"
#include "picture_recording.h"

#include "sensor_samples.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace PrefKey;

namespace {

constexpr double kBarHeight = 22;
constexpr double kInner = kBarHeight - 3; // top 1, bottom 2

// Graph then text, 30 points of graph, 100 °C full scale, degrees Celsius.
ModuleDefaults tempDefaults(bool graph, bool text, bool piled = false, bool label = false)
{
    using namespace TempThemeKey;
    ModuleDefaults d;
    d.set(TempItemSortArray, QVariantList{1, 2});
    d.set(Temp_Display_Graph, graph);
    d.set(Temp_Display_Text, text);
    d.set(TempInnerTextMode, qint64{!text ? 0 : (piled ? 2 : 1)});
    d.set(TempInnerPiledFontSizeDbl, -1.0);
    d.set(Temp_ShowMyLabel, label);
    d.set(Temp_GraphWidth, qint64{30});
    d.set(TempInnerTextWidth, 26.0);
    d.set(Temp_MaxTemp, qint64{100});
    d.set(Temp_Unit_Mode, qint64{1});
    d.set(Temp_Unit_ModeStr, QStringLiteral("°C"));
    d.set(Temp_ShowTempOnMenu, QLatin1String(kTempShowAverage));
    d.set(_FontPostScriptName, QFontDatabase::systemFont(QFontDatabase::FixedFont).family());
    setTestColor(d, F01, 0, 150, 0);
    setTestColor(d, F02, 250, 150, 0);
    setTestColor(d, F03, 250, 0, 0);
    setTestColor(d, F04, 20, 20, 20);
    return d;
}

History<SensorSample> history(std::initializer_list<SensorSample> samples)
{
    History<SensorSample> h;
    for (const SensorSample& s : samples)
        h = h.appended(s);
    return h;
}

template <class Bar>
Drawn drawPicture(const SensorPictureSettings& settings, const History<SensorSample>& h, const QString& shown = {})
{
    Bar bar;
    const double width = sensorBarWidth(settings);
    bar.redrawWithSize(QSizeF(width, kBarHeight), TvlClasses::retStatusMenuInsets(sensorShownElementCount(settings)),
                       false, false, settings, h, shown);
    return recordPicture(bar, QSize(static_cast<int>(std::ceil(width)) + 1, static_cast<int>(kBarHeight)));
}

std::vector<DrawCall> rects(const std::vector<DrawCall>& calls)
{
    std::vector<DrawCall> out;
    for (const DrawCall& call : calls)
        if (call.kind != DrawCall::Text)
            out.push_back(call);
    return out;
}

} // namespace

TEST(SensorBarWidth, EqualsThePictureForEveryCombination)
{
    const History<SensorSample> h = history({sensorSample({}, 45)});
    const double s2 = TvlClasses::retStatusMenuInsets(2).spacing;
    struct Case {
        bool graph, text, piled, label;
        double width;
    };
    // The last spacing becomes the 4-point margin; piled text takes no room of its own.
    for (const Case& c : {Case{true, false, false, false, 34}, Case{false, true, false, false, 30},
                          Case{true, true, false, false, 30 + s2 + 26 + 4}, Case{true, true, true, false, 34},
                          Case{true, true, true, true, 46}, Case{false, false, false, true, 0}}) {
        SCOPED_TRACE(testing::Message() << c.graph << c.text << c.piled << c.label);
        const SensorPictureSettings settings = tempPictureSettings(tempDefaults(c.graph, c.text, c.piled, c.label));
        EXPECT_DOUBLE_EQ(sensorBarWidth(settings), c.width);
        if (c.width == 0)
            continue;
        const Drawn drawn = drawPicture<ImageTempBar>(settings, h);
        const double spacing = TvlClasses::retStatusMenuInsets(sensorShownElementCount(settings)).spacing;
        EXPECT_DOUBLE_EQ(drawn.end - spacing + 4, c.width);
    }
}

TEST(ImageSensorBar, GraphScalesToTheTopAndColoursByLevel)
{
    const ModuleDefaults d = tempDefaults(true, false);
    // Oldest to newest: 50 °C, 80 °C (warning from 70), 120 °C (over the top: full, critical).
    const auto calls = rects(drawPicture<ImageTempBar>(tempPictureSettings(d),
                                                       history({sensorSample({}, 50), sensorSample({}, 80), sensorSample({}, 120)}))
                                 .calls);
    ASSERT_EQ(calls.size(), 3U); // newest first
    EXPECT_DOUBLE_EQ(calls[0].rect.left(), 29); // newest at the right edge
    EXPECT_NEAR(calls[0].rect.height(), kInner, 1e-9);
    EXPECT_EQ(calls[0].brush, d.color(TempThemeKey::F03));
    EXPECT_NEAR(calls[1].rect.height(), kInner * 0.8, 1e-9);
    EXPECT_EQ(calls[1].brush, d.color(TempThemeKey::F02));
    EXPECT_NEAR(calls[2].rect.height(), kInner * 0.5, 1e-9);
    EXPECT_EQ(calls[2].brush, d.color(TempThemeKey::F01));
}

TEST(ImageSensorBar, FollowsTheChosenSensorAndLeavesGapsWhereItIsMissing)
{
    const SensorPictureSettings settings = tempPictureSettings(tempDefaults(true, true));
    const History<SensorSample> h = history({sensorSample({{"CPU", 60}}, 50), sensorSample({{"GPU", 40}}, 40)});
    // The chosen sensor is missing from the newest sample: a gap at the right edge, the
    // placeholder for its text.
    const Drawn cpu = drawPicture<ImageTempBar>(settings, h, QStringLiteral("CPU"));
    const auto cpuRects = rects(cpu.calls);
    ASSERT_FALSE(cpuRects.empty());
    EXPECT_DOUBLE_EQ(cpuRects[0].rect.left(), 28);
    EXPECT_EQ(textsOf(cpu.calls), QStringList{QStringLiteral("---")});
    // The average is followed when nothing is chosen.
    EXPECT_EQ(textsOf(drawPicture<ImageTempBar>(settings, h).calls), QStringList{QStringLiteral("40°C")});
}

TEST(ImageSensorBar, WritesTheFigureInTheUnitAndFormatOfTheSettings)
{
    ModuleDefaults d = tempDefaults(false, true);
    d.set(Temp_Unit_Mode, qint64{2});
    d.set(Temp_Unit_ModeStr, QStringLiteral("°F"));
    EXPECT_EQ(textsOf(drawPicture<ImageTempBar>(tempPictureSettings(d), history({sensorSample({}, 45)})).calls),
              QStringList{QStringLiteral("113°F")});

    // Piled and shrunk, the figure goes without its unit onto the graph.
    ModuleDefaults piled = tempDefaults(true, true, true);
    piled.set(TempInnerPiledFontSizeDbl, 7.0);
    const Drawn onGraph = drawPicture<ImageTempBar>(tempPictureSettings(piled), history({sensorSample({}, 45)}));
    EXPECT_EQ(textsOf(onGraph.calls), QStringList{QStringLiteral("45")});

    EXPECT_EQ(fanSpeedText(1250, QStringLiteral("%04drpm")), QStringLiteral("1250rpm"));
    EXPECT_EQ(fanSpeedText(800, QStringLiteral("%04d")), QStringLiteral("0800"));
    EXPECT_EQ(fanSpeedText(std::nullopt, QStringLiteral("%04drpm")), QStringLiteral("---"));
    // A damaged format cannot make the text read anything but the speed.
    EXPECT_EQ(fanSpeedText(900, QStringLiteral("%s%n")), QStringLiteral("0900"));
}
