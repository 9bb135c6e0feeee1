// The status items as system tray icons: StatusNotifierItem on D-Bus desktops, XEmbed elsewhere.
#include "app/front_ends/tray_status_bar.h"

#include "app/front_ends/tray_status_item.h"

#include <QSystemTrayIcon>

TrayStatusBar::TrayStatusBar(QObject* parent)
    : QObject(parent)
{}

std::unique_ptr<StatusItem> TrayStatusBar::createItem(const QString& moduleKey)
{
    return std::make_unique<TrayStatusItem>(moduleKey, this);
}

void TrayStatusBar::showMessage(const QString& title, const QString& text)
{
    for (QSystemTrayIcon* icon : findChildren<QSystemTrayIcon*>()) {
        if (icon->isVisible()) {
            icon->showMessage(title, text);
            return;
        }
    }
}

bool TrayStatusBar::isAvailable()
{
    return QSystemTrayIcon::isSystemTrayAvailable();
}
