// Notifications through the desktop's notification service on the session bus.
#pragma once

#include "net/notifier.h"

#include <QDBusConnection>
#include <QHash>

class DBusNotifier final : public Notifier {
    Q_OBJECT
public:
    // bus: the session bus, or a private one in tests.
    explicit DBusNotifier(const QDBusConnection& bus = QDBusConnection::sessionBus(), QObject* parent = nullptr);

    // Whether a notification service is on the bus now; asked afresh, as one may start later.
    bool available() const;
    // Sends without waiting for the service; the buttons' choices come back as actionInvoked.
    void fireNotification(const UserNotification& notification) override;

private Q_SLOTS:
    // Connected by signature: the service's signals reach us as bus messages.
    void onActionInvoked(uint id, const QString& action);
    void onClosed(uint id, uint reason);

private:
    void send(const UserNotification& notification);

    QDBusConnection bus_;
    QHash<uint, QString> tags_; // shown notifications with actions, by the service's id
};
