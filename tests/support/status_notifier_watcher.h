// A StatusNotifierWatcher on a test's private bus: what a panel's tray runs, so that
// applications register their StatusNotifierItems with it.
#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QObject>
#include <QStringList>

class StatusNotifierWatcher final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(QStringList RegisteredStatusNotifierItems READ registeredItems)
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ isHostRegistered)
    Q_PROPERTY(int ProtocolVersion READ protocolVersion)
public:
    explicit StatusNotifierWatcher(QObject* parent = nullptr);

    // Takes the watcher's name and path on the connection; false when another holds them.
    bool registerOn(QDBusConnection connection);

    // Each item as "service/path", in the order they registered.
    QStringList registeredItems() const { return items_; }
    // A host (the panel's tray) is always there: this watcher stands for one.
    bool isHostRegistered() const { return true; }
    int protocolVersion() const { return 0; }

public Q_SLOTS:
    // service is a bus name, whose item is at /StatusNotifierItem, or an object path on the
    // caller's own connection.
    void RegisterStatusNotifierItem(const QString& service);
    void RegisterStatusNotifierHost(const QString& service);

Q_SIGNALS:
    void StatusNotifierItemRegistered(const QString& item);
    void StatusNotifierItemUnregistered(const QString& item);
    void StatusNotifierHostRegistered();
    void StatusNotifierHostUnregistered();

private:
    QStringList items_;
};
