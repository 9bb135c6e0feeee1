// One status item of the bar window: a handle on its picture widget, which the window owns.
#include "app/front_ends/bar_window_status_item.h"

#include "app/front_ends/bar_item_widget.h"

BarWindowStatusItem::BarWindowStatusItem(BarItemWidget* widget)
    : widget_(widget)
{}

BarWindowStatusItem::~BarWindowStatusItem()
{
    delete widget_.data();
}

void BarWindowStatusItem::setImage(const QImage& image, bool templated)
{
    if (widget_)
        widget_->setImage(image, templated);
}

void BarWindowStatusItem::setText(const QString& text)
{
    if (widget_)
        widget_->setToolTip(text);
}

void BarWindowStatusItem::setMenu(QMenu* menu)
{
    if (widget_)
        widget_->setMenu(menu);
}
