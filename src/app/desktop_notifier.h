// The program's one notifier: the desktop's notification service, else the front end's own place.
#pragma once

#include "net/notifier.h"

class DBusNotifier;
class StatusBar;

class DesktopNotifier final : public Notifier {
    Q_OBJECT
public:
    explicit DesktopNotifier(DBusNotifier* dbus, QObject* parent = nullptr);

    // Where messages go while no notification service runs (a tray balloon, a terminal line).
    void setFallback(StatusBar* bar) { fallback_ = bar; }
    void fireNotification(const UserNotification& notification) override;

private:
    void deliver(const UserNotification& notification);

    DBusNotifier* dbus_; // a child, or null where there is no bus at all
    StatusBar* fallback_ = nullptr;
};
