// One status item's picture inside the bar window; the window opens its menu on a click.
#include "app/front_ends/bar_item_widget.h"

#include <QMenu>
#include <QMouseEvent>
#include <QPainter>

#include <cmath>

namespace {

// A template picture only carries a shape; like a menu bar, colour it for the highlight.
QImage tinted(const QImage& picture, const QColor& colour)
{
    QImage result = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&result);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(QRectF(QPointF(0, 0), result.deviceIndependentSize()), colour);
    return result;
}

} // namespace

BarItemWidget::BarItemWidget(const QString& moduleKey, QWidget* parent)
    : QWidget(parent)
{
    setObjectName(moduleKey);
}

void BarItemWidget::setImage(const QImage& image, bool templated)
{
    // Most pictures are drawn again every second but change far less often (a text, a level):
    // an unchanged one costs neither a repaint nor a trip to the X server.
    if (templated == templated_ && image == image_)
        return;
    const QSize before = sizeHint();
    image_ = image;
    templated_ = templated;
    if (sizeHint() != before)
        Q_EMIT pictureResized();
    update();
}

void BarItemWidget::setMenu(QMenu* menu)
{
    menu_ = menu;
}

QMenu* BarItemWidget::menu() const
{
    return menu_;
}

QSize BarItemWidget::sizeHint() const
{
    if (image_.isNull())
        return {0, 0};
    const QSizeF points = image_.deviceIndependentSize();
    return {static_cast<int>(std::ceil(points.width())), static_cast<int>(std::ceil(points.height()))};
}

void BarItemWidget::paintEvent(QPaintEvent*)
{
    if (image_.isNull())
        return;
    QPainter painter(this);
    const QPointF origin(0, (height() - image_.deviceIndependentSize().height()) / 2);
    if (templated_) {
        painter.fillRect(rect(), palette().color(QPalette::Highlight));
        painter.drawImage(origin, tinted(image_, palette().color(QPalette::HighlightedText)));
    } else {
        painter.drawImage(origin, image_);
    }
}

void BarItemWidget::mousePressEvent(QMouseEvent* event)
{
    if (!menu_ || event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    Q_EMIT pressed();
}
