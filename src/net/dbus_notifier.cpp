// Speaks org.freedesktop.Notifications: Notify to show, ActionInvoked and NotificationClosed back.
#include "net/dbus_notifier.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QThread>

namespace {

const QString kService = QStringLiteral("org.freedesktop.Notifications");
const QString kPath = QStringLiteral("/org/freedesktop/Notifications");
const QString kInterface = QStringLiteral("org.freedesktop.Notifications");

} // namespace

DBusNotifier::DBusNotifier(const QDBusConnection& bus, QObject* parent)
    : Notifier(parent)
    , bus_(bus)
{
    bus_.connect(kService, kPath, kInterface, QStringLiteral("ActionInvoked"), this,
                 SLOT(onActionInvoked(uint, QString)));
    bus_.connect(kService, kPath, kInterface, QStringLiteral("NotificationClosed"), this, SLOT(onClosed(uint, uint)));
}

bool DBusNotifier::available() const
{
    const QDBusConnectionInterface* daemon = bus_.interface();
    return bus_.isConnected() && daemon != nullptr && daemon->isServiceRegistered(kService).value();
}

void DBusNotifier::fireNotification(const UserNotification& notification)
{
    // Messages come from worker threads too (the dynamic DNS walk); the bus is spoken from ours.
    if (QThread::currentThread() != thread()) {
        QMetaObject::invokeMethod(this, [this, notification] { send(notification); }, Qt::QueuedConnection);
        return;
    }
    send(notification);
}

void DBusNotifier::send(const UserNotification& notification)
{
    QStringList actions;
    for (const auto& [id, label] : notification.actions)
        actions << id << label;
    QDBusMessage call = QDBusMessage::createMethodCall(kService, kPath, kInterface, QStringLiteral("Notify"));
    call << QStringLiteral("Tarvel") << 0U << QStringLiteral("tarvel") << notification.title << notification.text
         << actions << QVariantMap() << -1;
    auto* watcher = new QDBusPendingCallWatcher(bus_.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this, tag = notification.tag, withActions = !actions.isEmpty()](QDBusPendingCallWatcher* done) {
                const QDBusPendingReply<uint> reply = *done;
                if (withActions && reply.isValid())
                    tags_.insert(reply.value(), tag);
                done->deleteLater();
            });
}

void DBusNotifier::onActionInvoked(uint id, const QString& action)
{
    const auto it = tags_.constFind(id);
    if (it != tags_.cend())
        Q_EMIT actionInvoked(it.value(), action);
}

void DBusNotifier::onClosed(uint id, uint reason)
{
    Q_UNUSED(reason)
    tags_.remove(id);
}
