// A thin window along the top of the screen showing the status items side by side, for desktops
// without a system tray (or when asked for); a normal window under Wayland.
#include "app/front_ends/bar_window_status_bar.h"

#include "app/front_ends/bar_item_widget.h"
#include "app/front_ends/bar_window_status_item.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

BarWindowStatusBar::BarWindowStatusBar(QWidget* parent)
    : QWidget(parent, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint)
{
    setWindowTitle(QCoreApplication::applicationName());
    setBackgroundRole(QPalette::Window);
    setAutoFillBackground(true);
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, &BarWindowStatusBar::layoutItems);
    layoutItems();
}

BarWindowStatusBar::~BarWindowStatusBar()
{
    // The pictures are destroyed after this part of the window; they must not call back into it.
    for (BarItemWidget* item : items_)
        item->disconnect(this);
}

std::unique_ptr<StatusItem> BarWindowStatusBar::createItem(const QString& moduleKey)
{
    auto* widget = new BarItemWidget(moduleKey, this);
    items_.insert(items_.begin(), widget);
    connect(widget, &BarItemWidget::pictureResized, this, &BarWindowStatusBar::layoutItems);
    connect(widget, &QObject::destroyed, this, &BarWindowStatusBar::forgetItem);
    layoutItems();
    widget->show();
    if (!isVisible())
        show();
    return std::make_unique<BarWindowStatusItem>(widget);
}

void BarWindowStatusBar::forgetItem(QObject* gone)
{
    std::erase_if(items_, [gone](BarItemWidget* item) { return item == gone; });
    layoutItems();
}

void BarWindowStatusBar::layoutItems()
{
    int barHeight = kMinimumHeight;
    for (const auto& item : items_)
        barHeight = std::max(barHeight, item->sizeHint().height());
    if (const QScreen* screen = QGuiApplication::primaryScreen()) {
        const QRect area = screen->geometry();
        setGeometry(area.left(), area.top(), area.width(), barHeight);
    }
    int right = width();
    for (auto it = items_.rbegin(); it != items_.rend(); ++it) {
        const int itemWidth = (*it)->sizeHint().width();
        (*it)->setGeometry(right - itemWidth, 0, itemWidth, barHeight);
        // An item still without a picture takes no room, not even a gap.
        if (itemWidth > 0)
            right -= itemWidth + kItemSpacing;
    }
}
