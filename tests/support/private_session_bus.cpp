// Starts dbus-daemon with a session configuration and reads the address it prints.
#include "support/private_session_bus.h"

PrivateSessionBus::PrivateSessionBus()
{
    daemon_.start(QStringLiteral("dbus-daemon"),
                  {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address")});
    if (!daemon_.waitForStarted(5000) || !daemon_.waitForReadyRead(5000))
        return;
    address_ = QString::fromUtf8(daemon_.readLine()).trimmed();
}

PrivateSessionBus::~PrivateSessionBus()
{
    for (const QString& name : std::as_const(names_))
        QDBusConnection::disconnectFromBus(name);
    daemon_.terminate();
    daemon_.waitForFinished(5000);
}

QDBusConnection PrivateSessionBus::connect(const QString& name) const
{
    names_.append(name);
    return QDBusConnection::connectToBus(address_, name);
}
