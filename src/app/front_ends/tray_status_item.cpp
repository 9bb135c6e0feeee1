// One status item shown as a system tray icon.
#include "app/front_ends/tray_status_item.h"

#include "app/front_ends/menu_placement.h"
#include "app/front_ends/tray_icon_image.h"

#include <QCursor>
#include <QIcon>
#include <QMenu>
#include <QPixmap>
#include <QSystemTrayIcon>

TrayStatusItem::TrayStatusItem(const QString& moduleKey, QObject* owner)
    : icon_(new QSystemTrayIcon(owner))
{
    icon_->setObjectName(moduleKey);
    // A menu bar opens its menu on the first click; most trays only do so on the context click.
    // It opens beside the icon, not over it; trays that do not tell where the icon is (those
    // spoken to over D-Bus) get it at the pointer.
    QObject::connect(icon_, &QSystemTrayIcon::activated, icon_, [this](QSystemTrayIcon::ActivationReason reason) {
        if (reason != QSystemTrayIcon::Trigger || !menu_)
            return;
        const QRect icon = icon_->geometry();
        popupBeside(*menu_, icon.isValid() && !icon.isEmpty() ? icon : QRect(QCursor::pos(), QSize(1, 1)));
    });
}

TrayStatusItem::~TrayStatusItem()
{
    delete icon_.data();
}

void TrayStatusItem::setImage(const QImage& image, bool /*templated*/)
{
    // Setting an icon sends the whole picture to the tray host; an unchanged one is not sent.
    if (!icon_ || image.isNull() || image == shownImage_)
        return;
    shownImage_ = image;
    // Trays have no notion of a tinted template picture; its plain form reads well enough.
    icon_->setIcon(QIcon(QPixmap::fromImage(squareTrayImage(image))));
    // Shown only once there is a picture, so no empty slot flashes up at start.
    if (!icon_->isVisible())
        icon_->show();
}

void TrayStatusItem::setText(const QString& text)
{
    if (icon_)
        icon_->setToolTip(text);
}

void TrayStatusItem::setMenu(QMenu* menu)
{
    menu_ = menu;
    if (icon_)
        icon_->setContextMenu(menu);
}
