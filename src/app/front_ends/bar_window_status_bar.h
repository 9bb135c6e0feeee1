// A thin window along the top of the screen showing the status items side by side, for desktops
// without a system tray (or when asked for); a dock under X11, a normal window under Wayland.
#pragma once

#include "modules/status_bar.h"

#include <QEvent>
#include <QPointer>
#include <QWidget>

#include <vector>

class BarItemWidget;
class QMenu;

class BarWindowStatusBar final : public QWidget, public StatusBar {
    Q_OBJECT
public:
    // Height of the bar when the pictures are not taller, in points.
    static constexpr int kMinimumHeight = 20;
    // Gap between neighbouring pictures, in points.
    static constexpr int kItemSpacing = 8;

    explicit BarWindowStatusBar(QWidget* parent = nullptr);
    ~BarWindowStatusBar() override;

    // New items go to the left of the existing ones; the window shows itself with the first.
    std::unique_ptr<StatusItem> createItem(const QString& moduleKey) override;
    // The bar's background follows the theme, as a menu bar follows the desktop's appearance:
    // a dark theme's light figures need a dark bar.
    void setDarkAppearance(bool dark) override;

protected:
    // While a menu is open it has the pointer: its events tell when to move on to another item.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void forgetItem(QObject* gone);
    // Spans the primary screen's top edge and packs the pictures against its right end.
    void layoutItems();
    // Like a menu bar: a press on an item opens its menu, or closes it when it is the open one.
    void itemPressed(BarItemWidget* item);
    // Closes any open menu and opens the item's below it.
    void openMenu(BarItemWidget* item);
    void menuHidden();
    // A press, a move or an arrow key that reached the open menu; true when it was used here.
    bool menuMouseEvent(QEvent::Type type, const QPoint& global, bool insideMenu);
    bool menuKeyEvent(int key);
    BarItemWidget* itemAt(const QPoint& global) const;
    // The nearest item with a menu step places to the right (negative: to the left), if any.
    BarItemWidget* neighbour(const BarItemWidget* item, int step) const;

    // Left to right; children of this window, dropped from here as they are destroyed.
    std::vector<BarItemWidget*> items_;
    QPointer<BarItemWidget> openItem_;
    QPointer<QMenu> openMenu_;
    // The open menu came up as the pointer moved onto its item, not by a click.
    bool openedByMove_ = false;
};
