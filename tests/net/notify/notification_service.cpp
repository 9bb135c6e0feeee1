// The stand-in notification service: ids count from 1, as real services hand them out.
#include "notification_service.h"

#include <QDBusMessage>

bool NotificationService::registerOn(QDBusConnection bus)
{
    bus_ = bus;
    return bus.registerService(QStringLiteral("org.freedesktop.Notifications")) &&
           bus.registerObject(QStringLiteral("/org/freedesktop/Notifications"), this, QDBusConnection::ExportAllSlots);
}

void NotificationService::invoke(uint id, const QString& action)
{
    // Sent as a bus signal, so that it travels like a real service's would.
    QDBusMessage signal = QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/Notifications"),
                                                     QStringLiteral("org.freedesktop.Notifications"),
                                                     QStringLiteral("ActionInvoked"));
    signal << id << action;
    bus_.send(signal);
}

uint NotificationService::Notify(const QString& appName, uint replacesId, const QString& appIcon,
                                 const QString& summary, const QString& body, const QStringList& actions,
                                 const QVariantMap& hints, int timeout)
{
    Q_UNUSED(appName)
    Q_UNUSED(replacesId)
    Q_UNUSED(appIcon)
    Q_UNUSED(hints)
    Q_UNUSED(timeout)
    shown.append({summary, body, actions});
    return static_cast<uint>(shown.size());
}
