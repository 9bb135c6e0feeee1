// A thin window along the top of the screen showing the status items side by side, for desktops
// without a system tray (or when asked for); a dock under X11, a normal window under Wayland.
#include "app/front_ends/bar_window_status_bar.h"

#include "app/front_ends/bar_item_widget.h"
#include "app/front_ends/bar_window_status_item.h"
#include "app/front_ends/menu_placement.h"
#include "app/front_ends/x11_dock.h"
#include "toolkit/panel_color.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QScreen>

#include <algorithm>

BarWindowStatusBar::BarWindowStatusBar(QWidget* parent)
    : QWidget(parent, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint)
{
    setWindowTitle(QCoreApplication::applicationName());
    setBackgroundRole(QPalette::Window);
    setAutoFillBackground(true);
    setDarkAppearance(false);
    // The window type is read as the window is first mapped, so it is set before any showing.
    if (X11Dock::available()) {
        winId();
        X11Dock::markAsDock(*this);
    }
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, &BarWindowStatusBar::layoutItems);
    layoutItems();
}

BarWindowStatusBar::~BarWindowStatusBar()
{
    // The pictures are destroyed after this part of the window; they must not call back into it.
    for (BarItemWidget* item : items_)
        item->disconnect(this);
    if (openMenu_)
        openMenu_->removeEventFilter(this);
}

std::unique_ptr<StatusItem> BarWindowStatusBar::createItem(const QString& moduleKey)
{
    auto* widget = new BarItemWidget(moduleKey, this);
    items_.insert(items_.begin(), widget);
    connect(widget, &BarItemWidget::pictureResized, this, &BarWindowStatusBar::layoutItems);
    connect(widget, &BarItemWidget::pressed, this, [this, widget] { itemPressed(widget); });
    connect(widget, &QObject::destroyed, this, &BarWindowStatusBar::forgetItem);
    layoutItems();
    widget->show();
    if (!isVisible())
        show();
    return std::make_unique<BarWindowStatusItem>(widget);
}

void BarWindowStatusBar::setDarkAppearance(bool dark)
{
    QPalette colours = palette();
    colours.setColor(QPalette::Window, TvlClasses::retPanelColor(dark));
    colours.setColor(QPalette::WindowText, TvlClasses::retPanelColor(!dark));
    setPalette(colours);
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
        if (geometry() != QRect(area.left(), area.top(), area.width(), barHeight)) {
            setGeometry(area.left(), area.top(), area.width(), barHeight);
            X11Dock::reserveTopEdge(*this, area, barHeight);
        }
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

void BarWindowStatusBar::itemPressed(BarItemWidget* item)
{
    openedByMove_ = false;
    if (item == openItem_ && openMenu_)
        openMenu_->hide();
    else
        openMenu(item);
}

void BarWindowStatusBar::openMenu(BarItemWidget* item)
{
    QMenu* menu = item != nullptr ? item->menu() : nullptr;
    if (menu == nullptr)
        return;
    if (openMenu_)
        openMenu_->hide();
    openItem_ = item;
    openMenu_ = menu;
    menu->installEventFilter(this);
    connect(menu, &QMenu::aboutToHide, this, &BarWindowStatusBar::menuHidden);
    popupBeside(*menu, QRect(item->mapToGlobal(QPoint(0, 0)), item->size()));
}

void BarWindowStatusBar::menuHidden()
{
    if (openMenu_) {
        openMenu_->removeEventFilter(this);
        disconnect(openMenu_, &QMenu::aboutToHide, this, &BarWindowStatusBar::menuHidden);
    }
    openMenu_ = nullptr;
    openItem_ = nullptr;
}

bool BarWindowStatusBar::eventFilter(QObject* watched, QEvent* event)
{
    // A menu being destroyed still passes its last events through here, as a plain widget by
    // then: it is no longer the open menu, and must not be looked at as one.
    const auto* menu = qobject_cast<const QMenu*>(watched);
    if (menu == nullptr || menu != openMenu_)
        return QWidget::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove: {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        const bool inside = openMenu_->rect().contains(mouse->position().toPoint());
        if (event->type() == QEvent::MouseButtonPress && mouse->button() != Qt::LeftButton)
            break;
        if (menuMouseEvent(event->type(), mouse->globalPosition().toPoint(), inside))
            return true;
        break;
    }
    case QEvent::KeyPress:
        if (menuKeyEvent(static_cast<QKeyEvent*>(event)->key()))
            return true;
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

bool BarWindowStatusBar::menuMouseEvent(QEvent::Type type, const QPoint& global, bool insideMenu)
{
    if (insideMenu)
        return false;
    BarItemWidget* item = itemAt(global);
    if (item == nullptr || item->menu() == nullptr)
        return false;
    if (item != openItem_) {
        openMenu(item);
        openedByMove_ = type == QEvent::MouseMove;
        return true;
    }
    if (type != QEvent::MouseButtonPress)
        return false;
    // The pointer on its way to a click on this item opened its menu already: the click meant
    // to open it, so it stays. Otherwise a press on the open item closes its menu, here, so
    // that no platform hands the press on to the item to open it again.
    if (openedByMove_)
        openedByMove_ = false;
    else
        openMenu_->hide();
    return true;
}

bool BarWindowStatusBar::menuKeyEvent(int key)
{
    if (key != Qt::Key_Left && key != Qt::Key_Right)
        return false;
    // Right on a row with a submenu opens the submenu, as in any menu.
    const QAction* active = openMenu_->activeAction();
    if (key == Qt::Key_Right && active != nullptr && active->menu() != nullptr)
        return false;
    BarItemWidget* next = neighbour(openItem_, key == Qt::Key_Left ? -1 : 1);
    if (next == nullptr)
        return false;
    openMenu(next);
    openedByMove_ = false;
    return true;
}

BarItemWidget* BarWindowStatusBar::itemAt(const QPoint& global) const
{
    if (!isVisible() || !geometry().contains(global))
        return nullptr;
    return qobject_cast<BarItemWidget*>(childAt(mapFromGlobal(global)));
}

BarItemWidget* BarWindowStatusBar::neighbour(const BarItemWidget* item, int step) const
{
    const auto at = std::find(items_.begin(), items_.end(), item);
    if (at == items_.end())
        return nullptr;
    auto index = std::distance(items_.begin(), at) + step;
    for (; index >= 0 && index < std::ssize(items_); index += step) {
        BarItemWidget* candidate = items_[static_cast<std::size_t>(index)];
        if (candidate->menu() != nullptr && candidate->width() > 0)
            return candidate;
    }
    return nullptr;
}
