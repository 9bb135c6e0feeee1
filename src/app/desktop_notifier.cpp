// Chooses, per message, between the notification service and the front end's fallback.
#include "app/desktop_notifier.h"

#include "app/app_logging.h"
#include "modules/status_bar.h"
#include "net/dbus_notifier.h"

#include <QThread>

DesktopNotifier::DesktopNotifier(DBusNotifier* dbus, QObject* parent)
    : Notifier(parent)
    , dbus_(dbus)
{
    if (dbus_ != nullptr) {
        dbus_->setParent(this);
        connect(dbus_, &Notifier::actionInvoked, this, &Notifier::actionInvoked);
    }
}

void DesktopNotifier::fireNotification(const UserNotification& notification)
{
    if (QThread::currentThread() != thread()) {
        QMetaObject::invokeMethod(this, [this, notification] { deliver(notification); }, Qt::QueuedConnection);
        return;
    }
    deliver(notification);
}

void DesktopNotifier::deliver(const UserNotification& notification)
{
    // Asked each time: a notification service may start after us (a desktop session coming up).
    if (dbus_ != nullptr && dbus_->available()) {
        dbus_->fireNotification(notification);
        return;
    }
    qCInfo(lcApp).noquote() << "notification:" << notification.title << notification.text;
    if (fallback_ != nullptr)
        fallback_->showMessage(notification.title, notification.text);
}
