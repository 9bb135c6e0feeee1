// The Network picture: width rule, the threshold of lamps and graph, the graph styles, texts.
#include "memory_network_defaults.h"
#include "modules/network/image_network_bar.h"
#include "modules/network/network_bar_width.h"
#include "modules/network/network_rates.h"
#include "picture_recording.h"
#include "toolkit/point_canvas.h"
#include "toolkit/recording_paint_device.h"

#include <QStringList>
#include <gtest/gtest.h>

#include <bit>
#include <cmath>

using namespace PrefKey;

namespace {

constexpr double kBarHeight = 22;
constexpr double kInner = kBarHeight - 3; // top 1, bottom 2

std::vector<DrawCall> drawPicture(const ModuleDefaults& d, const History<NetworkSample>& history,
                                  const NetworkRates& now = {})
{
    ImageNetworkBar bar;
    bar.redrawWithSize(QSizeF(400, kBarHeight), TvlClasses::retStatusMenuInsets(2), false, false,
                       networkPictureSettings(d), history, now);
    return recordPicture(bar, QSize(400, static_cast<int>(kBarHeight))).calls;
}

ModuleDefaults graphOnly(qint64 mode)
{
    ModuleDefaults d = networkPictureDefaults(4);
    d.set(Network_Graph_Mode, mode);
    return d;
}

// In y-up points: the bottom and top of a recorded rectangle.
double bottomOf(const DrawCall& call)
{
    return kBarHeight - call.rect.bottom();
}
double topOf(const DrawCall& call)
{
    return kBarHeight - call.rect.top();
}

} // namespace

TEST(NetworkBarWidth, EqualsThePictureForEveryCombinationOfElements)
{
    const History<NetworkSample> history =
        networkHistory(std::vector(40, std::pair<std::int64_t, std::int64_t>{5000, 9000}));
    for (unsigned mask = 1; mask < 16; ++mask) {
        for (const bool label : {false, true}) {
            SCOPED_TRACE(testing::Message() << "elements " << mask << " label " << label);
            const NetworkPictureSettings d = networkSettings(mask, label);
            const double width = networkBarWidth(d);
            const TvlClasses::Insets insets = TvlClasses::retStatusMenuInsets(std::popcount(mask));
            ImageNetworkBar bar;
            bar.redrawWithSize(QSizeF(width, kBarHeight), insets, false, true, d, history, {4096, 1 << 20});

            RecordingPaintDevice device(QSize(static_cast<int>(std::ceil(width)), static_cast<int>(kBarHeight)));
            QPainter painter(&device);
            TvlClasses::PointCanvas::flipToPoints(painter, kBarHeight);
            EXPECT_DOUBLE_EQ(bar.drawRect(painter) - insets.spacing + 4, width);
            painter.end();

            const QImage image = bar.image(2);
            for (int x = static_cast<int>((width - 3) * 2); x < image.width(); ++x)
                for (int y = 0; y < image.height(); ++y)
                    ASSERT_EQ(image.pixelColor(x, y).alpha(), 0) << "at " << x << ", " << y;
        }
    }
    EXPECT_DOUBLE_EQ(networkBarWidth(networkSettings(0, true)), 0);
}

TEST(ImageNetworkBar, LampsAndGraphIgnoreTrafficBelowTheThreshold)
{
    // 1 KB/s: an upload of 2 KB/s lights its lamp, a download of 512 B/s does not.
    ModuleDefaults d = networkPictureDefaults(2);
    const auto lamps = drawPicture(d, networkHistory({{4096, 1024}}), {2048, 512});
    ASSERT_EQ(lamps.size(), 4U); // each lamp: its ring, then its fill
    EXPECT_EQ(lamps[1].brush, d.color(NetworkThemeKey::C01));
    EXPECT_EQ(lamps[3].brush, d.color(NetworkThemeKey::C04));
    d.set(Network_Limen_Base, qint64{4});
    EXPECT_EQ(drawPicture(d, networkHistory({}), {2048, 512})[1].brush, d.color(NetworkThemeKey::C04));

    // Newest first: 8 KB/s up only, then 1.5 KB/s down only; at 2 KB/s the second draws nothing.
    const History<NetworkSample> history = networkHistory({{0, 3072}, {16384, 0}});
    EXPECT_EQ(drawPicture(graphOnly(1), history).size(), 2U);
    ModuleDefaults high = graphOnly(1);
    high.set(Network_Limen_Base, qint64{2});
    const auto calls = drawPicture(high, history);
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(calls[0].brush, high.color(NetworkThemeKey::C01));
    EXPECT_DOUBLE_EQ(calls[0].rect.left(), 29);
    EXPECT_NEAR(calls[0].rect.height(), kInner, 1e-9); // the highest rate in view fills the graph
}

TEST(ImageNetworkBar, GraphStylesPlaceUploadAndDownload)
{
    // One interval: 8 KB/s up, 4 KB/s down.
    const History<NetworkSample> history = networkHistory({{16384, 8192}});
    const QColor up = networkPictureDefaults(0).color(NetworkThemeKey::C01);

    auto calls = drawPicture(graphOnly(1), history); // both from the bottom, the larger behind
    ASSERT_EQ(calls.size(), 2U);
    EXPECT_EQ(calls[0].brush, up);
    EXPECT_NEAR(bottomOf(calls[1]), 1, 1e-9);
    EXPECT_NEAR(calls[1].rect.height(), kInner / 2, 1e-9);

    calls = drawPicture(graphOnly(2), history); // download up from the bottom, upload down from the top
    ASSERT_EQ(calls.size(), 2U);
    EXPECT_NEAR(bottomOf(calls[0]), 1, 1e-9);
    EXPECT_NEAR(topOf(calls[1]), 1 + kInner, 1e-9);
    EXPECT_EQ(calls[1].brush, up);

    calls = drawPicture(graphOnly(3), history); // from the middle, half the height each way
    ASSERT_EQ(calls.size(), 2U);
    EXPECT_NEAR(bottomOf(calls[0]), 1 + kInner / 2, 1e-9);
    EXPECT_NEAR(calls[0].rect.height(), kInner / 2, 1e-9);
    EXPECT_NEAR(topOf(calls[1]), 1 + kInner / 2, 1e-9);

    // Lines join neighbouring samples: two intervals give one segment each way.
    const History<NetworkSample> two = networkHistory({{16384, 8192}, {8192, 16384}});
    for (const auto& [mode, width] : {std::pair{4, 0.5}, std::pair{5, 1.0}}) {
        calls = drawPicture(graphOnly(mode), two);
        ASSERT_EQ(calls.size(), 2U) << mode;
        EXPECT_TRUE(calls[0].antialiased);
        EXPECT_DOUBLE_EQ(calls[0].penWidth, width);
    }
    // A stored style the list does not have draws the default.
    EXPECT_EQ(drawPicture(graphOnly(9), history).size(), 2U);
}

TEST(ImageNetworkBar, LabelsAndTextsInTheChosenUnit)
{
    ModuleDefaults d = networkPictureDefaults(1 | 8);
    const NetworkRates now{1536, 1000};
    QStringList texts;
    for (const DrawCall& call : drawPicture(d, networkHistory({{1, 1}}), now))
        texts << call.text;
    EXPECT_EQ(texts, QStringList({"Up", "Dw", "1.50KB/s", "1000B/s"}));

    d.set(Network_Text_Mode, qint64{2});
    texts.clear();
    for (const DrawCall& call : drawPicture(d, networkHistory({{1, 1}}), now))
        texts << call.text;
    EXPECT_EQ(texts.mid(2), QStringList({"12.0Kbps", "7.81Kbps"}));
    EXPECT_EQ(networkBarText(now, false), QStringLiteral("up 1.50KB/s  down 1000B/s"));
}

TEST(NetworkRates, GrowthOverTheIntervalWithResetsAsNone)
{
    const History<NetworkSample> history = networkHistory({{4000, 1000}, {-500, 3000}});
    EXPECT_EQ(sampleRates(history, 1), (NetworkRates{2000, 500}));
    EXPECT_EQ(sampleRates(history, 2), (NetworkRates{0, 1500})); // the upload counter went back
    EXPECT_EQ(sampleRates(history, 0), NetworkRates{});
    EXPECT_EQ(currentNetworkRates(history), (NetworkRates{0, 1500}));
    EXPECT_EQ(currentNetworkRates(networkHistory({})), NetworkRates{});
}
