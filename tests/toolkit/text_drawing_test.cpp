// Aligned text with shadows on the y-up canvas, text heights and the fixed-width digit font.
#include "toolkit/point_canvas.h"
#include "toolkit/recording_paint_device.h"
#include "toolkit/text_drawing.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <gtest/gtest.h>

using namespace TvlClasses;

namespace {

constexpr double kHeight = 22;

TextAttributes shadowedAttributes()
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSizeF(9);
    return {font, QColor(), retNormalTextShadow(QColor(0, 0, 0, 100))};
}

// Draws on a y-up canvas 30 × 22 points and returns the text calls.
std::vector<DrawCall> drawText(TextAttributes& attributes, int vAlign, int hAlign, int ajustY, bool white)
{
    RecordingPaintDevice device(QSize(30, static_cast<int>(kHeight)));
    QPainter painter(&device);
    PointCanvas::flipToPoints(painter, kHeight);
    tvlDrawString(painter, QStringLiteral("88%"), vAlign, hAlign, QColor(255, 0, 0), attributes,
                  QRectF(0, 0, 30, kHeight), ajustY, white);
    painter.end();
    return device.calls(DrawCall::Text);
}

// The centre of a recorded text box, measured upwards from the canvas bottom.
double centreFromBottom(const DrawCall& call)
{
    return kHeight - call.rect.center().y();
}

} // namespace

TEST(DrawString, RightAlignedUpperHalfWithTheShadowAQuarterPointBelow)
{
    TextAttributes attributes = shadowedAttributes();
    const auto calls = drawText(attributes, 0, 2, 0, false);
    ASSERT_EQ(calls.size(), 2U); // shadow first, text over it
    const DrawCall& text = calls[1];
    EXPECT_EQ(text.text, "88%");
    EXPECT_EQ(text.pen, QColor(255, 0, 0));
    EXPECT_EQ(attributes.color, QColor(255, 0, 0));
    EXPECT_NEAR(text.rect.right(), 30, 0.01);
    EXPECT_NEAR(centreFromBottom(text), 16.5, 0.01);
    EXPECT_EQ(calls[0].pen, QColor(0, 0, 0, 100));
    EXPECT_NEAR(centreFromBottom(calls[0]), 16.25, 0.01);

    // Centred both ways, then the lower half moved down by the adjustment.
    const auto centred = drawText(attributes, 1, 1, 0, false);
    EXPECT_NEAR(centred[1].rect.center().x(), 15, 0.01);
    EXPECT_NEAR(centreFromBottom(centred[1]), 11, 0.01);
    const auto lowered = drawText(attributes, 2, 0, 2, false);
    EXPECT_NEAR(lowered[1].rect.left(), 0, 0.01);
    EXPECT_NEAR(centreFromBottom(lowered[1]), 5.5 - 2, 0.01);
}

TEST(DrawString, WhiteDropsTheShadowFromTheCallersAttributes)
{
    TextAttributes attributes = shadowedAttributes();
    const auto white = drawText(attributes, 1, 1, 0, true);
    ASSERT_EQ(white.size(), 1U);
    EXPECT_EQ(white[0].pen, QColor(Qt::white));
    EXPECT_FALSE(attributes.shadow);
    EXPECT_EQ(drawText(attributes, 1, 1, 0, false).size(), 1U);
}

TEST(TextMeasures, HeightGrowsWithLinesAndDigitsKeepTheirWidth)
{
    const TextAttributes attributes = shadowedAttributes();
    const double one = calcTextViewHeightWithLines(1, attributes);
    EXPECT_EQ(calcTextViewHeightWithLines(0, attributes), 0);
    EXPECT_GT(one, 0);
    EXPECT_GT(calcTextViewHeightWithLines(2, attributes), one * 1.5);

    const QFont digits = changeMsf(QFont(QStringLiteral("Sans"), 9), 60, 2);
    EXPECT_DOUBLE_EQ(digits.pointSizeF(), 11);
    const QFontMetricsF metrics = pointFontMetrics(digits);
    EXPECT_DOUBLE_EQ(metrics.horizontalAdvance(QStringLiteral("1")), metrics.horizontalAdvance(QStringLiteral("8")));
}

TEST(PointCanvas, DrawsUpwardsFromTheBottomLeftAtTheScreenRatio)
{
    PointCanvas canvas(QSizeF(10, 22), 2);
    QPainter& painter = canvas.painter();
    painter.fillRect(QRectF(0, 0, 1, 1), Qt::red);
    QImage arrow(1, 2, QImage::Format_ARGB32_Premultiplied);
    arrow.setPixelColor(0, 0, Qt::green); // top row
    arrow.setPixelColor(0, 1, Qt::blue);
    drawImageUpright(painter, arrow, QRectF(5, 0, 1, 2));
    const QImage image = canvas.takeImage();

    EXPECT_EQ(image.size(), QSize(20, 44));
    EXPECT_DOUBLE_EQ(image.devicePixelRatio(), 2);
    EXPECT_EQ(image.pixelColor(1, 43), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0);
    EXPECT_EQ(image.pixelColor(10, 40), QColor(Qt::green));
    EXPECT_EQ(image.pixelColor(10, 43), QColor(Qt::blue));
    EXPECT_TRUE(PointCanvas(QSizeF(0, 22), 2).takeImage().isNull());
}

TEST(PointCanvas, TextStandsUpright)
{
    PointCanvas canvas(QSizeF(40, 40), 1);
    TextAttributes attributes{QFontDatabase::systemFont(QFontDatabase::FixedFont), QColor(), std::nullopt};
    attributes.font.setPointSizeF(30);
    tvlDrawString(canvas.painter(), QStringLiteral("T"), 1, 1, Qt::black, attributes, QRectF(0, 0, 40, 40), 0, false);
    const QImage image = canvas.takeImage();

    // The bar of a T is its widest row, and it sits above the stem.
    int widestRow = -1, widest = 0, firstInk = -1, lastInk = -1;
    for (int y = 0; y < image.height(); ++y) {
        int ink = 0;
        for (int x = 0; x < image.width(); ++x)
            ink += image.pixelColor(x, y).alpha() > 128 ? 1 : 0;
        if (ink > 0) {
            firstInk = firstInk < 0 ? y : firstInk;
            lastInk = y;
        }
        if (ink > widest) {
            widest = ink;
            widestRow = y;
        }
    }
    ASSERT_GE(firstInk, 0);
    EXPECT_LT(widestRow - firstInk, lastInk - widestRow);
}
