// Two panel strips, light over dark, each showing the same picture at its left end.
#include "preferences/picture_preview.h"

#include "toolkit/localization.h"

#include <QPainter>
#include <QScrollBar>

#include <cmath>

namespace {

// Room around the picture inside a strip, like the gap a panel leaves around its items.
constexpr int kPadding = 6;
// A strip is never lower than a panel, even before the first picture.
constexpr int kMinimumPictureHeight = 40;
constexpr int kMinimumWidth = 120;

} // namespace

PicturePreview::PicturePreview(QWidget* parent)
    : QAbstractScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    updateScrolling();
}

QColor PicturePreview::lightPanelColor()
{
    return {0xec, 0xec, 0xec};
}

QColor PicturePreview::darkPanelColor()
{
    return {0x24, 0x24, 0x24};
}

void PicturePreview::setImage(const QImage& image)
{
    image_ = image;
    updateScrolling();
    updateGeometry();
    viewport()->update();
}

QSizeF PicturePreview::imageSize() const
{
    return image_.isNull() ? QSizeF() : image_.deviceIndependentSize() * zoom();
}

int PicturePreview::stripHeight() const
{
    return std::max(kMinimumPictureHeight, static_cast<int>(std::ceil(imageSize().height()))) + 2 * kPadding;
}

int PicturePreview::contentWidth() const
{
    return static_cast<int>(std::ceil(imageSize().width())) + 2 * kPadding;
}

QSize PicturePreview::sizeHint() const
{
    return {std::max(kMinimumWidth, contentWidth()), height()};
}

QSize PicturePreview::minimumSizeHint() const
{
    return {kMinimumWidth, height()};
}

void PicturePreview::updateScrolling()
{
    QScrollBar* bar = horizontalScrollBar();
    bar->setRange(0, std::max(0, contentWidth() - viewport()->width()));
    bar->setPageStep(viewport()->width());
    // The strips keep their height; the scroll bar, when shown, is added below them.
    const int barHeight = bar->maximum() > 0 ? bar->sizeHint().height() : 0;
    setFixedHeight(2 * stripHeight() + barHeight);
}

void PicturePreview::resizeEvent(QResizeEvent* event)
{
    QAbstractScrollArea::resizeEvent(event);
    updateScrolling();
}

void PicturePreview::scrollContentsBy(int dx, int dy)
{
    Q_UNUSED(dx)
    Q_UNUSED(dy)
    viewport()->update();
}

void PicturePreview::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(viewport());
    const int strip = stripHeight();
    const int width = viewport()->width();
    const int left = kPadding - horizontalScrollBar()->value();
    const QSizeF size = imageSize();
    const struct {
        QColor panel;
        QColor caption;
        const char* text;
    } strips[] = {{lightPanelColor(), QColor(0x80, 0x80, 0x80), "Light"},
                  {darkPanelColor(), QColor(0xa0, 0xa0, 0xa0), "Dark"}};
    for (int i = 0; i < 2; ++i) {
        const QRect frame(0, i * strip, width, strip);
        painter.fillRect(frame, strips[i].panel);
        // The caption sits at the right end, out of the picture's way, and only where it fits.
        const QString caption = localized(strips[i].text);
        if (width - contentWidth() - kPadding > painter.fontMetrics().horizontalAdvance(caption)) {
            painter.setPen(strips[i].caption);
            painter.drawText(frame.adjusted(0, 0, -kPadding, 0), Qt::AlignRight | Qt::AlignVCenter, caption);
        }
        if (!image_.isNull())
            painter.drawImage(QRectF(QPointF(left, frame.top() + (strip - size.height()) / 2), size), image_);
    }
}
