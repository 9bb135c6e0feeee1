// Panel strips in the colours the themes are made for, each showing its picture at its left end.
#include "preferences/picture_preview.h"

#include "toolkit/localization.h"
#include "toolkit/panel_color.h"

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
    return TvlClasses::retPanelColor(false);
}

QColor PicturePreview::darkPanelColor()
{
    return TvlClasses::retPanelColor(true);
}

void PicturePreview::setImage(const QImage& image, bool darkPanel)
{
    strips_[0] = {image, darkPanel};
    picturesChanged();
}

void PicturePreview::setAlternativeImage(const QImage& image, bool darkPanel)
{
    strips_[1] = {image, darkPanel};
    picturesChanged();
}

void PicturePreview::picturesChanged()
{
    updateScrolling();
    updateGeometry();
    viewport()->update();
}

QSizeF PicturePreview::imageSize(const Strip& strip) const
{
    return strip.image.isNull() ? QSizeF() : strip.image.deviceIndependentSize() * zoom();
}

int PicturePreview::stripCount() const
{
    return strips_[1].image.isNull() ? 1 : 2;
}

int PicturePreview::stripHeight() const
{
    const double tallest = std::max(imageSize(strips_[0]).height(), imageSize(strips_[1]).height());
    return std::max(kMinimumPictureHeight, static_cast<int>(std::ceil(tallest))) + 2 * kPadding;
}

int PicturePreview::contentWidth() const
{
    const double widest = std::max(imageSize(strips_[0]).width(), imageSize(strips_[1]).width());
    return static_cast<int>(std::ceil(widest)) + 2 * kPadding;
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
    setFixedHeight(stripCount() * stripHeight() + barHeight);
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
    const int height = stripHeight();
    const int width = viewport()->width();
    const int left = kPadding - horizontalScrollBar()->value();
    for (int i = 0; i < stripCount(); ++i) {
        const Strip& strip = strips_[i];
        const QRect frame(0, i * height, width, height);
        painter.fillRect(frame, TvlClasses::retPanelColor(strip.dark));
        // The caption sits at the right end, out of the picture's way, and only where it fits.
        const QString caption = Tarvel::localized(strip.dark ? Tarvel::textKey("Dark") : Tarvel::textKey("Light"));
        if (width - contentWidth() - kPadding > painter.fontMetrics().horizontalAdvance(caption)) {
            painter.setPen(strip.dark ? QColor(0xa0, 0xa0, 0xa0) : QColor(0x80, 0x80, 0x80));
            painter.drawText(frame.adjusted(0, 0, -kPadding, 0), Qt::AlignRight | Qt::AlignVCenter, caption);
        }
        const QSizeF size = imageSize(strip);
        if (!strip.image.isNull())
            painter.drawImage(QRectF(QPointF(left, frame.top() + (height - size.height()) / 2), size), strip.image);
    }
}
