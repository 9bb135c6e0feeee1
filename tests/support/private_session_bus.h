// A private dbus-daemon for a test, so nothing reaches or depends on the desktop's own bus.
#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QString>

class PrivateSessionBus {
public:
    PrivateSessionBus();
    ~PrivateSessionBus();
    PrivateSessionBus(const PrivateSessionBus&) = delete;
    PrivateSessionBus& operator=(const PrivateSessionBus&) = delete;

    bool started() const { return !address_.isEmpty(); }
    QString address() const { return address_; }
    // A new connection to the bus under name (each name is one connection).
    QDBusConnection connect(const QString& name) const;

private:
    QProcess daemon_;
    QString address_;
    mutable QStringList names_;
};
