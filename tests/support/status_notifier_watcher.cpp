// A StatusNotifierWatcher on a test's private bus: what a panel's tray runs, so that
// applications register their StatusNotifierItems with it.
#include "support/status_notifier_watcher.h"

#include <QDBusConnectionInterface>

namespace {

constexpr auto kWatcherService = "org.kde.StatusNotifierWatcher";
constexpr auto kWatcherPath = "/StatusNotifierWatcher";
constexpr auto kItemPath = "/StatusNotifierItem";

} // namespace

StatusNotifierWatcher::StatusNotifierWatcher(QObject* parent)
    : QObject(parent)
{}

bool StatusNotifierWatcher::registerOn(QDBusConnection connection)
{
    return connection.registerObject(QLatin1String(kWatcherPath), this,
                                     QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals |
                                         QDBusConnection::ExportAllProperties) &&
           connection.registerService(QLatin1String(kWatcherService));
}

void StatusNotifierWatcher::RegisterStatusNotifierItem(const QString& service)
{
    // Items name either their bus name or, on the caller's own connection, their path.
    const bool isPath = service.startsWith(u'/');
    const QString item = isPath ? QString(message().service() + service) : QString(service + QLatin1String(kItemPath));
    if (items_.contains(item))
        return;
    items_.append(item);
    Q_EMIT StatusNotifierItemRegistered(item);
}

void StatusNotifierWatcher::RegisterStatusNotifierHost(const QString& service)
{
    Q_UNUSED(service)
    Q_EMIT StatusNotifierHostRegistered();
}
