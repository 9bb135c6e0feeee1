// The seam between modules and whatever shows their status items: tray, bar window, terminal, files.
#pragma once

#include <QImage>
#include <QObject>
#include <QString>

#include <memory>

class QMenu;

// One module's place in the bar. Items are created in the reverse of the menu-bar order, and
// each new item goes to the left of those made before it, so the bar reads in the user's order.
class StatusItem {
public:
    virtual ~StatusItem() = default;
    // The picture, with its device pixel ratio set; templated while the menu is open, where the
    // platform tints it.
    virtual void setImage(const QImage& image, bool templated) = 0;
    // The same figures as words, for front ends that show no pictures.
    virtual void setText(const QString& text) = 0;
    // The drop-down shown on a click; owned by the module, which outlives its item.
    virtual void setMenu(QMenu* menu) = 0;
};

class StatusBar {
public:
    virtual ~StatusBar() = default;
    // moduleKey names the module ("General", "CPU", ...) for front ends that label or save items.
    virtual std::unique_ptr<StatusItem> createItem(const QString& moduleKey) = 0;
    // A message for the user where the desktop shows no notifications: a tray balloon, a line of
    // text. Front ends with no place for one leave it out.
    virtual void showMessage(const QString& title, const QString& text)
    {
        Q_UNUSED(title)
        Q_UNUSED(text)
    }
    // The theme in use is made for a dark panel (or a light one); front ends that draw the
    // panel behind the pictures themselves match it.
    virtual void setDarkAppearance(bool dark) { Q_UNUSED(dark) }
};
